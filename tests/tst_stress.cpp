// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// After any change of the settings, readers of every kind have the last value. ZEL_STRESS=1 makes more changes.

#include "bridge/Locale.h"
#include "settings/ClockSetting.h"
#include "support/MessageLog.h"
#include <atomic>
#include <filesystem>
#include <fstream>
#include <memory>
#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>
#include <random>
#include <sys/stat.h>
#include <thread>
#include <zel/PpsObject.h>
#include <zel/system/LocaleHandler.h>
#include <zel/utility/i18n/CustomDateFormatter.h>

using namespace zel::utility::i18n;
namespace fs = std::filesystem;

namespace {

// A settings object and its next contents.
struct Target
{
    fs::path root;
    fs::path file;
    std::string contents;
};

std::error_code ignored; // an operation may fail after earlier ones

void write(const fs::path& file, const std::string& contents)
{
    if (!fs::is_regular_file(file, ignored)) {
        fs::remove_all(file, ignored);
        fs::create_directories(file.parent_path(), ignored);
    }
    std::ofstream(file, std::ios::binary) << contents;
}

void replace(const fs::path& directory, const Target& target)
{
    const fs::path old = directory.string() + ".old";
    fs::rename(directory, old, ignored);
    write(target.file, target.contents);
    fs::remove_all(old, ignored);
}

void replaceByRename(const Target& target)
{
    const fs::path fresh = target.file.string() + ".new";
    write(fresh, target.contents);
    fs::rename(fresh, target.file, ignored);
}

void rewriteInPlace(const Target& target)
{
    write(target.file, target.contents);
}

// Rename, rewrite, tear, unlink, put a fifo, set the time back, replace directory and root, swap a link.
constexpr void (*operations[])(const Target&) = {
    replaceByRename,
    rewriteInPlace,
    [](const Target& target) { write(target.file, target.contents.substr(0, target.contents.size() / 2)); },
    [](const Target& target) { fs::remove(target.file, ignored); },
    [](const Target& target) {
        fs::remove(target.file, ignored);
        ::mkfifo(target.file.c_str(), 0666);
    },
    [](const Target& target) {
        write(target.file, target.contents);
        fs::last_write_time(target.file, fs::file_time_type::clock::now() - std::chrono::hours(1), ignored);
    },
    [](const Target& target) { replace(target.file.parent_path(), target); },
    [](const Target& target) { replace(target.root, target); },
    [](const Target& target) {
        const fs::path link = target.root / "pps/system";
        const fs::path other = fs::read_symlink(link, ignored) == "one" ? "two" : "one";
        write(target.root / "pps" / other / target.file.filename(), target.contents);
        fs::create_directory_symlink(other, link.string() + ".new", ignored);
        if (!fs::is_symlink(link, ignored)) {
            fs::remove_all(link, ignored);
        }
        fs::rename(link.string() + ".new", link, ignored);
    },
};

Target clockTarget(const fs::path& root, int hours)
{
    return {root, root / "pps/system/settings", "@settings\nhourFormat:n:" + std::to_string(hours) + '\n'};
}

Target regionTarget(const fs::path& root, const std::string& region)
{
    return {root, root / "pps/system/locale", "@locale\nregion::" + region + '\n'};
}

void operate(const fs::path& root, int count)
{
    std::mt19937 random(1); // NOLINT(cert-msc51-cpp): the same each time
    const auto below = [&random](std::size_t limit) { return random() % limit; };
    const std::string regions[] = {"fr_FR", "th_TH", "ar_EG"};
    for (int i = 0; i < count; ++i) {
        const Target target =
            below(2) == 0 ? clockTarget(root, below(2) == 0 ? 12 : 24) : regionTarget(root, regions[below(3)]);
        operations[below(std::size(operations))](target);
    }
    rewriteInPlace(clockTarget(root, 24));
    replaceByRename(regionTarget(root, "ja_JP"));
}

// Queries on a separate thread, with or without an event loop, until stopped.
template <typename Ask>
class Asker
{
public:
    Asker(bool hasLoop, Ask ask) : m_thread([this, hasLoop, ask] { run(hasLoop, ask); }) {}
    ~Asker()
    {
        m_ending = true;
        m_thread.join();
    }
    Q_DISABLE_COPY_MOVE(Asker)

    bool isRight() const { return m_isRight; }

private:
    void run(bool hasLoop, Ask ask)
    {
        const auto isRight = ask();
        std::unique_ptr<QEventLoop> loop = hasLoop ? std::make_unique<QEventLoop>() : nullptr;
        while (!m_ending) {
            if (loop) {
                loop->processEvents();
            }
            m_isRight = isRight();
            QTest::qSleep(1);
        }
    }

    std::atomic<bool> m_ending{false};
    std::atomic<bool> m_isRight{false};
    std::thread m_thread;
};

// Created on the querying thread. The result returns whether the last value has arrived.

auto makeQueries()
{
    return [] {
        return ClockSetting::clockFormat() == ClockFormat::Use24hourClock &&
               Locale::region() == QLocale(QLocale::Japanese, QLocale::Japan);
    };
}

auto makeFormatter()
{
    return [formatter = std::make_shared<CustomDateFormatter>(QStringLiteral("hm"))] {
        return formatter->format(QDateTime(QDate(2012, 5, 16), QTime(15, 5))) == QLatin1String("15:05");
    };
}

QStringList descriptors()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::AllEntries | QDir::System);
}

} // namespace

class StressTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsWithTheLastValue()
    {
        const QTemporaryDir directory;
        const fs::path root = directory.filePath("root").toStdString();
        qputenv("ZEL_PPS_ROOT", root.c_str());
        operate(root, 0);
        MessageLog log;

        const Asker queries(false, makeQueries);
        const Asker formatter(true, makeFormatter);
        QByteArray read;
        zel::PpsObject object(QStringLiteral("/pps/system/settings"));
        connect(&object, &zel::PpsObject::readyRead, this, [&] { read = object.read(); });
        QString reported;
        const zel::system::LocaleHandler handler(zel::system::LocaleType::Region);
        connect(&handler, &zel::system::LocaleHandler::changed, this, [&] { reported = handler.locale().name(); });
        QVERIFY(object.open(zel::PpsOpenMode::Subscribe));
        // A reader that sees only the last value, which equals the first, receives no signal.
        read = object.read();
        reported = handler.locale().name();
        QTRY_VERIFY(queries.isRight() && formatter.isRight());
        QTest::qWait(100);
        const QStringList before = descriptors();

        std::atomic<bool> done{false};
        std::thread writer([&] {
            operate(root, qEnvironmentVariableIsSet("ZEL_STRESS") ? 20000 : 500);
            done = true;
        });
        while (!done) {
            QTest::qWait(10);
        }
        writer.join();
        QTRY_COMPARE(read, QByteArray(clockTarget(root, 24).contents.c_str()));
        QTRY_COMPARE(reported, QStringLiteral("ja_JP"));
        QTRY_VERIFY(queries.isRight());
        QTRY_VERIFY(formatter.isRight());
        QTRY_COMPARE(descriptors(), before);
    }
};

QTEST_GUILESS_MAIN(StressTest)
#include "tst_stress.moc"
