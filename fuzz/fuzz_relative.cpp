// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Calls the setters of a relative date formatter in any order. It emits changed() when it changes, and formatAll(),
// which counts separately, gives the texts and messages of format().

#include "Require.h"
#include "support/SettingsRoot.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <QtCore/QStringList>
#include <utility>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

constexpr std::array<const char*, 12> locales{"en_US", "de_DE", "fr_CA", "ja_JP", "zh_TW", "ar_EG",
                                              "th_TH", "fa_IR", "hi_IN", "ko_KR", "pl_PL", "he_IL"};
constexpr std::array<int, 5> clocks{ClockFormat::ApplyUserFormat, ClockFormat::ApplyLocaleFormat,
                                    ClockFormat::Use12hourClock, ClockFormat::Use24hourClock, 7};
constexpr std::array<int, 3> types{RelativeDateFormat::TimeCritical, RelativeDateFormat::NonTimeCritical, 99};
constexpr std::array<int, 2> wordings{RelativeDateWording::Exact, RelativeDateWording::Natural};

QStringList messages;

// Both ways to format moments; they must agree.
template <typename Formatter>
void requireSameTexts(const Formatter& formatter, const QList<QDateTime>& moments)
{
    messages.clear();
    QStringList oneByOne;
    for (const QDateTime& moment : moments) {
        oneByOne.append(formatter.format(moment));
    }
    const QStringList expected = std::exchange(messages, {});
    const QStringList texts = formatter.formatAll(moments);
    ZEL_REQUIRE(texts == oneByOne);
    ZEL_REQUIRE(std::equal(texts.begin(), texts.end(), oneByOne.begin(),
                           [](const QString& a, const QString& b) { return a.isNull() == b.isNull(); }));
    ZEL_REQUIRE(messages == expected);
}

// In the years 1 to 12000, under any offset, and often near another moment.
QDateTime momentFrom(FuzzedDataProvider& input, const QDateTime& other)
{
    static const QDateTime first(QDate(1, 1, 1), QTime(0, 0), Qt::UTC);
    constexpr qint64 minute = 60'000;
    constexpr qint64 day = 24 * 60 * minute;
    constexpr int farthest = 14 * 3600;
    QDateTime moment;
    switch (input.ConsumeIntegralInRange(0, 3)) {
    case 0:
        moment = first.addMSecs(input.ConsumeIntegralInRange<qint64>(0, 12'000 * 365 * day));
        break;
    case 1:
        moment = other.toUTC().addMSecs(input.ConsumeIntegralInRange<qint64>(-5 * day, 5 * day));
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

QList<QDateTime> momentsFrom(FuzzedDataProvider& input, const QDateTime& other)
{
    QList<QDateTime> moments;
    for (int count = input.ConsumeIntegralInRange(0, 8); count > 0; --count) {
        moments.append(momentFrom(input, other));
    }
    return moments;
}

class Stepper
{
public:
    Stepper() : m_formatter(RelativeDateFormat::TimeCritical)
    {
        ZEL_REQUIRE(
            QObject::connect(&m_formatter, &RelativeDateFormatter::changed, &m_formatter, [this] { ++m_changes; }));
        m_formatter.setAnchorTime(QDateTime(QDate(2012, 9, 3), QTime(10, 30), Qt::UTC));
        m_changes = 0;
    }

    void step(FuzzedDataProvider& input)
    {
        switch (input.ConsumeIntegralInRange(0, 6)) {
        case 0:
            setType(static_cast<RelativeDateFormat::Type>(input.PickValueInArray(types)));
            break;
        case 1:
            set(QLocale(QLatin1String(input.PickValueInArray(locales))), &RelativeDateFormatter::locale,
                &RelativeDateFormatter::setLocale);
            break;
        case 2:
            set(static_cast<ClockFormat::Type>(input.PickValueInArray(clocks)), &RelativeDateFormatter::clockFormat,
                qOverload<ClockFormat::Type>(&RelativeDateFormatter::setClockFormat));
            break;
        case 3:
            set(static_cast<RelativeDateWording::Type>(input.PickValueInArray(wordings)),
                &RelativeDateFormatter::wording, &RelativeDateFormatter::setWording);
            break;
        case 4:
            set(momentFrom(input, m_formatter.anchorTime()), &RelativeDateFormatter::anchorTime,
                &RelativeDateFormatter::setAnchorTime);
            break;
        case 5:
            requireSameTexts(CustomDateFormatter(QString::fromStdString(input.ConsumeRandomLengthString(12))),
                             momentsFrom(input, m_formatter.anchorTime()));
            break;
        default:
            requireSameTexts(m_formatter, momentsFrom(input, m_formatter.anchorTime()));
        }
    }

private:
    template <typename Value, typename Getter, typename Argument>
    void set(const Value& value, Getter getter, void (RelativeDateFormatter::*setter)(Argument))
    {
        const bool isOther = value != (m_formatter.*getter)();
        (m_formatter.*setter)(value);
        ZEL_REQUIRE((m_formatter.*getter)() == value);
        ZEL_REQUIRE(std::exchange(m_changes, 0) == (isOther ? 1 : 0));
    }

    // A new table starts from the present time, which differs from run to run.
    void setType(RelativeDateFormat::Type type)
    {
        const QDateTime anchor = m_formatter.anchorTime();
        set(type, &RelativeDateFormatter::type, &RelativeDateFormatter::setType);
        m_formatter.setAnchorTime(anchor);
        m_changes = 0;
    }

    RelativeDateFormatter m_formatter;
    int m_changes = 0;
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    qInstallMessageHandler(
        [](QtMsgType type, const QMessageLogContext&, const QString& text) { messages.append(text + QChar(type)); });
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const SettingsRoot settings;
    [[maybe_unused]] static const bool isSet =
        settings.setClock("24") && settings.setRegion("en_US") && settings.setTimeZone("America/New_York");
    constexpr int mostSteps = 64;
    FuzzedDataProvider input(data, size);
    Stepper stepper;
    for (int steps = 0; steps < mostSteps && input.remaining_bytes() > 0; ++steps) {
        stepper.step(input);
    }
    return 0;
}
