// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "texts/Answers.h"

#include "terminal/Console.h"
#include "terminal/Failure.h"
#include "texts/Moment.h"

namespace zel::tool {

namespace {

void requireText(const QDateTime& moment, const QString& text)
{
    if (text.isEmpty()) {
        throw Failure(QStringLiteral("no text for ") + Moment::write(moment));
    }
}

} // namespace

void Answers::write(const QDateTime& moment, const QString& text) const
{
    requireText(moment, text);
    if (m_json) {
        m_console.json({{QStringLiteral("moment"), Moment::write(moment)}, {QStringLiteral("text"), text}});
    } else {
        m_console.line(text);
    }
}

void Answers::write(const QDateTime& moment, const QString& text, const QDateTime& until) const
{
    requireText(moment, text);
    if (m_json) {
        m_console.json({{QStringLiteral("moment"), Moment::write(moment)},
                        {QStringLiteral("text"), text},
                        {QStringLiteral("until"), until.isValid() ? Moment::write(until) : QJsonValue()}});
    } else {
        m_console.line(text + QLatin1Char('\t') + (until.isValid() ? Moment::write(until) : QStringLiteral("never")));
    }
}

} // namespace zel::tool
