// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "BundleList.h"
#include "PhraseTables.h"
#include "ResourceBundleReader.h"
#include "ResourceBundleWriter.h"
#include "support/Child.h"
#include "support/IcuBundles.h"
#include "support/Rows.h"

#include <zel/icu/DataDirectory.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QMap>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <memory>
#include <unicode/dtptngen.h>
#include <unicode/putil.h>
#include <unicode/reldatefmt.h>
#include <unicode/smpdtfmt.h>

using namespace zel::icudata;

// A change of generated data.
using Damage = void (*)(const QDir& bundles);
Q_DECLARE_METATYPE(Damage)

// Simulates a process with raised privileges, in which this function returns null.
extern "C" Q_DECL_EXPORT char* secure_getenv(const char* name) noexcept
{
    return std::getenv("ZEL_TEST_RAISED") != nullptr ? nullptr : std::getenv(name);
}

namespace {

// The words of a bundle's index that a copy keeps: lengths, attributes and shared texts.
constexpr std::array<int, 5> keptIndexWords{1, 2, 6, 7, 8};

// While it exists, ICU uses its built-in data; call only udata_open() then.
class StockData
{
public:
    StockData() : m_directory(u_getDataDirectory()) { u_setDataDirectory(""); }
    ~StockData() { u_setDataDirectory(m_directory.constData()); }
    Q_DISABLE_COPY_MOVE(StockData)

private:
    QByteArray m_directory;
};

template <typename Item>
QByteArray bytesOf(const Item* items, std::size_t count)
{
    return {reinterpret_cast<const char*>(items), static_cast<int>(count * sizeof(Item))};
}

// The contents of a compiled bundle by path. An independent reader, for sound bundles only.
class Dump
{
public:
    Dump(const void* body, const void* pool)
        : m_words(static_cast<const quint32*>(body)),
          m_pool(static_cast<const quint32*>(pool))
    {
        walk(m_words[0], QByteArray());
    }

    QMap<QByteArray, QByteArray> items;
    bool isSorted = true;
    quint32 longestTable = 0;

private:
    static const char* keysOf(const quint32* pool)
    {
        return reinterpret_cast<const char*>(pool + 1 + (pool[1] & 0xff));
    }
    static const quint16* unitsOf(const quint32* bundle)
    {
        return reinterpret_cast<const quint16*>(bundle + bundle[2]);
    }

    QByteArray keyAt(quint32 offset) const { return reinterpret_cast<const char*>(m_words) + offset; }
    QByteArray key32(quint32 key) const
    {
        return key >> 31U ? QByteArray(keysOf(m_pool) + (key & 0x7fffffff)) : keyAt(key);
    }
    QByteArray key16(quint32 key) const
    {
        const quint32 limit = m_words[2] > 1 + (m_words[1] & 0xff) ? m_words[2] * 4 : 0;
        return key < limit ? keyAt(key) : QByteArray(keysOf(m_pool) + (key - limit));
    }
    quint32 poolStrings() const { return m_words[1] >> 8U; }
    quint32 item16(quint32 item) const
    {
        const quint32 limit = m_words[6] >> 16U;
        return 0x60000000U | (item < limit ? item : item - limit + poolStrings());
    }

    QByteArray text16(quint32 position) const
    {
        const quint16* text =
            position < poolStrings() ? unitsOf(m_pool) + position : unitsOf(m_words) + position - poolStrings();
        if ((*text & 0xfc00) != 0xdc00) {
            return bytesOf(text, std::char_traits<char16_t>::length(reinterpret_cast<const char16_t*>(text)));
        }
        return *text < 0xdfef ? bytesOf(text + 1, *text & 0x3ffU)
                              : bytesOf(text + 2, (*text - 0xdfefU) << 16U | text[1]);
    }

    quint32 sizeAt(quint32 offset) const { return offset != 0 ? m_words[offset] : 0; }

    void walk(quint32 resource, const QByteArray& path)
    {
        const quint32 offset = resource & 0x0fffffff;
        const quint32* words = m_words + offset;
        const auto* units = reinterpret_cast<const quint16*>(words);
        switch (resource >> 28U) {
        case 0:
            items[path] = "string " + bytesOf(units + 2, sizeAt(offset));
            break;
        case 1:
            items[path] = "binary " + bytesOf(reinterpret_cast<const char*>(words + 1), sizeAt(offset));
            break;
        case 2:
            table(
                path, offset != 0 ? *units : 0, [=](quint32 i) { return key16(units[1 + i]); },
                [=](quint32 i) { return words[(*units + 2U) / 2 + i]; });
            break;
        case 3:
            items[path] = "alias " + bytesOf(units + 2, sizeAt(offset));
            break;
        case 4:
            table(
                path, sizeAt(offset), [=](quint32 i) { return key32(words[1 + i]); },
                [=](quint32 i) { return words[1 + words[0] + i]; });
            break;
        case 5:
            units = unitsOf(m_words) + offset;
            table(
                path, *units, [=](quint32 i) { return key16(units[1 + i]); },
                [=](quint32 i) { return item16(units[1U + *units + i]); });
            break;
        case 6:
            items[path] = "string " + text16(offset);
            break;
        case 7:
            items[path] = "integer " + QByteArray::number(offset);
            break;
        case 8:
            array(path, sizeAt(offset), [=](quint32 i) { return words[1 + i]; });
            break;
        case 9:
            units = unitsOf(m_words) + offset;
            array(path, *units, [=](quint32 i) { return item16(units[1 + i]); });
            break;
        case 14:
            items[path] = "integers " + bytesOf(words + 1, sizeAt(offset));
            break;
        default:
            qFatal("%s: unknown type %u", path.constData(), resource >> 28U);
        }
    }

    template <typename Key, typename Item>
    void table(const QByteArray& path, quint32 size, Key key, Item item)
    {
        items[path] = "table";
        longestTable = std::max(longestTable, size);
        for (quint32 i = 0; i < size; ++i) {
            isSorted = isSorted && (i == 0 || key(i - 1) < key(i));
            walk(item(i), path + '/' + key(i));
        }
    }

    template <typename Item>
    void array(const QByteArray& path, quint32 size, Item item)
    {
        items[path] = "array " + QByteArray::number(size);
        for (quint32 i = 0; i < size; ++i) {
            walk(item(i), path + '/' + QByteArray::number(i));
        }
    }

    const quint32* m_words;
    const quint32* m_pool;
};

using Memory = std::unique_ptr<UDataMemory, decltype(&udata_close)>;

Memory stock(const std::string& name)
{
    UErrorCode status = U_ZERO_ERROR;
    return {udata_open(nullptr, "res", name.c_str(), &status), &udata_close};
}

QByteArray copyOf(const std::string& name)
{
    QFile file(QFile::decodeName((std::string(dataDirectory()) + "/" U_ICUDATA_NAME "/" + name + ".res").c_str()));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::string_view view(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QByteArray utf8(const icu::UnicodeString& text)
{
    std::string bytes;
    return QByteArray::fromStdString(text.toUTF8String(bytes));
}

// ICU's results from the data other than the additions: dates in three calendars, the week, and the source locale.
QByteArray describe(const char* name)
{
    QByteArray text(name);
    for (const char* calendar : {"gregorian", "buddhist", "japanese"}) {
        UErrorCode status = U_ZERO_ERROR;
        icu::Locale locale(name);
        locale.setKeywordValue("calendar", calendar, status);
        const std::unique_ptr<icu::DateFormat> format(
            icu::DateFormat::createDateTimeInstance(icu::DateFormat::kFull, icu::DateFormat::kFull, locale));
        format->setTimeZone(*icu::TimeZone::getGMT());
        icu::UnicodeString date;
        format->format(1e12, date);
        const std::unique_ptr<icu::DateTimePatternGenerator> patterns(
            icu::DateTimePatternGenerator::createInstance(locale, status));
        text += '|' + utf8(date) + '|' + utf8(patterns->getBestPattern(u"yMMMEdjm", status));
        text += '|' + QByteArray::number(format->getCalendar()->getFirstDayOfWeek(status));
        text += '|' + QByteArray(format->getLocaleID(ULOC_ACTUAL_LOCALE, status)) + '|' + u_errorName(status);
    }
    return text;
}

// Runs this program in another mode with the given ICU_DATA. Returns its lines.
QList<QByteArray> runSelf(const QString& mode, const QString& icuData, bool raised = false)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("ICU_DATA");
    if (!icuData.isNull()) {
        environment.insert(QStringLiteral("ICU_DATA"), icuData);
    }
    if (raised) {
        environment.insert(QStringLiteral("ZEL_TEST_RAISED"), QStringLiteral("1"));
    }
    Child self(QCoreApplication::applicationFilePath(), {mode}, environment);
    return self.finish().output.trimmed().toUtf8().split('\n');
}

int printDescriptions()
{
    for (const std::string& name : StockBundles::names()) {
        std::puts(describe(name.c_str()).constData());
    }
    return 0;
}

// The reason why there are no phrases for German.
int printProblem()
{
    StockBundles bundles;
    std::string error;
    PhraseTables(bundles).forLocale("de", error);
    std::puts(error.c_str());
    return 0;
}

int printDataDirectory()
{
    std::printf("%s %d %d\n", u_getDataDirectory(), isDataDirectoryInUse(), hasPhraseTables());
    return 0;
}

void addLocales()
{
    QTest::addColumn<QByteArray>("locale");
    for (const std::string& name : StockBundles::names()) {
        QTest::newRow(name.c_str()) << QByteArray::fromStdString(name);
    }
}

} // namespace

class TestIcuData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY2(isDataDirectoryInUse(), "run without ICU_DATA");
        QVERIFY(hasPhraseTables());
        QVERIFY(phrasePackage() == nullptr);
        const StockData stockData;
        std::string error;
        m_pool = stock("pool");
        m_poolReader = ResourceBundleReader::open(BundleData::fromIcu(m_pool.get()), nullptr, error);
        QVERIFY2(m_poolReader, error.c_str());
    }

    void copiesKeepEverything()
    {
        const StockData stockData;
        for (const std::string& name : StockBundles::names()) {
            QCOMPARE(differenceOfCopy(name), QByteArray());
        }
    }

    // A locale without calendar data now has some: ICU must still find its parent's formats through it.
    void icuSeesNoDifference()
    {
        const QTemporaryDir empty;
        const QList<QByteArray> expected = runSelf(QStringLiteral("--describe"), empty.path());
        const std::vector<std::string> names = StockBundles::names();
        QCOMPARE(static_cast<std::size_t>(expected.size()), names.size());
        for (std::size_t i = 0; i < names.size(); ++i) {
            QCOMPARE(describe(names[i].c_str()), expected[static_cast<int>(i)]);
        }
    }

    void aliasesAreFollowed_data() { addLocales(); }

    // Wide phrases have no alias; narrow ones are an alias of the short ones where a locale has none.
    void aliasesAreFollowed()
    {
        QFETCH(const QByteArray, locale);
        UErrorCode status = U_ZERO_ERROR;
        const icu::RelativeDateTimeFormatter formatter(icu::Locale(locale.constData()), nullptr, UDAT_STYLE_NARROW,
                                                       UDISPCTX_CAPITALIZATION_NONE, status);
        icu::UnicodeString expected;
        formatter.format(UDAT_DIRECTION_LAST, UDAT_ABSOLUTE_YEAR, expected, status);
        QVERIFY(U_SUCCESS(status));

        const StockData stockData;
        StockBundles bundles;
        std::string error;
        const auto text = PhraseTables(bundles).text(locale.toStdString(), {"fields", "year-narrow", "relative", "-1"},
                                                     PhraseTables::Root::Included, error);
        QVERIFY2(error.empty(), error.c_str());
        QCOMPARE(utf8(icu::UnicodeString(text.value_or(u"").c_str())), utf8(expected));
    }

    void unknownDataIsReported_data()
    {
        const Row<QByteArray, QByteArray> row;
        row(R"("%%Fallback" { "en" })", "de: unknown key %%Fallback");
        row(R"("%%Parent":int { 1 })", "de: %%Parent is not a text");
        row(R"("%%Parent" { "de_XY" })", "de_XY: no such parent");
        row(R"("%%Parent" { "de" })", "de: parents without an end");
        row(R"(fields:alias { "/LOCALE/fields" })",
            "de: aliases without an end at /fields/minute/relativeTime/past/zero");
        row(R"(fields:alias { "/OTHER/de/fields" })",
            "de: an alias out of the locale data at /fields/minute/relativeTime/past/zero");
    }

    void unknownDataIsReported()
    {
        const auto [bundle, problem] = cells<QByteArray, QByteArray>();
        const IcuBundles bundles;
        QVERIFY(bundles.compile(QStringLiteral("de"), "de { " + bundle + " }"));
        QCOMPARE(runSelf(QStringLiteral("--problem"), bundles.path()).first(), problem);
    }

    void additionsReplaceNothing()
    {
        ResourceTree additions;
        ResourceTree& table = additions.children["units"].children["minute-past"];
        table.children["other"].text = u"changed";
        table.children["many"].text = u"new";
        const QByteArray file = copyOf("de");
        std::string error;
        const auto written = withAdditions(file, additions, error);
        QVERIFY2(written, error.c_str());
        const Dump before(file.constData() + 32, udata_getMemory(m_pool.get()));
        Dump after(written->data() + 32, udata_getMemory(m_pool.get()));
        QCOMPARE(after.items.take("/units/minute-past/many"), "string " + bytesOf(u"new", 3));
        QVERIFY(after.items == before.items);

        additions.children["units"].children["minute-past"] = {u"a text where a table is", {}};
        QVERIFY(!withAdditions(file, additions, error));
        QCOMPARE(error, std::string("/units/minute-past is there already, as something else"));
    }

    void damageIsReported_data()
    {
        const NamedRow<QByteArray, QByteArray> row;
        const QByteArray sound = copyOf("de");
        const auto wordAt = [&sound](int word) {
            quint32 value = 0;
            std::memcpy(&value, sound.mid(32 + 4 * word, 4).constData(), 4);
            return static_cast<int>(value & 0x0fffffff);
        };
        const auto edited = [](QByteArray file, int word, quint32 value) {
            return file.replace(32 + 4 * word, 4, bytesOf(&value, 1));
        };
        const auto withByte = [&sound](int offset, char value) {
            return QByteArray(sound).replace(offset, 1, &value, 1);
        };
        const auto withWord = [&](int word, quint32 value) { return edited(sound, word, value); };
        constexpr bool isBig = U_IS_BIG_ENDIAN != 0;
        constexpr int low = isBig ? 3 : 0; // where the lowest byte of a word is
        const int root = wordAt(0);
        const int lastItem = root + 2 * wordAt(root);
        const int lastUnits = wordAt(7) - 1;
        const auto lastUnit = static_cast<quint32>((wordAt(1) >> 8) + 2 * (lastUnits - wordAt(2)) + 1);

        const QByteArray noContainer = "a table or an array out of range";
        const QByteArray noResource = "a resource out of range";
        row("half a header", sound.left(20), "the file ends inside its header");
        row("magic", withByte(2, 0), "not an ICU data file");
        row("header size", withByte(isBig ? 1 : 0, 8), "the header's size is out of range");
        row("byte order", withByte(8, isBig ? 0 : 1), "made for machines with the other byte order");
        row("charset", withByte(9, 1), "made for another kind of machine");
        row("other data", withByte(12, 'C'), "not a resource bundle");
        row("version 1", withByte(16, 1), "unknown format version 1.0");
        row("version 4", withByte(16, 4), "unknown format version 4.0");
        row("no index", sound.left(32 + 12), "too short for its index");
        row("index length", withByte(32 + 4 + low, 9), "an index of unknown length 9");
        row("attributes", withByte(32 + 24 + low, 0x14), "unknown attributes");
        row("truncated", sound.left(1000), "an index with tops out of range");
        row("tops", withWord(2, 0x00ffffff), "an index with tops out of range");
        row("pool", withWord(8, 1), "made with another pool bundle");
        row("no table", withWord(0, 0x70000001), "the root is not a table");
        row("root", withWord(0, 0x4fffffff), noContainer);
        row("end before the root", edited(withWord(3, quint32(wordAt(7))), 4, quint32(wordAt(7))), noContainer);
        row("table size", withWord(root, 0x7fffffff), noContainer);
        row("key", withWord(root + 1, 0x7ffffff0), "a key out of range");
        row("pool key", withWord(root + 1, 0xfffffff0), "a key out of range");
        row("key order", withWord(root + 1, 0x80000000 + quint32(wordAt(root + 2))), "a table with keys out of order");
        row("unknown type", withWord(lastItem, 0xa0000000), "a resource of unknown type 10");
        row("text without an end", edited(withWord(lastUnits, 0x00410041), lastItem, 6U << 28U | lastUnit), noResource);
        row("text longer than all",
            edited(withWord(lastUnits, isBig ? 0x0041dc05 : 0xdc050041), lastItem, 6U << 28U | lastUnit), noResource);
        for (const quint32 type : {0x0U, 0x1U, 0x2U, 0x3U, 0x5U, 0x6U, 0x8U, 0x9U, 0xeU}) {
            const bool isContainer = type == 0x2U || type == 0x5U || type == 0x8U || type == 0x9U;
            row(qPrintable(QStringLiteral("resource of type %1").arg(type)),
                withWord(lastItem, type << 28U | 0x0ffffff0), isContainer ? noContainer : noResource);
        }
    }

    void damageIsReported()
    {
        const auto [file, expected] = cells<QByteArray, QByteArray>();
        std::string error;
        const auto data = BundleData::fromFile(view(file), error);
        QVERIFY(!data || !ResourceBundleReader::open(*data, &*m_poolReader, error));
        QCOMPARE(QByteArray::fromStdString(error), expected);
    }

    // Loads a copy of the library from a separate installed tree.
    void namedDirectoryIsKept()
    {
        const QTemporaryDir tree;
        const QDir data(QFile::decodeName(dataDirectory()));
        const QString library = tree.filePath("lib/libzelicudata.so.1");
        QVERIFY(QDir(tree.path()).mkpath("lib") && QDir(tree.path()).mkpath("share/zel"));
        QVERIFY(QFile::link(data.path(), tree.filePath("share/zel/icu")));
        QVERIFY(QFile::copy(data.filePath("../../../lib/libzelicudata.so.1"), library));

        const StockData stockData;
        u_setDataDirectory("/elsewhere");
        QVERIFY2(dlopen(QFile::encodeName(library).constData(), RTLD_NOW | RTLD_LOCAL) != nullptr, dlerror());
        QCOMPARE(QByteArray(u_getDataDirectory()), QByteArray("/elsewhere"));
    }

    void environmentTakesPrecedence()
    {
        const QList<QByteArray> ours{QByteArray(dataDirectory()) + " 1 1"};
        const QString mode = QStringLiteral("--data-directory");
        QCOMPARE(runSelf(mode, QString()), ours);
        QCOMPARE(runSelf(mode, QStringLiteral("")), ours);
        QCOMPARE(runSelf(mode, QStringLiteral("/elsewhere")), QList<QByteArray>{"/elsewhere 0 0"});
        QCOMPARE(runSelf(mode, QStringLiteral("/elsewhere"), true), ours);
    }

    void generatorRepairs_data()
    {
        const NamedRow<Damage> row;
        row("nothing", [](const QDir&) {});
        row("bundle gone", [](const QDir& bundles) { QFile::remove(bundles.filePath("de.res")); });
        row("bundle cut short", [](const QDir& bundles) { QFile::resize(bundles.filePath("fr.res"), 9); });
        row("pool gone", [](const QDir& bundles) { QDir(bundles.filePath("pool")).removeRecursively(); });
        row("list gone", [](const QDir& bundles) { QFile::remove(bundles.filePath("bundles.list")); });
        row("all gone", [](const QDir& bundles) { QDir(bundles).removeRecursively(); });
    }

    void generatorRepairs()
    {
        const auto [damage] = cells<Damage>();
        const QTemporaryDir directory;
        const QDir bundles(directory.filePath(QStringLiteral(U_ICUDATA_NAME)));
        const QStringList always{directory.path()};
        const QStringList unlessSound{QStringLiteral("--unless-sound"), directory.path()};
        QCOMPARE(QProcess::execute(QStringLiteral(ZEL_ICUDATA_GEN), always), 0);
        const QDateTime made = QFileInfo(bundles, QStringLiteral("bundles.list")).lastModified();
        damage(bundles);
        const auto isSound = [path = bundles.path().toStdString()] {
            return BundleList::problemOf(path).empty() && BundleList::hasPool(path);
        };
        const bool wasSound = isSound();
        QCOMPARE(wasSound, QByteArray(QTest::currentDataTag()) == "nothing");
        QCOMPARE(QProcess::execute(QStringLiteral(ZEL_ICUDATA_GEN), unlessSound), 0);
        QVERIFY(isSound());
        QCOMPARE(QFileInfo(bundles, QStringLiteral("bundles.list")).lastModified() == made, wasSound);
    }

    void generatorIsForOneKindOfData()
    {
        const QTemporaryDir directory;
        QProcess generator;
        generator.start(QStringLiteral(ZEL_ICUDATA_GEN),
                        {QStringLiteral("--for=ICU 50.2, little-endian"), directory.path()});
        QVERIFY(generator.waitForFinished(Child::timeoutMs));
        QCOMPARE(generator.exitCode(), 1);
        const QByteArray error = generator.readAllStandardError();
        QVERIFY2(
            error.startsWith("zel-icudata-gen: the build needs data of ICU 50.2, little-endian; this generator has "
                             "that of ICU " U_ICU_VERSION ", "),
            error);
        QVERIFY(QDir(directory.path()).isEmpty());
    }

    void generatorsRunConcurrently()
    {
        const QTemporaryDir directory;
        for (int round = 0; round < 3; ++round) {
            std::array<QProcess, 2> generators;
            for (QProcess& generator : generators) {
                generator.start(QStringLiteral(ZEL_ICUDATA_GEN), {directory.path()});
            }
            for (QProcess& generator : generators) {
                QVERIFY(generator.waitForFinished(Child::timeoutMs));
                QCOMPARE(generator.readAllStandardError(), QByteArray());
                QCOMPARE(generator.exitCode(), 0);
            }
            QCOMPARE(BundleList::problemOf(directory.filePath(QStringLiteral(U_ICUDATA_NAME)).toStdString()),
                     std::string());
            QCOMPARE(QDir(directory.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(),
                     1);
        }
    }

private:
    // By path and content, so that it does not matter where in a bundle things are.
    QByteArray differenceOfCopy(const std::string& name) const
    {
        static const QRegularExpression added(QRegularExpression::anchoredPattern(
            QStringLiteral("/units(/(minute|hour|year)-(past|future)(/(zero|one|two|few|many|other))?)?"
                           "|/calendar(/gregorian(/fields(/(day|second)(/relative(/(-1|0|1))?)?)?)?)?")));
        const Memory original = stock(name);
        const QByteArray copy = copyOf(name);
        const auto* words = static_cast<const quint32*>(udata_getMemory(original.get()));
        const auto* copyWords = reinterpret_cast<const quint32*>(copy.constData() + 32);
        const bool sameFlags = !copy.isEmpty() && std::all_of(keptIndexWords.begin(), keptIndexWords.end(),
                                                              [=](int word) { return words[word] == copyWords[word]; });
        if (!sameFlags) {
            return QByteArray::fromStdString(name) + ": no copy, or one with other flags";
        }
        const Dump before(words, udata_getMemory(m_pool.get()));
        Dump after(copyWords, udata_getMemory(m_pool.get()));
        QList<QByteArray> wrong(after.isSorted ? QList<QByteArray>() : QList<QByteArray>{"keys out of order"});
        if (copyWords[5] < after.longestTable) {
            wrong.append("a table longer than the index says");
        }
        for (auto item = before.items.begin(); item != before.items.end(); ++item) {
            if (after.items.take(item.key()) != item.value()) {
                wrong.append("lost: " + item.key());
            }
        }
        for (auto item = after.items.begin(); item != after.items.end(); ++item) {
            if (!added.match(QString::fromUtf8(item.key())).hasMatch()) {
                wrong.append("added: " + item.key());
            }
        }
        return wrong.isEmpty() ? QByteArray() : QByteArray::fromStdString(name) + ": " + wrong.join(", ");
    }

    std::optional<std::string> withAdditions(const QByteArray& file, const ResourceTree& additions,
                                             std::string& error) const
    {
        const auto data = BundleData::fromFile(view(file), error);
        const auto bundle = data ? ResourceBundleReader::open(*data, &*m_poolReader, error) : std::nullopt;
        return bundle ? ResourceBundleWriter::write(*bundle, additions, error) : std::nullopt;
    }

    Memory m_pool{nullptr, &udata_close};
    std::optional<ResourceBundleReader> m_poolReader;
};

int main(int argc, char** argv)
{
    // Pointers: the sanitizer takes a reference to a function in Thumb code for misaligned.
    const QMap<QByteArray, int (*)()> modes{
        {"--problem", &printProblem}, {"--describe", &printDescriptions}, {"--data-directory", &printDataDirectory}};
    if (auto* const run = modes.value(argv[1])) {
        return run();
    }
    const QCoreApplication application(argc, argv);
    TestIcuData test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_icudata.moc"
