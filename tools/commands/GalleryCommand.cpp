#include "commands/Commands.h"

#include "Arguments.h"
#include "device/Assignments.h"
#include "device/Device.h"
#include "device/ThrowAwayDevice.h"
#include "gallery/GalleryEntry.h"
#include "gallery/GalleryPage.h"
#include "gallery/GalleryTable.h"
#include "LocaleName.h"
#include "terminal/Console.h"
#include "terminal/ProgressBar.h"
#include <algorithm>
#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <unicode/uloc.h>
#include <zel/utility/i18n/Formatting.h>

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

// A locale that only ICU knows is shown as such where all are, but is a mistake where it was asked for.
QList<GalleryEntry> entriesFor(const Arguments& arguments)
{
    QStringList names;
    if (arguments.has(QStringLiteral("locale"))) {
        for (const NamedLocale& locale : arguments.locales()) {
            names.append(locale.name);
        }
    } else {
        names = localesOfIcu();
    }
    QList<GalleryEntry> entries;
    for (const QString& name : names) {
        entries.append({name, {}});
    }
    return entries;
}

/** A change of the device reaches the library through the event loop. */
void useClock(const QString& clock)
{
    constexpr int patience = 5000;
    Device::set({{Assignments::hourFormat(), clock}}, {});
    const auto follows = [twelve = clock == QLatin1String("12")] {
        const QString pattern = zel::utility::i18n::timeFormat(QLocale::c(), zel::utility::i18n::DateFormat::Short);
        return pattern.contains(QLatin1String("AP"), Qt::CaseInsensitive) == twelve;
    };
    QElapsedTimer timer;
    timer.start();
    while (!follows()) {
        if (timer.elapsed() > patience) {
            throw Failure(QStringLiteral("the library does not follow the clock of the device"));
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    }
}

/** Adds the rows under the clock that the device has now. */
void fill(QList<GalleryEntry>& entries, ProgressBar& progress, const Console& console)
{
    for (GalleryEntry& entry : entries) {
        if (const int signal = console.takeSignal(); signal != 0) {
            throw Console::Interrupted{signal};
        }
        progress.step(entry.locale);
        if (const auto locale = zel::system::LocaleName::find(entry.locale)) {
            // The region of a device that has none set is that of the environment, and this costs no file.
            qputenv("LC_ALL", entry.locale.toLatin1());
            entry.clocks.append(GalleryEntry::rows(*locale));
        }
    }
}

/** Fills the entries, and returns the names of the clocks. */
QStringList fill(QList<GalleryEntry>& entries, const Console& console)
{
    const ThrowAwayDevice device(QStringLiteral("time-zone=UTC"));
    const QStringList clocks = {QStringLiteral("12"), QStringLiteral("24")};
    ProgressBar progress(static_cast<int>(entries.size() * clocks.size()));
    QStringList names;
    for (const QString& clock : clocks) {
        useClock(clock);
        fill(entries, progress, console);
        names.append(clock + QStringLiteral("-hour clock"));
    }
    return names;
}

bool isMarked(const GalleryEntry& entry)
{
    const auto hasNotes = [](const GalleryRow& row) { return !row.notes.isEmpty(); };
    return entry.clocks.isEmpty() ||
           std::any_of(entry.clocks.begin(), entry.clocks.end(),
                       [&](const QList<GalleryRow>& rows) { return std::any_of(rows.begin(), rows.end(), hasNotes); });
}

QByteArray page(const QList<GalleryEntry>& entries, const QStringList& clocks)
{
    const auto marked = std::count_if(entries.begin(), entries.end(), &isMarked);
    QByteArray html = GalleryPage::begin(static_cast<int>(entries.size()), static_cast<int>(marked));
    for (const GalleryEntry& entry : entries) {
        html += GalleryPage::section(entry, clocks);
    }
    return html + GalleryPage::end();
}

QByteArray table(const QList<GalleryEntry>& entries, const QStringList& clocks)
{
    QByteArray text = GalleryTable::header();
    for (const GalleryEntry& entry : entries) {
        text += GalleryTable::lines(entry, clocks);
    }
    return text;
}

// A file is replaced in one step. A device or a pipe stays what it is and is written to.
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

QString fileOf(const Arguments& arguments, const QString& option)
{
    QString file = arguments.value(option);
    if (file == QLatin1String("-")) {
        throw Failure::usage(QStringLiteral("--%1 takes the name of a file, not '-'").arg(option));
    }
    return file;
}

// `gallery`: everything that depends on the locale, for every locale, on one page.
class GalleryCommand : public Command
{
public:
    CommandHelp help() const override;
    QList<QCommandLineOption> options() const override;
    ExitStatus run(const Arguments& arguments, Console& console) const override;
};

} // namespace

CommandHelp GalleryCommand::help() const
{
    return {QStringLiteral("gallery"), QString(), QStringLiteral("Show every locale on one page."),
            QStringLiteral("Writes one page that shows, for every locale of ICU or for those given, all patterns\n"
                           "with a text for each, a custom date, and the ladders of relative dates, under both\n"
                           "clocks. Where the library had to fall back or wrote a message, the row is marked and\n"
                           "says so. The page is one HTML file that needs nothing beside itself; at the end of its\n"
                           "address, '#filter=de' shows only the locales of which a word begins with 'de'.\n\n"
                           "The same as tab-separated text is for comparing two versions of ICU or of the library.\n"
                           "Moments and time zone are always the same, and no setting of the device matters."),
            QStringLiteral("gallery --html gallery.html\n"
                           "gallery --html gallery.html --locale ar_EG --locale de_DE\n"
                           "gallery --tsv icu-72.tsv")};
}

QList<QCommandLineOption> GalleryCommand::options() const
{
    return {{QStringLiteral("html"), QStringLiteral("Write the page into this file."), QStringLiteral("FILE")},
            {QStringLiteral("tsv"), QStringLiteral("Write tab-separated text into this file."), QStringLiteral("FILE")},
            {QStringLiteral("locale"),
             QStringLiteral("A locale, instead of all that ICU has. May be given several\ntimes."),
             QStringLiteral("L")}};
}

ExitStatus GalleryCommand::run(const Arguments& arguments, Console& console) const
{
    const QString html = fileOf(arguments, QStringLiteral("html"));
    const QString tsv = fileOf(arguments, QStringLiteral("tsv"));
    if (!arguments.positional().isEmpty()) {
        throw Failure::usage(quoted(arguments.positional().first()) +
                             QStringLiteral(" is no option; name a file with --html or --tsv"));
    }
    if (html.isEmpty() && tsv.isEmpty()) {
        throw Failure::usage(QStringLiteral("no file given with --html or --tsv"));
    }
    if (arguments.has(QStringLiteral("device"))) {
        throw Failure::usage(QStringLiteral("--device makes no difference here"));
    }
    QList<GalleryEntry> entries = entriesFor(arguments);
    const QStringList clocks = fill(entries, console);
    if (!html.isEmpty()) {
        write(html, page(entries, clocks));
    }
    if (!tsv.isEmpty()) {
        write(tsv, table(entries, clocks));
    }
    const auto marked = static_cast<int>(std::count_if(entries.begin(), entries.end(), &isMarked));
    if (arguments.json()) {
        console.json(
            {{QStringLiteral("locales"), static_cast<int>(entries.size())}, {QStringLiteral("marked"), marked}});
    } else {
        console.line(QStringLiteral("%1 %2, %3 of them with a mark")
                         .arg(entries.size())
                         .arg(QLatin1String(entries.size() == 1 ? "locale" : "locales"))
                         .arg(marked));
    }
    return Worked;
}

std::unique_ptr<Command> galleryCommand()
{
    return std::make_unique<GalleryCommand>();
}

} // namespace zel::tool
