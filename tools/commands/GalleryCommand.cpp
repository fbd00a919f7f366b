// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "commands/Commands.h"

#include "Arguments.h"
#include "gallery/Gallery.h"
#include "gallery/GalleryComparison.h"
#include "gallery/GallerySummary.h"
#include "terminal/Console.h"
#include "terminal/Failure.h"
#include <memory>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <unicode/uloc.h>

namespace zel::tool {

namespace {

QStringList localesOfIcu()
{
    QStringList names;
    for (int32_t number = 0; number < uloc_countAvailable(); ++number) {
        names.append(QString::fromLatin1(uloc_getAvailable(number)));
    }
    return names;
}

// A locale that only ICU knows is shown as such among all, but is an error if requested.
QStringList localesFor(const Arguments& arguments)
{
    if (!arguments.has(QStringLiteral("locale"))) {
        return localesOfIcu();
    }
    QStringList names;
    for (const NamedLocale& locale : arguments.locales()) {
        names.append(locale.name);
    }
    return names;
}

// A file is replaced atomically; a device or a pipe is written to.
void write(const QString& path, const QByteArray& contents)
{
    const QFileInfo target(path);
    const bool replaces = target.isFile() || !target.exists();
    QSaveFile replacement(path);
    QFile present(path);
    QFileDevice& file = replaces ? static_cast<QFileDevice&>(replacement) : present;
    const bool written = file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.flush();
    if (!written || (replaces && !replacement.commit())) {
        throw Failure(QStringLiteral("cannot write ") + quoted(path) + QLatin1String(": ") + file.errorString());
    }
}

const QString standardOutput = QStringLiteral("-");

void requireUsage(bool condition, const QString& reason)
{
    if (!condition) {
        throw Failure::usage(reason);
    }
}

void requireUsage(const Arguments& arguments)
{
    const auto isFile = [&](const char* option) {
        const QString file = arguments.value(QLatin1String(option));
        return !file.isEmpty() && file != standardOutput;
    };
    const QStringList words = arguments.positional();
    requireUsage(
        words.isEmpty(),
        QStringLiteral("unexpected argument %1; name a file with --html or --tsv").arg(quoted(words.value(0))));
    requireUsage(arguments.has(QStringLiteral("html")) || arguments.has(QStringLiteral("tsv")) ||
                     arguments.has(QStringLiteral("compare")),
                 QStringLiteral("no file given with --html, --tsv or --compare"));
    for (const char* const option : {"html", "compare"}) {
        requireUsage(!arguments.has(QLatin1String(option)) || isFile(option),
                     QStringLiteral("--%1 takes the name of a file").arg(QLatin1String(option)));
    }
    requireUsage(!arguments.has(QStringLiteral("compare")) || arguments.value(QStringLiteral("tsv")) != standardOutput,
                 QStringLiteral("--compare writes to standard output, so --tsv takes the name of a file"));
}

// The figures; before them, if no file is written, the different texts.
void writeSummary(const Gallery& gallery, const GalleryComparison* comparison, const Arguments& arguments,
                  Console& console)
{
    if (arguments.json()) {
        console.json(GallerySummary::json(gallery, comparison));
        return;
    }
    if (arguments.value(QStringLiteral("html")).isEmpty() && arguments.value(QStringLiteral("tsv")).isEmpty()) {
        GallerySummary::writeDifferences(gallery, console);
    }
    GallerySummary::write(gallery, comparison, console);
}

// `gallery`: the patterns and texts of every locale on one page.
class GalleryCommand : public Command
{
public:
    CommandHelp help() const override;
    bool takesDevice() const override { return false; }
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace

CommandHelp GalleryCommand::help() const
{
    return {QStringLiteral("gallery"), QString(), QStringLiteral("Show every locale on one page."),
            QStringLiteral("Writes one HTML page with all patterns and their texts, a custom date, percentages and\n"
                           "relative dates in both wordings, under both clocks, for every locale of ICU or the\n"
                           "given ones. Rows with a fallback or a message of the library are marked. The page is\n"
                           "self-contained. Its filter shows the locales with a word that starts with the input,\n"
                           "and is kept in the address: '#filter=de'.\n\n"
                           "--tsv writes the same as tab-separated text. --compare reads such a table of an older\n"
                           "ICU or library, marks each different text on the page, with both texts, and prints\n"
                           "the number of differences by kind; without --html and --tsv also the texts. Moments\n"
                           "and time zone are fixed, and the settings of the device have no effect."),
            QStringLiteral("gallery --html gallery.html\n"
                           "gallery --html gallery.html --locale ar_EG --locale de_DE\n"
                           "gallery --tsv icu-72.tsv\n"
                           "gallery --compare icu-72.tsv --html changes.html\n"
                           "gallery --tsv - --locale de_DE | grep percentage")};
}

QList<QCommandLineOption> GalleryCommand::options() const
{
    return {
        {QStringLiteral("html"), QStringLiteral("File for the page."), QStringLiteral("FILE")},
        {QStringLiteral("tsv"), QStringLiteral("File for the table; '-' is standard output, with nothing\nelse on it."),
         QStringLiteral("FILE")},
        {QStringLiteral("compare"), QStringLiteral("Table to compare with, written by --tsv."), QStringLiteral("FILE")},
        {QStringLiteral("locale"), QStringLiteral("Locale (default: all of ICU). Repeatable."), QStringLiteral("L")}};
}

ExitStatus GalleryCommand::run(const Arguments& arguments, Console& console) const
{
    requireUsage(arguments);
    const QString html = arguments.value(QStringLiteral("html"));
    const QString tsv = arguments.value(QStringLiteral("tsv"));
    std::unique_ptr<GalleryComparison> comparison;
    if (arguments.has(QStringLiteral("compare"))) {
        comparison = std::make_unique<GalleryComparison>(arguments.value(QStringLiteral("compare")));
    }
    Gallery gallery(localesFor(arguments), console);
    if (comparison) {
        gallery.compareWith(*comparison);
        if (arguments.has(QStringLiteral("locale"))) {
            comparison->forgetOthers();
        }
    }
    if (!html.isEmpty()) {
        write(html, gallery.page());
    }
    if (tsv == standardOutput) {
        console.line(QString::fromUtf8(gallery.table().chopped(1)));
        return Worked;
    }
    if (!tsv.isEmpty()) {
        write(tsv, gallery.table());
    }
    writeSummary(gallery, comparison.get(), arguments, console);
    return Worked;
}

std::unique_ptr<Command> galleryCommand()
{
    return std::make_unique<GalleryCommand>();
}

} // namespace zel::tool
