// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_UTILITY_I18N_BRIDGE_DEFERREDMESSAGES_H
#define ZEL_UTILITY_I18N_BRIDGE_DEFERREDMESSAGES_H

#include <QtCore/QString>
#include <QtCore/QtGlobal>
#include <utility>
#include <vector>

namespace zel::utility::i18n {

/**
 * Defers the messages of its thread until the outermost instance on that thread is destroyed. Declared before a lock,
 * so that message handlers, which may do anything, do not run while the lock is held.
 */
class DeferredMessages
{
    Q_DISABLE_COPY_MOVE(DeferredMessages)

public:
    DeferredMessages();
    ~DeferredMessages();

    /** Defers a message; returns false on a thread without an instance. */
    static bool hold(QtMsgType type, const QString& text);

private:
    static thread_local DeferredMessages* s_outermost;

    std::vector<std::pair<QtMsgType, QString>> m_messages;
};

} // namespace zel::utility::i18n

#endif
