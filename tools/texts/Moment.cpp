// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "texts/Moment.h"

#include "terminal/Failure.h"
#include "texts/Scanner.h"
#include <optional>

namespace zel::tool {

namespace {

// The parts of a text before it is known to be a valid moment.
struct Reading
{
    QDate day;
    QTime time;
    std::optional<int> offset; ///< in seconds
};

constexpr int largestOffset = 14 * 3600; // that a place has ever had

// A time with or without seconds, and a fraction of them. A leap second is read as the second before it.
QTime time(Scanner& scanner, bool extended)
{
    const int hour = scanner.number(2);
    if (extended) {
        scanner.expect(":");
    }
    const int minute = scanner.number(2);
    const bool hasSeconds = extended ? scanner.accept(":") : scanner.startsWithDigit();
    const int second = hasSeconds ? scanner.number(2) : 0;
    return {hour, minute, second == 60 ? 59 : second, scanner.accept(".,") ? scanner.thousandths() : 0};
}

// The seconds of an offset, invalid where there is none.
std::optional<int> offset(Scanner& scanner)
{
    if (scanner.accept("Z")) {
        return 0;
    }
    const int sign = scanner.startsWith("-") ? -1 : 1;
    if (!scanner.accept("+-")) {
        return {};
    }
    const int hours = scanner.number(2);
    const int minutes = scanner.accept(":") || !scanner.isAtEnd() ? scanner.number(2) : 0;
    const QTime distance(hours, minutes);
    return sign * (distance.isValid() ? QTime(0, 0).secsTo(distance) : largestOffset + 1);
}

// 2012-09-03T10:30:00+02:00, 20120903T083000Z
Reading iso(Scanner& scanner)
{
    const int year = scanner.number(4);
    const bool extended = scanner.accept("-");
    const int month = scanner.number(2);
    if (extended) {
        scanner.expect("-");
    }
    const QDate day(year, month, scanner.number(2));
    if (scanner.isAtEnd()) {
        return {day, QTime(0, 0), {}};
    }
    scanner.expect("T ");
    const QTime clock = time(scanner, extended);
    return {day, clock, offset(scanner)};
}

std::optional<int> mailZone(Scanner& scanner)
{
    if (scanner.accept("Uu")) { // UT or UTC
        scanner.expect("Tt");
        scanner.accept("Cc");
        return 0;
    }
    if (scanner.startsWith("Gg")) {
        scanner.name("GMT");
        return 0;
    }
    return offset(scanner);
}

// Mon, 3 Sep 2012 10:30:00 +0200 (CEST)
Reading mail(Scanner& scanner)
{
    constexpr const char* blank = " ";
    int weekday = 0;
    if (!scanner.startsWithDigit()) {
        weekday = scanner.name("MonTueWedThuFriSatSun");
        scanner.expect(",");
        scanner.skip(blank);
    }
    const auto dayOfMonth = static_cast<int>(qMin(scanner.integer(), qint64(32)));
    scanner.skip(blank);
    const int month = scanner.name("JanFebMarAprMayJunJulAugSepOctNovDec");
    scanner.skip(blank);
    const QDate day(scanner.number(4), month, dayOfMonth);
    scanner.expect(blank);
    scanner.skip(blank);
    const QTime clock = time(scanner, true);
    scanner.skip(blank);
    const int distance = mailZone(scanner).value_or(largestOffset + 1);
    scanner.skip(blank);
    if (scanner.accept("(")) {
        scanner.skip("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789:+-_/ ");
        scanner.expect(")");
    }
    return {weekday == 0 || weekday == day.dayOfWeek() ? day : QDate(), clock, distance};
}

// @1346661000, @-1.5
QDateTime epoch(Scanner& scanner)
{
    constexpr qint64 largest = 1000000000000; // in the year 33658
    scanner.expect("@");
    const int sign = scanner.accept("-") ? -1 : 1;
    const qint64 seconds = qMin(scanner.integer(), largest);
    const int fraction = scanner.accept(".") ? scanner.thousandths() : 0;
    QDateTime moment = QDateTime::fromMSecsSinceEpoch(0).toUTC();
    moment.setMSecsSinceEpoch(sign * (seconds * 1000 + fraction)); // in UTC: a local time may denote two instants
    return moment;
}

QDateTime dateTime(const Reading& reading, const QTimeZone& zone)
{
    if (!reading.offset) {
        return zone.isValid() ? QDateTime(reading.day, reading.time, zone) : QDateTime(reading.day, reading.time);
    }
    // Constructors with an offset are deprecated in Qt 6.9; their replacement is not in Qt 5.
    QDateTime moment = QDateTime::fromMSecsSinceEpoch(0).toUTC();
    moment.setDate(reading.day);
    moment.setTime(reading.time);
    return moment.addSecs(-*reading.offset).toOffsetFromUtc(*reading.offset);
}

void requireForm(bool condition, std::string_view text)
{
    Moment::require(condition, text,
                    QStringLiteral(" is not a moment such as 2012-09-03 or 2012-09-03T10:30:00+02:00"));
}

} // namespace

QDateTime Moment::parse(std::string_view text, const QTimeZone& zone)
{
    Scanner scanner(text);
    if (isEpoch(text)) {
        QDateTime moment = epoch(scanner);
        requireForm(scanner.isAtEnd(), text);
        return moment;
    }
    const bool isMail = !scanner.startsWithDigit() || text.find(' ') < 3;
    const Reading reading = isMail ? mail(scanner) : iso(scanner);
    requireForm(scanner.isAtEnd() && reading.day.isValid() && reading.time.isValid() &&
                    qAbs(reading.offset.value_or(0)) <= largestOffset,
                text);
    QDateTime moment = dateTime(reading, zone);
    require(moment.isValid(), text, QStringLiteral(" does not exist in local time, as clocks are put forward then"));
    return moment;
}

void Moment::require(bool condition, std::string_view text, const QString& reason)
{
    if (!condition) {
        throw Failure(quoted(QString::fromUtf8(text.data(), static_cast<int>(text.size()))) + reason);
    }
}

QString Moment::write(const QDateTime& moment)
{
    return moment.toString(moment.time().msec() == 0 ? Qt::ISODate : Qt::ISODateWithMs);
}

} // namespace zel::tool
