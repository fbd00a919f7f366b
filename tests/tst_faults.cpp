// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Failures of a device while the library runs: the library reports them and continues.

#include "settings/PpsManager.h"
#include "support/Child.h"
#include "support/MessageLog.h"
#include "support/Rows.h"
#include "support/SettingsRoot.h"
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <dlfcn.h>
#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtCore/QSet>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <sys/inotify.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unicode/udata.h>
#include <unistd.h>
#include <zel/icu/DataDirectory.h>
#include <zel/PpsObject.h>
#include <zel/system/LocaleHandler.h>
#include <zel/utility/i18n/CustomDateFormatter.h>
#include <zel/utility/i18n/Formatting.h>
#include <zel/utility/i18n/RelativeDateFormatter.h>

using namespace zel::utility::i18n;

// A change of the settings or of a directory with ICU data.
using Fault = void (*)(const SettingsRoot& root);
using Damage = void (*)(const QString& file);
Q_DECLARE_METATYPE(Fault)
Q_DECLARE_METATYPE(Damage)

namespace {

std::atomic<bool> noInstances{false};
std::atomic<bool> noWatches{false};
std::atomic<bool> noConnections{false};
std::atomic<bool> coarseTimes{false};
std::atomic<int> statsToTear{0}; // of the region; the last one finds it torn
constexpr std::size_t longestStep = 1024;
std::atomic<int> stepsToLive{-1}; // until the writing process is killed

// The C library's names of these functions for 64-bit files and times.
#if _TIME_BITS == 64 && __TIMESIZE == 32
#define LARGE(name) "__" name "64_time64"
#else
#define LARGE(name) name
#endif

template <typename Function>
Function systemFunction(const char* name)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

void cutTimes(struct stat& status)
{
    if (coarseTimes) {
        status.st_mtim.tv_nsec = 0;
        status.st_ctim.tv_nsec = 0;
    }
}

void takeStep()
{
    if (stepsToLive >= 0 && stepsToLive-- == 0) {
        ::kill(::getpid(), SIGKILL);
    }
}

} // namespace

// The limits of inotify hold per user, not per process; these replacements simulate reaching them.
extern "C" Q_DECL_EXPORT int inotify_init1(int flags) noexcept
{
    static const auto init = systemFunction<int (*)(int)>("inotify_init1");
    errno = EMFILE;
    return noInstances ? -1 : init(flags);
}

extern "C" Q_DECL_EXPORT int inotify_add_watch(int fd, const char* name, uint32_t mask) noexcept
{
    static const auto add = systemFunction<int (*)(int, const char*, uint32_t)>("inotify_add_watch");
    errno = ENOSPC;
    return noWatches ? -1 : add(fd, name, mask);
}

// The mangled name, by which the library calls it.
using Connect = QMetaObject::Connection (*)(const QObject*, const char*, const QObject*, const char*,
                                            Qt::ConnectionType);
constexpr const char connectName[] = "_ZN7QObject7connectEPKS_PKcS1_S3_N2Qt14ConnectionTypeE";
Q_DECL_EXPORT QMetaObject::Connection
tryToConnect(const QObject* sender, const char* signal, const QObject* receiver, const char* member,
             Qt::ConnectionType type) asm("_ZN7QObject7connectEPKS_PKcS1_S3_N2Qt14ConnectionTypeE");
QMetaObject::Connection tryToConnect(const QObject* sender, const char* signal, const QObject* receiver,
                                     const char* member, Qt::ConnectionType type)
{
    static const auto connectAll = systemFunction<Connect>(connectName);
    return noConnections ? QMetaObject::Connection() : connectAll(sender, signal, receiver, member, type);
}

// Simulates a file system with whole seconds.
extern "C" Q_DECL_EXPORT int stat(const char* file, struct stat* status) noexcept
{
    static const auto look = systemFunction<int (*)(const char*, struct stat*)>(LARGE("stat"));
    if (statsToTear > 0 && QByteArray(file).endsWith("/pps/system/locale") && --statsToTear == 0) {
        ::truncate(file, 0);
    }
    const int result = look(file, status);
    cutTimes(*status);
    return result;
}

extern "C" Q_DECL_EXPORT int fstat(int fd, struct stat* status) noexcept
{
    static const auto look = systemFunction<int (*)(int, struct stat*)>(LARGE("fstat"));
    const int result = look(fd, status);
    cutTimes(*status);
    return result;
}

// A writer is killed while it writes, before it syncs, and before the rename that publishes the new object.
extern "C" Q_DECL_EXPORT ssize_t write(int fd, const void* buf, size_t n)
{
    static const auto writeAll = systemFunction<ssize_t (*)(int, const void*, size_t)>("write");
    if (stepsToLive < 0) {
        return writeAll(fd, buf, n);
    }
    const ssize_t written = writeAll(fd, buf, std::min(n, longestStep));
    takeStep();
    return written;
}

extern "C" Q_DECL_EXPORT int fdatasync(int /*descriptor*/)
{
    takeStep();
    return 0;
}

extern "C" Q_DECL_EXPORT int rename(const char* from, const char* to) noexcept
{
    static const auto renameFile = systemFunction<int (*)(const char*, const char*)>("rename");
    takeStep();
    return renameFile(from, to);
}

namespace {

const QString path = QStringLiteral("/pps/system/settings");
constexpr int settlingTime = 70; // ms after which a watcher has reported a change
constexpr uid_t nobody = 65534;

const QString current = QStringLiteral(U_ICUDATA_NAME);

void replaceByFile(const QString& directory)
{
    QDir(directory).removeRecursively();
    QVERIFY(QFile(directory).open(QIODevice::WriteOnly));
}

// Permissions do not stop root, so root becomes nobody.
void becomeNobody()
{
    if (::geteuid() == 0 && ::setresuid(nobody, nobody, 0) != 0) {
        qFatal("cannot become nobody");
    }
}

void becomeRoot()
{
    if (::setresuid(static_cast<uid_t>(-1), 0, static_cast<uid_t>(-1)) == 0 && ::setresuid(0, 0, 0) != 0) {
        qFatal("cannot become root again");
    }
}

void lockOut(const SettingsRoot& root)
{
    QFile::setPermissions(root.path(), {});
    becomeNobody();
}

void restore(const SettingsRoot& root)
{
    becomeRoot();
    QFile::setPermissions(root.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile::remove(root.path());
    QFile::remove(root.file("/pps/system"));
    QDir(root.file(path)).removeRecursively();
    root.setClock("24");
}

// The texts of both classes for a device in Germany, and the messages.
int showDates()
{
    const SettingsRoot root;
    root.setClock("24");
    root.setRegion("de_DE");
    MessageLog log;
    const QDateTime anchor = QDateTime::fromString(QStringLiteral("2024-05-15T12:00Z"), Qt::ISODate);
    RelativeDateFormatter relative(RelativeDateFormat::TimeCritical);
    relative.setAnchorTime(anchor);
    QStringList lines{relative.format(anchor.addSecs(-10800)), relative.format(anchor.addDays(-1)),
                      CustomDateFormatter("yMMMd").format(anchor)};
    lines += log.take();
    std::puts(lines.join(QLatin1Char('\n')).toUtf8().constData());
    return 0;
}

// The same in a process with an environment variable set: its standard output and error.
Child::Result run(const char* variable, const QString& value, const QString& mode = QStringLiteral("--show-dates"))
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(variable), value);
    return Child(QCoreApplication::applicationFilePath(), {mode}, environment).finish();
}

QStringList withPhrases()
{
    return {QStringLiteral("vor 3 Stunden"), QStringLiteral("gestern, 12:00"), QStringLiteral("15. Mai 2024"),
            QString()};
}

QStringList withoutPhrases()
{
    QStringList lines{QStringLiteral("09 Uhr"), QStringLiteral("Di., 12:00"), QStringLiteral("15. Mai 2024")};
    for (const auto& [name, keys] :
         {std::pair{"Plural", R"("units", "hour-past")"}, std::pair{"Plural", R"("units", "hour-future")"},
          std::pair{"Numeric", R"("calendar", "gregorian", "fields", "day", "relative")"}}) {
        const QString start = QStringLiteral("critical: zel::utility::i18n::%1ResourceAccessor::%1ResourceAccessor("
                                             "const QLocale&, const QStringList&, QObject*) ")
                                  .arg(QLatin1String(name));
        lines += start + QStringLiteral("exhausted all possible locale fallbacks for \"de\" ");
        lines += start + QStringLiteral("failed to open resource path: (%1) ").arg(QLatin1String(keys));
    }
    return lines << QString();
}

// Replaces a bundle that is a link by a changed copy.
void change(const QString& file, QByteArray (*changed)(const QByteArray& contents))
{
    QFile old(file);
    const QByteArray contents = old.open(QIODevice::ReadOnly) ? changed(old.readAll()) : QByteArray();
    old.remove();
    QFile damaged(file);
    if (!damaged.open(QIODevice::WriteOnly) || damaged.write(contents) != contents.size()) {
        qFatal("cannot write %s", qPrintable(file));
    }
}

QByteArray half(const QByteArray& contents)
{
    return contents.left(contents.size() / 2);
}

QByteArray zeroed(const QByteArray& contents)
{
    return {contents.size(), '\0'};
}

// A version of the object: larger than one write, with its number at both ends.
QByteArray generation(int number)
{
    return "@settings\nfirst:n:" + QByteArray::number(number) + "\nmiddle::" + QByteArray(6000, 'x') +
           "\nlast:n:" + QByteArray::number(number) + '\n';
}

[[noreturn]] void writeForEver(int number)
{
    zel::PpsObject object(path);
    object.open(zel::PpsOpenMode::Publish);
    for (;;) {
        object.write(generation(++number));
    }
}

// Reads the object repeatedly and on notification, and records the results.
struct Reader
{
    Reader()
    {
        object.open(zel::PpsOpenMode::Subscribe);
        QObject::connect(&object, &zel::PpsObject::readyRead, &object, [this] {
            ++announced;
            look();
        });
    }

    void look()
    {
        const QByteArray contents = object.read();
        const QVariantMap record = zel::PpsObject::decode(contents).value(QStringLiteral("@settings")).toMap();
        const QVariant first = record.value(QStringLiteral("first"), -1);
        seen.insert(first.toInt());
        if (first != record.value(QStringLiteral("last"))) {
            torn.append(contents.left(40));
        }
    }

    zel::PpsObject object{path};
    QSet<int> seen;
    QByteArrayList torn;
    int announced = 0;
};

// Runs a process that writes until it is killed after a number of steps. Returns the signal that ended it.
int killWriter(int number, int steps, Reader& reader)
{
    const pid_t writer = ::fork();
    if (writer == 0) {
        stepsToLive = steps;
        writeForEver(number);
    }
    int status = 0;
    while (::waitpid(writer, &status, WNOHANG) == 0) {
        reader.look();
        QCoreApplication::processEvents();
    }
    reader.look();
    return WTERMSIG(status);
}

// All writers inherit the same random state from Qt, and with it the names of their unfinished files.
void removeUnfinished(const SettingsRoot& root)
{
    QDir directory = QFileInfo(root.file(path)).dir();
    for (const QString& unfinished : directory.entryList({QStringLiteral("settings.*")})) {
        directory.remove(unfinished);
    }
}

// An installed tree with a copy of the library and links to its data.
bool install(const QString& tree)
{
    const QDir original(QFile::decodeName(zel::icudata::dataDirectory()));
    const QDir bundles(tree + QStringLiteral("/share/zel/icu/") + current);
    bool done = bundles.mkpath(".") && bundles.mkpath("../../../../lib") &&
                QFile::copy(original.filePath("../../../lib/libzelicudata.so.1"),
                            tree + QStringLiteral("/lib/libzelicudata.so.1"));
    for (const QFileInfo& file : QDir(original.filePath(current)).entryInfoList(QDir::Files)) {
        done = done && QFile::link(file.filePath(), bundles.filePath(file.fileName()));
    }
    return done;
}

QString failedToRead(const SettingsRoot& root, const QString& reason)
{
    return QStringLiteral("warning: void zel::utility::i18n::PpsManager::onPpsUpdate() failed to read PPS at "
                          "/pps/system/settings  :  \"%1: %2\" ")
        .arg(root.file(path), reason);
}

bool becomes(const PpsManager& manager, int value)
{
    return QTest::qWaitFor([&manager, value] { return manager.value() == QVariant(value); });
}

constexpr int notFollowed = 2;

// Mounts another file system over the settings while they are followed. For a private mount namespace.
int followMount()
{
    const SettingsRoot root;
    root.setClock("12");
    const PpsManager manager("/pps/system/settings", "@settings", "hourFormat", nullptr);
    QTest::qWait(settlingTime);
    const QByteArray over = QFile::encodeName(root.file("/pps"));
    ::mount("none", over.constData(), "tmpfs", 0, nullptr);
    root.setClock("24");
    const bool followed = becomes(manager, 24);
    ::umount(over.constData());
    return followed && becomes(manager, 12) ? 0 : notFollowed;
}

} // namespace

class FaultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // First, because the process keeps its inotify instance.

    void followsWithoutInotify_data()
    {
        const NamedRow<bool> row;
        row("no instance left", false);
        row("no watch left", true);
    }

    void followsWithoutInotify()
    {
        const auto [hasInstances] = cells<bool>();
        const SettingsRoot root;
        QVERIFY(root.setClock("12"));
        MessageLog log;
        noInstances = !hasInstances;
        noWatches = hasInstances;
        const PpsManager manager("/pps/system/settings", "@settings", "hourFormat", nullptr);
        QTest::qWait(settlingTime);
        QVERIFY(root.setClock("24"));
        QVERIFY(becomes(manager, 24));
        noInstances = false;
        noWatches = false;
        QCOMPARE(log.take(), QStringList());

        // With watches, changes are noticed at once again.
        QTest::qWait(1100);
        QElapsedTimer latency;
        latency.start();
        QVERIFY(root.rewrite(path, "@settings\nhourFormat:n:12\n"));
        QVERIFY(becomes(manager, 12));
        QVERIFY2(latency.elapsed() < 500, qPrintable(QString::number(latency.elapsed())));
    }

    void followsThroughFault_data()
    {
        const NamedRow<QString, Fault> row;
        row("root vanishes", "No such file or directory",
            [](const SettingsRoot& root) { QDir(root.path()).removeRecursively(); });
        row("root becomes a file", "Not a directory", [](const SettingsRoot& root) { replaceByFile(root.path()); });
        row("root cannot be entered", "Permission denied", lockOut);
        row("directory becomes a file", "Not a directory",
            [](const SettingsRoot& root) { replaceByFile(root.file("/pps/system")); });
        row("object becomes a directory", "Is a directory", [](const SettingsRoot& root) {
            root.remove(path);
            QDir().mkpath(root.file(path));
        });
        row("object over the limit", "larger than 1048576 bytes",
            [](const SettingsRoot& root) { root.write(path, QByteArray(zel::PpsObject::maximumSize + 1, 'x')); });
    }

    void followsThroughFault()
    {
        const auto [reason, fault] = cells<QString, Fault>();
        const SettingsRoot root;
        QVERIFY(root.setClock("12"));
        const PpsManager manager("/pps/system/settings", "@settings", "hourFormat", nullptr);
        QTest::qWait(settlingTime);
        MessageLog log;
        fault(root);
        QTest::qWait(2 * settlingTime);
        const QStringList messages = log.take();
        const QVariant value = manager.value();
        restore(root);
        QCOMPARE(messages, QStringList{failedToRead(root, reason)});
        QCOMPARE(value, QVariant(12));
        QVERIFY(becomes(manager, 24));
        QCOMPARE(log.take(), QStringList());
    }

    void followsWhatWasUnreadable_data()
    {
        const NamedRow<QString> row;
        row("object", path);
        row("directory", "/pps");
    }

    void followsWhatWasUnreadable()
    {
        const auto [unreadable] = cells<QString>();
        const SettingsRoot root;
        QVERIFY(root.setClock("24"));
        QFile::setPermissions(root.path(), QFile::Permissions(0x7755));
        const auto permissions = QFile::permissions(root.file(unreadable));
        QFile::setPermissions(root.file(unreadable), {});
        MessageLog log;
        becomeNobody();
        const PpsManager manager("/pps/system/settings", "@settings", "hourFormat", nullptr);
        QTest::qWait(settlingTime);
        becomeRoot();
        QFile::setPermissions(root.file(unreadable), permissions);
        QCOMPARE(log.take(), QStringList{failedToRead(root, QStringLiteral("Permission denied"))});
        QVERIFY(becomes(manager, 24));
    }

    void followsCoarseTimes()
    {
        const SettingsRoot root;
        QVERIFY(root.setRegion("de_DE"));
        const zel::system::LocaleHandler handler(zel::system::LocaleType::Region);
        QSignalSpy changes(&handler, SIGNAL(changed()));
        coarseTimes = true;
        handler.locale();
        QTest::qWait(settlingTime);
        QVERIFY(root.rewrite("/pps/system/locale", "@locale\nregion::fr_FR\n"));
        const QString name = handler.locale().name();
        const bool notified = changes.wait();
        coarseTimes = false;
        QCOMPARE(name, QStringLiteral("fr_FR"));
        QVERIFY(notified);
    }

    // The object is torn between the announced read and the slot, and then restored.
    void reportsRegionTornMeanwhile()
    {
        const QString region = QStringLiteral("/pps/system/locale");
        const SettingsRoot root;
        QVERIFY(root.setRegion("de_DE"));
        const zel::system::LocaleHandler handler(zel::system::LocaleType::Region);
        QSignalSpy changes(&handler, SIGNAL(changed()));
        QTest::qWait(settlingTime);
        MessageLog log;
        statsToTear = 3; // the first two see that the change is over
        QVERIFY(root.rewrite(region, "@locale\nregion::fr_FR\n"));
        while (statsToTear > 0) {
            QCoreApplication::processEvents();
        }
        QVERIFY(root.rewrite(region, "@locale\nregion::fr_FR\n"));
        QVERIFY(changes.count() > 0 || changes.wait());
        QCOMPARE(handler.locale().name(), QStringLiteral("fr_FR"));
    }

    void followsMount()
    {
        const int result = QProcess::execute(
            QStringLiteral("unshare"),
            {QStringLiteral("-rm"), QCoreApplication::applicationFilePath(), QStringLiteral("--follow-mount")});
        if (result == 1) {
            // QSKIP is no macro of C++17 for clang.
            QTest::qSkip("mount namespaces are not permitted here", __FILE__, __LINE__);
            return;
        }
        QCOMPARE(result, 0);
    }

    void readsOnceWithoutConnection()
    {
        const SettingsRoot root;
        QVERIFY(root.setClock("12"));
        MessageLog log;
        noConnections = true;
        const PpsManager manager("/pps/system/settings", "@settings", "hourFormat", nullptr);
        noConnections = false;
        QCOMPARE(log.take(),
                 QStringList({"critical: zel::PpsObject cannot report changes of " + root.file(path),
                              "critical: zel::utility::i18n::PpsManager::PpsManager(const char*, const char*, "
                              "const char*, QObject*) failed to connect to PPS channel for "
                              "/pps/system/settings "}));
        QCOMPARE(manager.value(), QVariant(12));
        const auto* const object = manager.findChild<zel::PpsObject*>();
        QVERIFY(object != nullptr && object->children().isEmpty()); // nothing watches it
    }

    void readsNoTornValue()
    {
        constexpr int kills = 1000;
        constexpr int longestLife = 20; // in steps; one write of the object takes 8
        const SettingsRoot root;
        QVERIFY(root.write(path, generation(0)));
        Reader reader;
        for (int round = 0; round < kills; ++round) {
            QCOMPARE(killWriter(round * kills, round % longestLife, reader), SIGKILL);
            removeUnfinished(root);
        }
        QCOMPARE(reader.torn, QByteArrayList());
        QVERIFY2(reader.seen.size() > kills / 4, qPrintable(QString::number(reader.seen.size())));
        QVERIFY(root.write(path, generation(kills * kills)));
        QTRY_VERIFY(reader.announced > 0);
    }

    void answersWithIcuDataDamaged_data()
    {
        const NamedRow<QString, QString, Damage> row;
        const QString damaged = QStringLiteral("%1/" U_ICUDATA_NAME ": %2 is missing or damaged");
        const QString none = QStringLiteral("no " U_ICUDATA_NAME " in %1");
        const QString list = QStringLiteral("bundles.list");
        const auto halve = [](const QString& file) { change(file, half); };
        const auto remove = [](const QString& file) { QFile::remove(file); };
        row("sound", "", "", [](const QString&) {});
        row("missing", "", none, [](const QString& bundles) { QDir(bundles).removeRecursively(); });
        row("another version", "", none,
            [](const QString& bundles) { QDir().rename(bundles, bundles + "/../icudt1l"); });
        row("empty", list, damaged, [](const QString& file) {
            QFileInfo(file).dir().removeRecursively();
            QDir().mkpath(QFileInfo(file).path());
        });
        row("list cut short", list, damaged, halve);
        row("list is a pipe", list, damaged, [](const QString& file) {
            QFile::remove(file);
            ::mkfifo(QFile::encodeName(file).constData(), S_IRUSR | S_IWUSR);
        });
        row("list without an end", list, damaged, [](const QString& file) {
            QFile::remove(file);
            QFile::link("/dev/zero", file);
        });
        row("list as large as a disk", list, damaged, [](const QString& file) {
            change(file, half);
            QFile::resize(file, qint64(1) << 40);
        });
        row("another release", list, "%1/" U_ICUDATA_NAME ": made for another ICU", [](const QString& file) {
            change(file, [](const QByteArray& contents) {
                QByteArray other = contents;
                const auto lastDigit = contents.indexOf('\n') - 1;
                other[lastDigit] = contents.at(lastDigit) == '1' ? '2' : '1';
                return other;
            });
        });
        row("bundle missing", "ak.res", damaged, remove);
        row("bundle cut short", "de.res", damaged, halve);
        row("root of zeros", "root.res", damaged, [](const QString& file) { change(file, zeroed); });
    }

    // Next to a copy of the library, and named by ICU_DATA. ICU alone would show English, or read past the end of a
    // bundle.
    void answersWithIcuDataDamaged()
    {
        const auto [file, problem, damage] = cells<QString, QString, Damage>();
        const QTemporaryDir tree;
        QVERIFY(install(tree.path()));
        const QString data = tree.filePath("share/zel/icu");
        damage(data + '/' + current + (file.isEmpty() ? "" : "/") + file);
        const QString errors = problem.isEmpty()
                                   ? problem
                                   : QStringLiteral("libzelicudata: %1; relative dates are without phrases\n")
                                         .arg(QString(problem).replace("%1", data).replace("%2", file));

        const Child::Result beside = run("LD_LIBRARY_PATH", tree.filePath("lib"));
        QCOMPARE(beside.status, 0);
        QCOMPARE(beside.errors, errors);
        QCOMPARE(beside.output.split(QLatin1Char('\n')), problem.isEmpty() ? withPhrases() : withoutPhrases());

        // Bundles are checked before their first use, not at every start.
        if (file.endsWith(QLatin1String(".res"))) {
            QCOMPARE(run("LD_LIBRARY_PATH", tree.filePath("lib"), QStringLiteral("--load")).errors, QString());
            QCOMPARE(run("LD_LIBRARY_PATH", tree.filePath("lib"), QStringLiteral("--percent")).errors, errors);
        }

        const Child::Result named = run("ICU_DATA", data);
        QCOMPARE(named.status, 0);
        QCOMPARE(named.output, beside.output);
        // A directory without bundles.list is used without a check or a message.
        const QString list = data + QLatin1Char('/') + current + QStringLiteral("/bundles.list");
        QCOMPARE(named.errors, QFile::exists(list) ? errors : QString());
    }
};

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QMap<QByteArray, int (*)()> modes{
        {"--show-dates", showDates},
        {"--follow-mount", followMount},
        {"--load", [] { return 0; }},
        {"--percent", [] { return toPercentageString(QLocale("de_DE"), 0.5, 0, 0).isEmpty() ? 1 : 0; }}};
    if (auto* const run = modes.value(argv[1])) {
        return run();
    }
    FaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_faults.moc"
