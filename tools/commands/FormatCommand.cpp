// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "commands/Commands.h"

#include "Arguments.h"
#include "commands/OtherRegion.h"
#include "device/Device.h"
#include "device/LibrarySettings.h"
#include "texts/Answers.h"
#include "texts/Moments.h"
#include "texts/Skeleton.h"
#include <zel/utility/i18n/CustomDateFormatter.h>

namespace zel::tool {

namespace {

// `format`: moments formatted by a skeleton.
class FormatCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace

CommandHelp FormatCommand::help() const
{
    return {QStringLiteral("format"), QStringLiteral("SKELETON [MOMENT...]"),
            QStringLiteral("Format moments with the fields that a skeleton names."),
            QStringLiteral("Formats each MOMENT (default: now) with the fields that SKELETON names, for the\n"
                           "region and clock of the device, one text per line. '-' reads moments from standard\n"
                           "input, one per line; invalid lines are reported and skipped.\n\n") +
                Skeleton::description() +
                QStringLiteral("\n\nMoments are ISO 8601 (2012-09-03, 2012-09-03T10:30, 2012-09-03T10:30:00.500Z,\n"
                               "2012-09-03T10:30+02:00, 20120903T083000Z), RFC 2822 ('Mon, 3 Sep 2012 10:30:00\n"
                               "+0200', without two-digit years and zones such as EST) or seconds since 1970\n"
                               "(@1346661000). Without an offset they are local time. Zones, and seconds since\n"
                               "1970, use the time zone of the device (default: GMT)."),
            QStringLiteral("format yMMMMEEEEd\n"
                           "format yMMMMEEEEd 2012-09-03 --locale fr_FR\n"
                           "format hm 2012-09-03T22:30 --device region=en_US,hour-format=12\n"
                           "format yMdhmz 2012-09-03T22:30Z --device time-zone=Asia/Tokyo\n"
                           "format yMMMd - < moments.txt")};
}

QList<QCommandLineOption> FormatCommand::options() const
{
    return {OtherRegion::option()};
}

ExitStatus FormatCommand::run(const Arguments& arguments, Console& console) const
{
    const QStringList words = arguments.positional();
    const QString skeleton = Skeleton::from(words);
    Device::requireReadable();
    const Moments moments(words.mid(1), MomentReader(MomentReader::Kept, Device::timeZone()));
    const OtherRegion region(arguments);
    readSettings();
    const zel::utility::i18n::CustomDateFormatter formatter(skeleton);
    if (!formatter.isValid()) {
        throw Failure(QStringLiteral("no pattern for the skeleton ") + quoted(skeleton));
    }
    const Answers answers(console, arguments.json());
    Device::keepLocalTime();
    return moments.format(
        console, arguments.json(), [&](const QList<QDateTime>& list) { return formatter.formatAll(list); },
        [&](const QDateTime& moment, const QString& text) { answers.write(moment, text); });
}

std::unique_ptr<Command> formatCommand()
{
    return std::make_unique<FormatCommand>();
}

} // namespace zel::tool
