// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "terminal/Messages.h"

#include <utility>

namespace zel::tool {

QStringList Messages::take()
{
    return std::exchange(s_taken, {});
}

void Messages::handle(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& text)
{
    s_taken.append(text.trimmed());
}

} // namespace zel::tool
