// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "bridge/DeferredMessages.h"

#include "bridge/Diagnostic.h"

namespace zel::utility::i18n {

// A pointer: messages may still be written after the thread has destroyed its objects.
thread_local DeferredMessages* DeferredMessages::s_outermost = nullptr;

DeferredMessages::DeferredMessages()
{
    if (s_outermost == nullptr) {
        s_outermost = this;
    }
}

DeferredMessages::~DeferredMessages()
{
    if (s_outermost != this) {
        return;
    }
    s_outermost = nullptr;
    for (const auto& [type, text] : m_messages) {
        Diagnostic::hand(type, text);
    }
}

bool DeferredMessages::hold(QtMsgType type, const QString& text)
{
    if (s_outermost == nullptr) {
        return false;
    }
    s_outermost->m_messages.emplace_back(type, text);
    return true;
}

} // namespace zel::utility::i18n
