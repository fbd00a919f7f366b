// Formats moments in one call and one by one: texts and messages have to be the same, in any state of the formatters.

#include "MomentInput.h"
#include "Require.h"
#include "support/SettingsRoot.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <QtCore/QStringList>
#include <utility>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

QStringList messages;

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

/** Kept, as a formatter takes milliseconds to make. */
RelativeDateFormatter& formatterOf(int type)
{
    static RelativeDateFormatter critical(RelativeDateFormat::TimeCritical);
    static RelativeDateFormatter coarse(RelativeDateFormat::NonTimeCritical);
    static RelativeDateFormatter invalid(static_cast<RelativeDateFormat::Type>(99));
    return type == RelativeDateFormat::TimeCritical ? critical
                                                    : (type == RelativeDateFormat::NonTimeCritical ? coarse : invalid);
}

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
    constexpr std::size_t longestSkeleton = 12;
    constexpr int firstYear = 1;
    FuzzedDataProvider input(data, size);
    const std::string skeleton = input.ConsumeRandomLengthString(longestSkeleton);
    RelativeDateFormatter& formatter = formatterOf(input.PickValueInArray(inputs::types));
    formatter.setLocale(QLocale(QLatin1String(input.PickValueInArray(inputs::locales))));
    formatter.setClockFormat(static_cast<ClockFormat::Type>(input.PickValueInArray(inputs::clocks)));
    formatter.setWording(input.ConsumeBool() ? RelativeDateWording::Natural : RelativeDateWording::Exact);
    const QDateTime anchor = inputs::moment(input, QDateTime(QDate(2012, 5, 16), QTime(10, 30), Qt::UTC), firstYear);
    formatter.setAnchorTime(anchor);
    QList<QDateTime> moments;
    while (input.remaining_bytes() > 0) {
        moments.append(inputs::moment(input, anchor, firstYear));
    }
    requireSameTexts(formatter, moments);
    if (!skeleton.empty()) {
        requireSameTexts(CustomDateFormatter(QString::fromStdString(skeleton)), moments);
    }
    return 0;
}
