// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Formats with arbitrary skeletons, in locales that write dates in different ways, under both clocks and in several
// time zones. A valid formatter gives the text of ICU, an invalid one none.

#include "Require.h"
#include "support/SettingsRoot.h"

#include "bridge/Locale.h"
#include "bridge/String.h"
#include <array>
#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <map>
#include <memory>
#include <QtCore/QDateTime>
#include <QtCore/QTimeZone>
#include <string>
#include <unicode/dtptngen.h>
#include <unicode/smpdtfmt.h>
#include <utility>
#include <zel/utility/i18n/CustomDateFormatter.h>

using namespace zel::utility::i18n;

namespace {

constexpr std::array<const char*, 2> clocks{"12", "24"};
constexpr std::array<const char*, 4> zones{"Europe/Berlin", "Asia/Kolkata", "America/St_Johns", "Pacific/Apia"};
constexpr std::array<const char*, 8> regions{"en_US", "de_DE", "fr_CA", "ja_JP", "zh_TW", "ar_EG", "th_TH", "fa_IR"};

// ICU is not instrumented and does not guide the fuzzer, so bytes are mapped to runs of letters here.
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

// A setting of the device, written if it changes.
class Setting
{
public:
    using Set = bool (SettingsRoot::*)(const QByteArray&) const;

    explicit Setting(Set set) : m_set(set) {}

    const char* take(const char* value)
    {
        static const SettingsRoot settings;
        if (std::exchange(m_value, value) != value) {
            ZEL_REQUIRE((settings.*m_set)(value));
        }
        return value;
    }

private:
    Set m_set;
    const char* m_value = nullptr;
};

// The settings of the device, and the text of ICU for a skeleton under them.
struct Device
{
    const char* region;
    const char* clock;
    const char* zone;

    QString text(const QString& skeleton, const QDateTime& moment) const
    {
        UErrorCode status = U_ZERO_ERROR;
        QString clocked = skeleton;
        const bool is24Hour = clock == clocks[1];
        clocked.replace(QLatin1Char(is24Hour ? 'h' : 'H'), QLatin1Char(is24Hour ? 'H' : 'h'));
        const icu::Locale locale = zel::utility::i18n::Locale::toICU(QLocale(QLatin1String(region)));
        auto& generator = generators()[region];
        if (!generator) {
            generator.reset(icu::DateTimePatternGenerator::createInstance(locale, status));
        }
        icu::SimpleDateFormat format(generator->getBestPattern(String::toICU(clocked), status), locale, status);
        if (U_FAILURE(status)) {
            return {};
        }
        const bool showsZone = skeleton.contains(QLatin1Char('z'), Qt::CaseInsensitive) ||
                               skeleton.contains(QLatin1Char('v'), Qt::CaseInsensitive);
        format.adoptTimeZone(icu::TimeZone::createTimeZone(showsZone ? zone : "GMT"));
        icu::UnicodeString text;
        format.format(static_cast<UDate>(moment.toMSecsSinceEpoch()), text);
        return text.isEmpty() ? QString(QLatin1String("")) : String::toQt(text);
    }

    void requireText(const CustomDateFormatter& formatter, const QDateTime& moment) const
    {
        const QString shown = formatter.format(moment);
        ZEL_REQUIRE(shown.isNull() != formatter.isValid());
        ZEL_REQUIRE(shown == text(formatter.skeleton(), moment));
    }

private:
    using Generators = std::map<std::string, std::unique_ptr<icu::DateTimePatternGenerator>>;
    static Generators& generators()
    {
        static Generators known;
        return known;
    }
};

} // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Setting region(&SettingsRoot::setRegion);
    static Setting clock(&SettingsRoot::setClock);
    static Setting zone(&SettingsRoot::setTimeZone);
    FuzzedDataProvider input(data, size);
    const Device device{region.take(input.PickValueInArray(regions)), clock.take(input.PickValueInArray(clocks)),
                        zone.take(input.PickValueInArray(zones))};
    const QDateTime moment =
        QDateTime::fromMSecsSinceEpoch(input.ConsumeIntegral<std::int64_t>() >> 10, QTimeZone::utc());
    const QString first = skeletonOf(input.ConsumeRandomLengthString());
    const QString second = skeletonOf(input.ConsumeRemainingBytesAsString());

    CustomDateFormatter formatter(first);
    device.requireText(formatter, moment);
    formatter.setSkeleton(second);
    ZEL_REQUIRE(formatter.skeleton() == second);
    device.requireText(formatter, moment);
    return 0;
}
