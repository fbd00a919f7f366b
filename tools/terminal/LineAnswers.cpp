// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "terminal/LineAnswers.h"

namespace zel::tool {

void LineAnswers::report(const Line& line)
{
    if (m_json) {
        m_console.json(
            {{QStringLiteral("line"), line.number},
             {QStringLiteral("input"), QString::fromUtf8(line.text.data(), static_cast<int>(line.text.size()))},
             {QStringLiteral("error"), line.error}});
    }
    m_reader.eraseProgress();
    m_console.printError(QStringLiteral("line %1: ").arg(line.number) + line.error);
    m_status = NoAnswer;
}

} // namespace zel::tool
