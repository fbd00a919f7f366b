// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Every function of the library once, on the console.
//
// usage: example_console
#include <QtCore/QDateTime>
#include <QtCore/QObject>
#include <QtCore/QTextStream>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/Formatting.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

const QDateTime moment(QDate(2012, 9, 3), QTime(22, 30));

// Prints the text of the present moment.
class Printer : public QObject
{
    Q_OBJECT

public:
    Printer(const RelativeDateFormatter& formatter, QTextStream& out) : m_formatter(formatter), m_out(out) {}

public Q_SLOTS:
    void print() { m_out << "  as of now: " << m_formatter.format(QDateTime::currentDateTime()) << '\n'; }

private:
    const RelativeDateFormatter& m_formatter;
    QTextStream& m_out;
};

// A pattern is in Qt syntax, for QLocale.
void showPatterns(QTextStream& out)
{
    const QLocale french(QStringLiteral("fr_FR"));
    out << "Patterns of France\n"
        << "  " << french.toString(moment.date(), dateFormat(french, DateFormat::Full)) << '\n'
        << "  " << french.toString(moment.time(), timeFormat(french, DateFormat::Short)) << '\n'
        << "  " << french.toString(moment, dateTimeFormat(french, DateFormat::Medium)) << '\n'
        << "Patterns of the user's region\n"
        << "  " << dateFormat(DateFormat::Long) << '\n'
        << "  " << timeFormat(DateFormat::Medium) << '\n'
        << "  " << dateTimeFormat(DateFormat::Short) << '\n';
}

void showPercentages(QTextStream& out)
{
    out << "Percentages\n"
        << "  " << toPercentageString(QLocale(QStringLiteral("de_DE")), 0.256, 1, 0) << '\n'
        << "  " << toPercentageString(0.5, 2, 2) << '\n';
}

// A skeleton names the fields; the region determines order and punctuation.
void showCustomDates(QTextStream& out)
{
    CustomDateFormatter formatter(QStringLiteral("yMMMMEEEEd"));
    out << "Custom dates\n"
        << "  " << formatter.skeleton() << ": " << formatter.format(moment) << '\n';
    formatter.setSkeleton(QStringLiteral("hm"));
    if (formatter.isValid()) {
        out << "  " << formatter.skeleton() << ": " << formatter.format(moment) << '\n';
    }
}

void showRelativeDates(QTextStream& out)
{
    RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
    formatter.setAnchorTime(moment);
    out << "Relative dates\n";
    for (const QString& text : formatter.formatAll({moment.addSecs(-300), moment.addDays(-1)})) {
        out << "  " << text << '\n';
    }

    formatter.setClockFormat(ClockFormat::Use12hourClock);
    out << "  on a 12-hour clock: " << formatter.format(moment.addDays(-1)) << '\n';
    formatter.setLocale(QLocale(QStringLiteral("fr_FR")));
    out << "  in French: " << formatter.format(moment.addSecs(-300)) << '\n';
    formatter.applyUserRegionLocale();
    out << "  in the user's region again: " << formatter.format(moment.addSecs(-300)) << '\n';

    // Another table resets everything to the defaults, the anchor to the current time.
    formatter.setType(RelativeDateFormat::NonTimeCritical);
    formatter.setAnchorTime(moment);
    out << "  in days, as type " << formatter.type() << ": " << formatter.format(moment.addSecs(-300)) << '\n';

    // Format texts again when the formatter reports a change.
    const Printer printer(formatter, out);
    if (QObject::connect(&formatter, SIGNAL(changed()), &printer, SLOT(print()))) {
        formatter.applyCurrentTimeAsAnchor();
    }
}

} // namespace

int main()
{
    QTextStream out(stdout);
    showPatterns(out);
    showPercentages(out);
    showCustomDates(out);
    showRelativeDates(out);
}

#include "console.moc"
