#ifndef ZEL_FUZZ_MOMENTINPUT_H
#define ZEL_FUZZ_MOMENTINPUT_H

#include <array>
#include <fuzzer/FuzzedDataProvider.h>
#include <QtCore/QDateTime>
#include <zel/utility/i18n/ClockFormat.h>
#include <zel/utility/i18n/RelativeDateFormat.h>

/** What the targets that format moments choose from. */
namespace inputs {

constexpr std::array<const char*, 12> locales{"en_US", "de_DE", "fr_CA", "ja_JP", "zh_TW", "ar_EG",
                                              "th_TH", "fa_IR", "hi_IN", "ko_KR", "pl_PL", "he_IL"};
constexpr std::array<int, 5> clocks{
    zel::utility::i18n::ClockFormat::ApplyUserFormat, zel::utility::i18n::ClockFormat::ApplyLocaleFormat,
    zel::utility::i18n::ClockFormat::Use12hourClock, zel::utility::i18n::ClockFormat::Use24hourClock, 7};
constexpr std::array<int, 3> types{zel::utility::i18n::RelativeDateFormat::TimeCritical,
                                   zel::utility::i18n::RelativeDateFormat::NonTimeCritical, 99};

constexpr qint64 minute = 60'000;
constexpr qint64 hour = 60 * minute;

/** A moment in the years from a first one on, under any offset, often near another moment, sometimes invalid. */
inline QDateTime moment(FuzzedDataProvider& input, const QDateTime& other, int firstYear)
{
    constexpr qint64 range = qint64{8000} * 365 * 24 * hour;
    constexpr qint64 near = 5 * 24 * hour;
    constexpr int farthest = 14 * 3600;
    QDateTime moment;
    switch (input.ConsumeIntegralInRange(0, 3)) {
    case 0:
        moment = QDateTime(QDate(firstYear, 1, 1), QTime(0, 0), Qt::UTC)
                     .addMSecs(input.ConsumeIntegralInRange<qint64>(0, range));
        break;
    case 1:
        moment = other.toUTC().addMSecs(input.ConsumeIntegralInRange<qint64>(-near, near));
        break;
    case 2:
        moment = other.toUTC().addMSecs(input.ConsumeIntegralInRange<qint64>(-100, 100) * minute);
        break;
    default:
        return {};
    }
    const int offset = input.ConsumeBool() ? input.ConsumeIntegralInRange(-farthest, farthest) : 0;
    return moment.toOffsetFromUtc(offset);
}

} // namespace inputs

#endif
