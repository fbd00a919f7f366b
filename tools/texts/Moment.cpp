#include "texts/Moment.h"

#include "terminal/Failure.h"
#include <optional>

namespace zel::tool {

namespace {

/** Takes a text apart from left to right; once something is not as expected, nothing is any more. */
class Scanner
{
public:
    explicit Scanner(std::string_view text) : m_rest(text) {}

    bool isAtEnd() const { return m_good && m_rest.empty(); }

    /** Whether the next character is one of these, which is taken then. */
    bool accept(std::string_view characters)
    {
        const bool found = !m_rest.empty() && characters.find(m_rest.front()) != std::string_view::npos;
        if (found) {
            m_rest.remove_prefix(1);
        }
        return found;
    }

    void expect(std::string_view characters) { m_good = accept(characters) && m_good; }

    int number(int digits)
    {
        int value = 0;
        for (; digits > 0 && startsWithDigit(); --digits) {
            value = value * 10 + (m_rest.front() - '0');
            m_rest.remove_prefix(1);
        }
        m_good = m_good && digits == 0;
        return value;
    }

    /** A decimal fraction in thousandths; further digits are passed over. */
    int thousandths()
    {
        int value = 0;
        int unit = 100;
        m_good = m_good && startsWithDigit();
        for (; startsWithDigit(); unit /= 10) {
            value += (m_rest.front() - '0') * unit;
            m_rest.remove_prefix(1);
        }
        return value;
    }

    bool startsWith(std::string_view characters) const
    {
        return !m_rest.empty() && characters.find(m_rest.front()) != std::string_view::npos;
    }

private:
    bool startsWithDigit() const { return startsWith("0123456789"); }

    std::string_view m_rest;
    bool m_good = true;
};

QDate date(Scanner& scanner)
{
    const int year = scanner.number(4);
    scanner.expect("-");
    const int month = scanner.number(2);
    scanner.expect("-");
    return {year, month, scanner.number(2)};
}

QTime time(Scanner& scanner)
{
    const int hour = scanner.number(2);
    scanner.expect(":");
    const int minute = scanner.number(2);
    const int second = scanner.accept(":") ? scanner.number(2) : 0;
    return {hour, minute, second, scanner.accept(".,") ? scanner.thousandths() : 0};
}

/** The seconds of an offset, invalid where there is none. */
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
    // Beyond every offset that a place has ever had.
    constexpr int impossible = 15 * 3600;
    return sign * (distance.isValid() ? QTime(0, 0).secsTo(distance) : impossible);
}

QDateTime dateTime(const QDate& day, const QTime& time, const std::optional<int>& offset)
{
    if (!offset) {
        return {day, time};
    }
    // Constructors that take an offset are deprecated in Qt 6.9, and what replaces them is not in Qt 5.
    QDateTime reading = QDateTime::fromMSecsSinceEpoch(0).toUTC();
    reading.setDate(day);
    reading.setTime(time);
    return reading.addSecs(-*offset).toOffsetFromUtc(*offset);
}

QString shown(std::string_view text)
{
    return quoted(QString::fromUtf8(text.data(), static_cast<int>(text.size())));
}

} // namespace

QDateTime Moment::parse(std::string_view text)
{
    constexpr int largestOffset = 14 * 3600;
    Scanner scanner(text);
    const QDate day = date(scanner);
    const bool midnight = scanner.isAtEnd();
    if (!midnight) {
        scanner.expect("T ");
    }
    const QTime clock = midnight ? QTime(0, 0) : time(scanner);
    const std::optional<int> distance = midnight ? std::nullopt : offset(scanner);
    if (!scanner.isAtEnd() || !day.isValid() || !clock.isValid() || qAbs(distance.value_or(0)) > largestOffset) {
        throw Failure(shown(text) + QStringLiteral(" is not a moment such as 2012-05-16 or 2012-05-16T10:30:00+02:00"));
    }
    QDateTime moment = dateTime(day, clock, distance);
    if (!moment.isValid()) {
        throw Failure(shown(text) + QStringLiteral(" does not exist in local time, where clocks are put forward then"));
    }
    return moment;
}

QString Moment::write(const QDateTime& moment)
{
    return moment.toString(moment.time().msec() == 0 ? Qt::ISODate : Qt::ISODateWithMs);
}

} // namespace zel::tool
