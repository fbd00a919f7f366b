// Formats with anything at all as a skeleton, in locales that write dates in different ways. A formatter that is valid
// has a text to show, and one that is not has none.

#include "Require.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <fuzzer/FuzzedDataProvider.h>
#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <string>
#include <zel/utility/i18n/CustomDateFormatter.h>

using zel::utility::i18n::CustomDateFormatter;

namespace {

constexpr std::array<const char*, 8> regions{"en_US", "de_DE", "fr_CA", "ja_JP", "zh_TW", "ar_EG", "th_TH", "fa_IR"};

/** The settings root of the process: a clock of 24 hours, and a region that changes from one input to the next. */
class Settings
{
public:
    Settings()
    {
        qputenv("ZEL_PPS_ROOT", QFile::encodeName(m_root.path()));
        ZEL_REQUIRE(QDir().mkpath(m_root.path() + QLatin1String("/pps/system")));
        write("settings", "hourFormat:n:24");
    }

    void setRegion(const char* region)
    {
        if (region != m_region) {
            m_region = region;
            write("locale", QByteArray("region::") + region);
        }
    }

private:
    void write(const char* name, const QByteArray& attribute) const
    {
        QFile file(m_root.path() + QLatin1String("/pps/system/") + QLatin1String(name));
        ZEL_REQUIRE(file.open(QIODevice::WriteOnly) &&
                    file.write('@' + QByteArray(name) + '\n' + attribute + '\n') > 0);
    }

    QTemporaryDir m_root;
    const char* m_region = nullptr;
};

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
    static Settings settings;
    FuzzedDataProvider input(data, size);
    settings.setRegion(input.PickValueInArray(regions));
    const QDateTime moment = QDateTime::fromMSecsSinceEpoch(input.ConsumeIntegral<std::int64_t>(), Qt::UTC);
    const QString first = skeletonOf(input.ConsumeRandomLengthString());
    const QString second = skeletonOf(input.ConsumeRemainingBytesAsString());

    CustomDateFormatter formatter(first);
    requireText(formatter, moment);
    formatter.setSkeleton(second);
    ZEL_REQUIRE(formatter.skeleton() == second);
    requireText(formatter, moment);
    return 0;
}
