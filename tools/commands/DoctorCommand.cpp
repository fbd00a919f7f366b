// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "commands/Commands.h"

#include "Arguments.h"
#include "device/Device.h"
#include "terminal/Console.h"
#include "terminal/Table.h"
#include <algorithm>
#include <array>
#include <dlfcn.h>
#include <QtCore/QFileInfo>
#include <string>
#include <unicode/resbund.h>
#include <unicode/timezone.h>
#include <unicode/ulocdata.h>
#include <unicode/unistr.h>
#include <unicode/uversion.h>
#include <zel/icu/DataDirectory.h>
#include <zel/utility/i18n/Formatting.h>

namespace zel::tool {

namespace {

QString versionText(const UVersionInfo version)
{
    std::array<char, U_MAX_VERSION_STRING_LENGTH> text{};
    u_versionToString(version, text.data());
    return QString::fromLatin1(text.data());
}

#ifdef __clang__
constexpr const char* compiler = "clang++ " __clang_version__;
#else
constexpr const char* compiler = "g++ " __VERSION__;
#endif

Finding examineLibrary()
{
    // The address of a function: data of a library can be copied into the program that uses it.
    using Function = QString (*)(double, int, int);
    const Function function = &zel::utility::i18n::toPercentageString;
    Dl_info info = {};
    const bool found = dladdr(reinterpret_cast<const void*>(function), &info) != 0;
    const QString file = found ? QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath() : QString();
    return {Finding::Good,
            QStringLiteral("library"),
            QStringLiteral(ZEL_VERSION ", %1, built by %2").arg(file, QString::fromLatin1(compiler).trimmed()),
            {}};
}

// Compares a version in use with that of the build; program and library are built together.
Finding compare(const QString& subject, const QString& built, const QString& running, const QString& more)
{
    const auto major = [](const QString& version) { return version.section(QLatin1Char('.'), 0, 0); };
    const QString text = QStringLiteral("%1%2, built with %3").arg(running, more, built);
    if (major(built) != major(running)) {
        return {Finding::Wrong, subject, text, QStringLiteral("build the library for this version")};
    }
    return {Finding::Good, subject, text, {}};
}

Finding examineQt()
{
    return compare(QStringLiteral("Qt"), QStringLiteral(QT_VERSION_STR), QString::fromLatin1(qVersion()), {});
}

Finding examineIcu()
{
    UErrorCode status = U_ZERO_ERROR;
    UVersionInfo icu = {};
    UVersionInfo cldr = {};
    u_getVersion(icu);
    ulocdata_getCLDRVersion(cldr, &status);
    const QString zones = QString::fromLatin1(icu::TimeZone::getTZDataVersion(status));
    if (U_FAILURE(status)) {
        return {Finding::Wrong, QStringLiteral("ICU"), versionText(icu) + QStringLiteral(" without its data"),
                QStringLiteral("install ICU's data")};
    }
    return compare(QStringLiteral("ICU"), QStringLiteral(U_ICU_VERSION), versionText(icu),
                   QStringLiteral(" with CLDR %1 and time zones %2").arg(versionText(cldr), zones));
}

Finding examineData()
{
    const QString subject = QStringLiteral("ICU data");
    icudata::checkDataDirectory(); // returns to ICU's own data if the directory is damaged
    const QString ours = QFile::decodeName(icudata::dataDirectory());
    const QString used = QFile::decodeName(u_getDataDirectory());
    if (icudata::isDataDirectoryInUse()) {
        return {Finding::Good, subject, ours + QStringLiteral(", beside the library"), {}};
    }
    if (!used.isEmpty()) {
        const QString source = qEnvironmentVariableIsEmpty("ICU_DATA") ? QStringLiteral("chosen by the program")
                                                                       : QStringLiteral("from ICU_DATA");
        return {Finding::Note, subject, used + QLatin1String(", ") + source, {}};
    }
    if (!ours.isEmpty()) {
        return {Finding::Wrong, subject, QStringLiteral("ICU's own; ICU_DATA is damaged or made for another ICU"),
                QStringLiteral("unset ICU_DATA, or repair its directory")};
    }
    return {Finding::Wrong, subject, QStringLiteral("ICU's own; ") + QFile::decodeName(icudata::dataDirectoryProblem()),
            QStringLiteral("rebuild or reinstall the library's data")};
}

Finding examinePhrases()
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::ResourceBundle english(nullptr, "en", status);
    const icu::ResourceBundle phrases = english.get("units", status).get("minute-past", status);
    std::string text;
    phrases.getStringEx("other", status).toUTF8String(text);
    const QString subject = QStringLiteral("relative dates");
    if (U_FAILURE(status)) {
        return {Finding::Wrong, subject,
                QStringLiteral("no phrases in ICU's data (%1)").arg(QLatin1String(u_errorName(status))),
                QStringLiteral("unset ICU_DATA, or set it to a directory with phrases")};
    }
    return {Finding::Good,
            subject,
            QStringLiteral("phrases in place: ") +
                QString::fromStdString(text).replace(QLatin1String("{0}"), QLatin1String("5")),
            {}};
}

QString statusText(Finding::Status status)
{
    switch (status) {
    case Finding::Good:
        return QStringLiteral("ok");
    case Finding::Note:
        return QStringLiteral("note");
    case Finding::Wrong:
        break;
    }
    return QStringLiteral("wrong");
}

void writeTable(const QList<Finding>& findings, Console& console)
{
    Table table;
    for (const Finding& finding : findings) {
        const QString advice = finding.advice.isEmpty() ? QString() : QLatin1String("; ") + finding.advice;
        table.add({statusText(finding.status), finding.subject, printable(finding.text + advice)});
    }
    table.write(console);
}

void writeJson(const QList<Finding>& findings, Console& console)
{
    for (const Finding& finding : findings) {
        console.json({{QStringLiteral("status"), statusText(finding.status)},
                      {QStringLiteral("subject"), finding.subject},
                      {QStringLiteral("text"), finding.text},
                      {QStringLiteral("advice"), finding.advice}});
    }
}

// `doctor`: the state of the installation.
class DoctorCommand : public Command
{
public:
    CommandHelp help() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace

CommandHelp DoctorCommand::help() const
{
    return {QStringLiteral("doctor"), QString(), QStringLiteral("Check the installation and report problems."),
            QStringLiteral("Checks versions, ICU's data with its phrases, and the settings with their sources.\n"
                           "Each line is 'ok', 'note', or 'wrong' with a remedy. The exit status is 1 if\n"
                           "something is wrong."),
            QStringLiteral("doctor\n"
                           "doctor --json")};
}

ExitStatus DoctorCommand::run(const Arguments& arguments, Console& console) const
{
    if (!arguments.positional().isEmpty()) {
        throw Failure::usage(QStringLiteral("unexpected argument ") + quoted(arguments.positional().first()));
    }
    const QList<Finding> findings =
        QList<Finding>{examineLibrary(), examineQt(), examineIcu(), examineData(), examinePhrases()} +
        Device::examine();
    if (arguments.json()) {
        writeJson(findings, console);
    } else {
        writeTable(findings, console);
    }
    const bool wrong = std::any_of(findings.begin(), findings.end(),
                                   [](const Finding& finding) { return finding.status == Finding::Wrong; });
    return wrong ? NoAnswer : Worked;
}

std::unique_ptr<Command> doctorCommand()
{
    return std::make_unique<DoctorCommand>();
}

} // namespace zel::tool
