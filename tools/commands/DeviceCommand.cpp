// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "commands/Commands.h"

#include "Arguments.h"
#include "device/Assignments.h"
#include "device/Device.h"
#include "terminal/Console.h"
#include "terminal/Table.h"

namespace zel::tool {

namespace {

void showOne(const QString& key, const Arguments& arguments, Console& console)
{
    Assignments::requireKey(key);
    const std::optional<QString> value = Device::get(key);
    if (!value) {
        throw Failure(key + QStringLiteral(" is not set"));
    }
    if (arguments.json()) {
        console.json({{key, *value}});
    } else {
        console.line(printable(*value));
    }
}

void showAll(const Arguments& arguments, Console& console)
{
    QJsonObject object;
    Table table;
    for (const QString& key : Assignments::keys()) {
        const std::optional<QString> value = Device::get(key);
        object[key] = value ? QJsonValue(*value) : QJsonValue();
        table.add({key, printable(value.value_or(QStringLiteral("not set")))});
    }
    if (arguments.json()) {
        console.json(object);
    } else {
        table.write(console);
    }
}

void get(const QStringList& keys, const Arguments& arguments, Console& console)
{
    if (keys.size() > 1) {
        throw Failure::usage(QStringLiteral("'get' takes at most one key"));
    }
    if (keys.isEmpty()) {
        showAll(arguments, console);
    } else {
        showOne(keys.first(), arguments, console);
    }
}

void set(const QStringList& words, const Arguments& arguments)
{
    if (words.isEmpty()) {
        throw Failure::usage(QStringLiteral("'set' needs KEY=VALUE"));
    }
    Device::set(Assignments::parse(words),
                {arguments.has(QStringLiteral("replace")), arguments.has(QStringLiteral("create"))});
}

void unset(const QStringList& keys)
{
    if (keys.isEmpty()) {
        throw Failure::usage(QStringLiteral("'unset' needs a key"));
    }
    for (const QString& key : keys) {
        Assignments::requireKey(key);
    }
    Device::unset(keys);
}

// `device`: the settings of the device.
class DeviceCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    QStringList proposals(const QStringList& before, const QString& word) const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace

CommandHelp DeviceCommand::help() const
{
    return {QStringLiteral("device"), QStringLiteral("[get [KEY] | set KEY=VALUE... | unset KEY...]"),
            QStringLiteral("Show or change the settings of the device."),
            QStringLiteral("Shows all settings or the value of one, sets them, or unsets them. Running programs\n"
                           "follow immediately. The settings are:\n\n"
                           "  hour-format   12 or 24: the clock\n"
                           "  time-zone     a time zone that ICU knows, such as Europe/Berlin\n"
                           "  region        the locale for dates, times and numbers, such as de_DE\n\n") +
                Device::howToChange(),
            QStringLiteral("device\n"
                           "device get region\n"
                           "device set hour-format=24 time-zone=Europe/Berlin\n"
                           "device unset region")};
}

QList<QCommandLineOption> DeviceCommand::options() const
{
    return {{QStringLiteral("replace"),
             QStringLiteral("With set: overwrite a settings object that cannot be\ndecoded, with the "
                            "given settings only.")},
            {QStringLiteral("create"), QStringLiteral("With set: create /pps on a machine without it.")}};
}

QStringList DeviceCommand::proposals(const QStringList& before, const QString& word) const
{
    if (before.isEmpty()) {
        return {QStringLiteral("get"), QStringLiteral("set"), QStringLiteral("unset")};
    }
    return before.first() == QLatin1String("set") ? Assignments::proposals(word) : Assignments::keys();
}

ExitStatus DeviceCommand::run(const Arguments& arguments, Console& console) const
{
    const QStringList words = arguments.positional();
    const QString action = words.value(0, QStringLiteral("get"));
    for (const char* const option : {"replace", "create"}) {
        if (arguments.has(QLatin1String(option)) && action != QLatin1String("set")) {
            throw Failure::usage(QStringLiteral("--%1 is for 'set' only").arg(QLatin1String(option)));
        }
    }
    if (action == QLatin1String("get")) {
        get(words.mid(1), arguments, console);
    } else if (action == QLatin1String("set")) {
        set(words.mid(1), arguments);
    } else if (action == QLatin1String("unset")) {
        unset(words.mid(1));
    } else {
        throw Failure::usage(quoted(action) + QStringLiteral(" is neither get, set nor unset"));
    }
    return Worked;
}

std::unique_ptr<Command> deviceCommand()
{
    return std::make_unique<DeviceCommand>();
}

} // namespace zel::tool
