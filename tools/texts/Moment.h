// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TOOL_MOMENT_H
#define ZEL_TOOL_MOMENT_H

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QTimeZone>
#include <string_view>

namespace zel::tool {

/** The syntax of moments on the command line. */
namespace Moment {

/**
 * Parses one of these; anything else is a Failure:
 * - ISO 8601, extended or compact: a date alone, which is midnight, or a date and a time with or without seconds, a
 *   fraction of them, and `Z` or an offset. Without an offset it is a time in `zone`, or local time if that is invalid.
 * - RFC 2822, as in mail and HTTP, with or without a weekday.
 * - `@` and the seconds since 1970, which may be negative or have a fraction, in UTC and in any year.
 */
QDateTime parse(std::string_view text, const QTimeZone& zone = {});

/** Whether a text is a number of seconds: an instant without a date and time in a zone. */
inline bool isEpoch(std::string_view text)
{
    return !text.empty() && text.front() == '@';
}

/** Throws a Failure with the text and the reason unless a condition holds. */
void require(bool condition, std::string_view text, const QString& reason);

/** @param moment in the years 1 to 9999 */
QString write(const QDateTime& moment);

} // namespace Moment

} // namespace zel::tool

#endif
