// Formats with anything at all as a skeleton, in locales that write dates in different ways. A formatter that is valid
// has a text to show, and one that is not has none.

#include "Require.h"
#include "support/SettingsRoot.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <QtCore/QDateTime>
#include <string>
#include <utility>
#include <zel/utility/i18n/CustomDateFormatter.h>

using zel::utility::i18n::CustomDateFormatter;

namespace {

constexpr std::array<const char*, 8> regions{"en_US", "de_DE", "fr_CA", "ja_JP", "zh_TW", "ar_EG", "th_TH", "fa_IR"};

// ICU itself is not instrumented and gives the fuzzer no hints, so bytes are made letters and runs of letters here.
QString skeletonOf(const std::string& bytes)
{
    static const QString alphabet = QStringLiteral("GyYuUrQqMLwWdDFgEecabBhHkKjJCmsSAzZOvVXxIlnopPtTfiNR' ,.:-/09@_") +
                                    QChar(0xe9) + QChar(0x65e5) + QChar(0xd83d) + QChar(0x202f) + QChar(0);
    QString skeleton;
    for (const char byte : bytes) {
        const auto number = static_cast<unsigned char>(byte);
        const bool repeats = number >= 0xc0 && !skeleton.isEmpty();
        skeleton += repeats ? QString(number & 0x1f, skeleton.back()) : QString(alphabet.at(number % alphabet.size()));
    }
    return skeleton;
}

void requireText(const CustomDateFormatter& formatter, const QDateTime& moment)
{
    const QString text = formatter.format(moment);
    ZEL_REQUIRE(text.isNull() != formatter.isValid());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const SettingsRoot settings;
    [[maybe_unused]] static const bool is24Hour = settings.setClock("24");
    static const char* region = nullptr;
    FuzzedDataProvider input(data, size);
    if (const char* const next = input.PickValueInArray(regions); std::exchange(region, next) != next) {
        ZEL_REQUIRE(settings.setRegion(next));
    }
    const QDateTime moment = QDateTime::fromMSecsSinceEpoch(input.ConsumeIntegral<std::int64_t>()).toUTC();
    const QString first = skeletonOf(input.ConsumeRandomLengthString());
    const QString second = skeletonOf(input.ConsumeRemainingBytesAsString());

    CustomDateFormatter formatter(first);
    requireText(formatter, moment);
    formatter.setSkeleton(second);
    ZEL_REQUIRE(formatter.skeleton() == second);
    requireText(formatter, moment);
    return 0;
}
