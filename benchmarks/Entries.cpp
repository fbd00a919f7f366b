// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "Entry.h"

#include "Floor.h"
#include "List.h"
#include "support/SettingsRoot.h"
#include <chrono>
#include <QtCore/QFile>
#include <QtCore/QObject>
#include <QtCore/QTimeZone>
#include <thread>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/Formatting.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

namespace {

using namespace zel::utility::i18n;
using icu::DateFormat;

const auto medium = zel::utility::i18n::DateFormat::Medium;

// A device in Berlin with a 24-hour clock.
class Device
{
public:
    Device()
        : m_regionFile(QFile::encodeName(m_root.file(QStringLiteral("/pps/system/locale")))),
          m_clockFile(QFile::encodeName(m_root.file(QStringLiteral("/pps/system/settings"))))
    {
        m_root.setClock("24");
        m_root.setTimeZone("Europe/Berlin");
        m_root.setRegion("en_US");
        // Let the settings object grow old enough: a new one is read again, as its time stamp may not show a change.
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }

    const char* regionFile() const { return m_regionFile.constData(); }
    const char* clockFile() const { return m_clockFile.constData(); }

private:
    SettingsRoot m_root;
    QByteArray m_regionFile;
    QByteArray m_clockFile;
};

const QLocale locale(QStringLiteral("en_US"));
const QDateTime anchor(QDate(2012, 9, 3), QTime(10, 30));
const QString dateSkeleton = QStringLiteral("yMMMd");
const QString timeSkeleton = QStringLiteral("yMMMdhm");
const QString zoneSkeleton = QStringLiteral("yMMMdhmz");

const Device& device()
{
    static const Device theDevice;
    return theDevice;
}

std::vector<Entry> patternEntries()
{
    const auto none = DateFormat::kNone;
    const auto style = DateFormat::kMedium;
    return {
        {"dateFormat", [] { return dateFormat(locale, medium); }, [=] { return floors::pattern(locale, style, none); },
         Entry::Different},
        {"dateFormat (region)", [] { return dateFormat(medium); },
         [=] {
             floors::lookAt(device().regionFile());
             return floors::pattern(locale, style, none);
         },
         Entry::Different},
        {"timeFormat", [] { return timeFormat(locale, medium); },
         [=] {
             floors::lookAt(device().clockFile());
             return floors::pattern(locale, none, style);
         },
         Entry::Different},
        {"dateTimeFormat", [] { return dateTimeFormat(locale, medium); },
         [=] {
             floors::lookAt(device().clockFile());
             return floors::pattern(locale, style, style);
         },
         Entry::Different},
        {"toPercentageString", [] { return toPercentageString(locale, 0.256, 1, 0); },
         [] { return floors::percentage(locale, 0.256, 1, 0); }, Entry::Same},
    };
}

// Creating a formatter and formatting with one skeleton; on the device, "h" becomes "H".
std::vector<Entry> customEntries(const std::string& title, const QString& skeleton)
{
    const QString clocked = QString(skeleton).replace(QLatin1Char('h'), QLatin1Char('H'));
    const auto ours = std::make_shared<CustomDateFormatter>(skeleton);
    const std::shared_ptr<icu::SimpleDateFormat> bare = floors::formatter(locale, clocked);
    const bool zoned = skeleton.contains(QLatin1Char('z'));
    return {
        {"CustomDateFormatter() " + title,
         [skeleton] { return CustomDateFormatter(skeleton).isValid() ? QString() : QStringLiteral("invalid"); },
         [clocked] {
             floors::lookAt(device().regionFile());
             return floors::formatter(locale, clocked) ? QString() : QStringLiteral("invalid");
         },
         Entry::Same},
        {"CustomDateFormatter::format " + title, [ours] { return ours->format(anchor); },
         [bare, zoned] {
             floors::lookAt(device().regionFile());
             return zoned ? floors::formatInZone(*bare, anchor, QStringLiteral("Europe/Berlin"))
                          : floors::format(*bare, anchor);
         },
         Entry::Same},
    };
}

Entry setSkeletonEntry()
{
    const auto ours = std::make_shared<CustomDateFormatter>(dateSkeleton);
    const auto isOdd = std::make_shared<bool>(false);
    return {"CustomDateFormatter::setSkeleton",
            [ours, isOdd] {
                *isOdd = !*isOdd;
                ours->setSkeleton(*isOdd ? timeSkeleton : dateSkeleton);
                return QString();
            },
            [isOdd] {
                *isOdd = !*isOdd;
                floors::formatter(locale, *isOdd ? QStringLiteral("yMMMdHm") : dateSkeleton);
                return QString();
            },
            Entry::Same};
}

// The skeletons of the slots of TimeCritical, under a 24-hour clock.
const QStringList& tableSkeletons()
{
    static const QStringList side = {QStringLiteral("yMMMM"), QStringLiteral("MMMd"), QStringLiteral("EHmm"),
                                     QStringLiteral("EHmm"),  QStringLiteral("H"),    QStringLiteral("m")};
    static const QStringList both = side + side;
    return both;
}

void tablePatterns(const QLocale& chosen)
{
    for (const QString& skeleton : tableSkeletons()) {
        floors::bestPattern(chosen, skeleton);
    }
}

std::vector<Entry> relativeDateEntries()
{
    const auto ours = std::make_shared<RelativeDateFormatter>(RelativeDateFormat::TimeCritical);
    const auto isOdd = std::make_shared<bool>(false);
    const auto next = [isOdd] {
        *isOdd = !*isOdd;
        return *isOdd;
    };
    return {
        {"RelativeDateFormatter()",
         [] {
             const RelativeDateFormatter formatter(RelativeDateFormat::TimeCritical);
             return QString();
         },
         [] {
             floors::lookAt(device().regionFile());
             const QDateTime now = QDateTime::currentDateTime();
             tablePatterns(locale);
             return QString();
         },
         Entry::Same},
        {"RelativeDateFormatter::setLocale",
         [ours, next] {
             ours->setLocale(next() ? QLocale(QStringLiteral("de_DE")) : locale);
             return QString();
         },
         [next] {
             tablePatterns(next() ? QLocale(QStringLiteral("de_DE")) : locale);
             return QString();
         },
         Entry::Same},
        {"RelativeDateFormatter::setAnchorTime",
         [ours, next] {
             ours->setAnchorTime(next() ? anchor : anchor.addSecs(1));
             return QString();
         },
         [next, copies = std::make_shared<std::vector<QDateTime>>(25), sender = std::make_shared<QObject>()] {
             const QDateTime newAnchor = next() ? anchor : anchor.addSecs(1);
             if (newAnchor != copies->front()) {
                 std::fill(copies->begin(), copies->end(), newAnchor);
                 QMetaObject::activate(sender.get(), &QObject::staticMetaObject, 0,
                                       nullptr); // a signal without receivers
             }
             return QString();
         },
         Entry::Same},
    };
}

// The calls for one slot: the tests up to its range, then its phrase and its pattern.
struct SlotCalls
{
    const char* name;
    RelativeDateFormat::Type type;
    QDateTime moment;
    std::vector<floors::Distance> tests;
    std::function<QString()> pattern;
};

QString quoted(QString phrase)
{
    const QLatin1Char apostrophe('\'');
    return apostrophe + phrase.replace(apostrophe, QLatin1String("''")) + apostrophe;
}

std::function<QString()> fixedPattern(const QString& skeleton)
{
    return [pattern = floors::bestPattern(locale, skeleton)] { return pattern; };
}

std::vector<SlotCalls> slotCalls()
{
    const floors::Distance years = {UCAL_YEAR, false};
    const floors::Distance days = {UCAL_DAY_OF_YEAR, false};
    const floors::Distance hours = {UCAL_HOUR, true};
    const floors::Distance minutes = {UCAL_MINUTE, true};
    const floors::Distance wholeDays = {UCAL_DATE, true};
    const auto dayPhrase = [=](const QDateTime& moment) {
        return floors::dayPhrase(locale, floors::measure(days, anchor, moment));
    };
    const QDateTime yesterday = anchor.addDays(-1);
    const QDateTime today = anchor.addSecs(-3600);
    const QDateTime hoursAgo = anchor.addSecs(-3 * 3600);
    const QDateTime minutesAgo = anchor.addSecs(-5 * 60);
    const QDateTime minutesAhead = anchor.addSecs(5 * 60);
    const auto critical = RelativeDateFormat::TimeCritical;
    const auto coarse = RelativeDateFormat::NonTimeCritical;
    const auto countedMinutes = [=](const QDateTime& moment) {
        return quoted(floors::countedPhrase(locale, "minute-past", "minute-future",
                                            floors::remainder(UCAL_HOUR, UCAL_MINUTE, anchor, moment)));
    };
    return {
        {"another year", critical, anchor.addYears(-1), {years}, fixedPattern(QStringLiteral("yMMMM"))},
        {"month and day", critical, anchor.addDays(-10), {years, days}, fixedPattern(QStringLiteral("MMMd"))},
        {"weekday and time", critical, anchor.addDays(-3), {years, days, days}, fixedPattern(QStringLiteral("EHmm"))},
        {"yesterday and time",
         critical,
         yesterday,
         {years, days, days, days},
         [=] { return quoted(dayPhrase(yesterday)) + QStringLiteral(" HH:mm"); }},
        {"hours ago",
         critical,
         hoursAgo,
         {years, days, days, days, hours},
         [=] {
             return quoted(floors::countedPhrase(locale, "hour-past", "hour-future",
                                                 floors::remainder(UCAL_DATE, UCAL_HOUR, anchor, hoursAgo)));
         }},
        {"minutes ago",
         critical,
         minutesAgo,
         {years, days, days, days, hours, minutes},
         [=] { return countedMinutes(minutesAgo); }},
        {"minutes ahead",
         critical,
         minutesAhead,
         {years, days, days, days, hours, minutes},
         [=] { return countedMinutes(minutesAhead); }},
        {"weekday", coarse, anchor.addDays(-3), {years, days, days}, fixedPattern(QStringLiteral("EEEE"))},
        {"today", coarse, today, {years, days, days, wholeDays}, [=] { return quoted(dayPhrase(today)); }},
    };
}

Entry slotEntry(const SlotCalls& calls)
{
    const auto ours = std::make_shared<RelativeDateFormatter>(calls.type);
    ours->setAnchorTime(anchor);
    return {std::string("RelativeDateFormatter::format ") + calls.name,
            [ours, moment = calls.moment] { return ours->format(moment); },
            [calls] {
                for (const floors::Distance& test : calls.tests) {
                    floors::measure(test, anchor, calls.moment);
                }
                return floors::write(calls.pattern(), calls.moment, locale);
            },
            Entry::Same};
}

// formatAll() and ICU's reused formatter. Returns the last text.
std::vector<Entry> listEntries()
{
    std::vector<Entry> all;
    for (const List& list : lists()) {
        const auto side = [moments = list.moments(1000)](const List::Side& chosen) {
            return [moments, texts = chosen.prepare()] { return texts(moments).last(); };
        };
        all.push_back({"formatAll 1,000 " + list.name, side(list.sides[0]), side(list.sides[1]), Entry::Same});
    }
    return all;
}

std::vector<Entry> makeEntries()
{
    device();
    std::vector<Entry> all = patternEntries();
    const auto add = [&all](const std::vector<Entry>& more) { all.insert(all.end(), more.begin(), more.end()); };
    add(customEntries("yMMMd", dateSkeleton));
    add(customEntries("yMMMdhm", timeSkeleton));
    add(customEntries("yMMMdhmz", zoneSkeleton));
    add({setSkeletonEntry()});
    add(relativeDateEntries());
    add(listEntries());
    for (const SlotCalls& calls : slotCalls()) {
        add({slotEntry(calls)});
    }
    return all;
}

} // namespace

const std::vector<Entry>& entries()
{
    static const std::vector<Entry> all = makeEntries();
    return all;
}

std::vector<std::string> mismatches()
{
    std::vector<std::string> names;
    for (const Entry& entry : entries()) {
        if (entry.texts == Entry::Same && entry.ours() != entry.floor()) {
            names.push_back(entry.name);
        }
    }
    return names;
}
