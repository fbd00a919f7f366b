// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "commands/Commands.h"

#include "Arguments.h"
#include "commands/OtherRegion.h"
#include "device/Device.h"
#include "device/LibrarySettings.h"
#include "terminal/Console.h"
#include "texts/LiveText.h"
#include "texts/MomentReader.h"
#include "texts/Skeleton.h"

namespace zel::tool {

namespace {

// `watch`: a text that follows the device.
class WatchCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace

CommandHelp WatchCommand::help() const
{
    return {QStringLiteral("watch"), QStringLiteral("SKELETON [MOMENT]"),
            QStringLiteral("Print a text whenever a setting changes."),
            QStringLiteral("Formats MOMENT (default: the current time of each line) with the fields that\n"
                           "SKELETON names, and prints it again whenever the clock, the time zone or the region\n"
                           "of the device changes, until interrupted.\n\n") +
                Skeleton::description(),
            QStringLiteral("watch hm\n"
                           "watch yMMMdhmz 2012-09-03T22:30Z")};
}

QList<QCommandLineOption> WatchCommand::options() const
{
    return {OtherRegion::option()};
}

ExitStatus WatchCommand::run(const Arguments& arguments, Console& console) const
{
    const QStringList words = arguments.positional();
    const QString skeleton = Skeleton::from(words);
    if (words.size() > 2) {
        throw Failure::usage(QStringLiteral("one moment at most, not also ") + quoted(words.at(2)));
    }
    Device::requireReadable();
    std::optional<QDateTime> moment;
    if (words.size() == 2) {
        moment = MomentReader(MomentReader::Kept, Device::timeZone()).read(words.at(1));
    }
    const OtherRegion region(arguments);
    readSettings();
    try {
        LiveText(skeleton, moment, console, arguments.json()).run();
    } catch (const Console::Interrupted&) {
        // An interrupt is the normal end.
    }
    return Worked;
}

std::unique_ptr<Command> watchCommand()
{
    return std::make_unique<WatchCommand>();
}

} // namespace zel::tool
