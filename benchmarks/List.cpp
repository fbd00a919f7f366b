// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "List.h"

#include "Floor.h"
#include "Moments.h"
#include <memory>
#include <unicode/reldatefmt.h>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

namespace {

using namespace zel::utility::i18n;

constexpr int few = 1000; // ways with a constant cost per moment are not measured with more

const QLocale locale(QStringLiteral("en_US"));
const QDateTime anchor(QDate(2012, 9, 3), QTime(10, 30));
const QString skeleton = QStringLiteral("yMMMdHm");

// One text after the other.
template <typename Write>
List::Texts each(Write write)
{
    return [write](const QList<QDateTime>& moments) {
        QStringList texts;
        texts.reserve(moments.size());
        for (const QDateTime& moment : moments) {
            texts.append(write(moment));
        }
        return texts;
    };
}

template <typename Formatter>
List::Side all(std::function<std::shared_ptr<Formatter>()> make)
{
    return {"formatAll", [make]() -> List::Texts {
                return [formatter = make()](const QList<QDateTime>& moments) { return formatter->formatAll(moments); };
            }};
}

template <typename Formatter>
List::Side oneByOne(std::function<std::shared_ptr<Formatter>()> make)
{
    return {
        "format",
        [make] { return each([formatter = make()](const QDateTime& moment) { return formatter->format(moment); }); },
        few};
}

std::shared_ptr<RelativeDateFormatter> relativeFormatter()
{
    auto formatter = std::make_shared<RelativeDateFormatter>(RelativeDateFormat::TimeCritical);
    formatter->setLocale(locale);
    formatter->setAnchorTime(anchor);
    return formatter;
}

std::shared_ptr<CustomDateFormatter> customFormatter()
{
    return std::make_shared<CustomDateFormatter>(skeleton);
}

// ICU's formatter is given unit, count and direction: it has no table that chooses them.
List::Texts icuRelative()
{
    UErrorCode status = U_ZERO_ERROR;
    const auto formatter = std::make_shared<icu::RelativeDateTimeFormatter>(icu::Locale::getUS(), status);
    return [formatter](const QList<QDateTime>& moments) {
        QStringList texts;
        texts.reserve(moments.size());
        for (int i = 0; i < moments.size(); ++i) {
            const auto minutes = static_cast<double>(moments::minutesAway(i));
            UErrorCode written = U_ZERO_ERROR;
            icu::UnicodeString text;
            formatter->format(std::abs(minutes), minutes < 0 ? UDAT_DIRECTION_LAST : UDAT_DIRECTION_NEXT,
                              UDAT_RELATIVE_MINUTES, text, written);
            texts.append(QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length()));
        }
        return texts;
    };
}

List::Side icuDates(const QString& fields)
{
    return {"icu::SimpleDateFormat", [fields] {
                const std::shared_ptr<icu::SimpleDateFormat> kept = floors::formatter(locale, fields);
                kept->adoptTimeZone(icu::TimeZone::getGMT()->clone());
                return each([kept](const QDateTime& moment) { return floors::formatKept(*kept, moment); });
            }};
}

List::Side qtDates(const QString& pattern)
{
    return {"QLocale::toString", [pattern] {
                return each([pattern](const QDateTime& moment) { return locale.toString(moment, pattern); });
            }};
}

} // namespace

const std::vector<List>& lists()
{
    static const std::vector<List> all = {
        {"minutes",
         [](int count) { return moments::minutesFrom(anchor, count); },
         {::all<RelativeDateFormatter>(relativeFormatter),
          {"icu::RelativeDateTimeFormatter", icuRelative},
          oneByOne<RelativeDateFormatter>(relativeFormatter)}},
        {"dates",
         [](int count) { return moments::daysFrom(anchor, count); },
         {::all<RelativeDateFormatter>(relativeFormatter), icuDates(QStringLiteral("MMMd")),
          qtDates(QStringLiteral("MMM d")), oneByOne<RelativeDateFormatter>(relativeFormatter)}},
        {"custom",
         [](int count) { return moments::daysFrom(anchor, count); },
         {::all<CustomDateFormatter>(customFormatter), icuDates(skeleton),
          qtDates(QStringLiteral("MMM d, yyyy, HH:mm")), oneByOne<CustomDateFormatter>(customFormatter)}},
    };
    return all;
}

std::vector<std::string> listMismatches()
{
    std::vector<std::string> names;
    for (const List& list : lists()) {
        const QList<QDateTime> moments = list.moments(few);
        const QStringList texts = list.sides.front().prepare()(moments);
        for (const List::Side& side : list.sides) {
            if (side.prepare()(moments) != texts) {
                names.push_back(list.name + ", " + side.name);
            }
        }
    }
    return names;
}
