// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// zel-icudata-gen [--unless-sound] [--for=<kind>] <directory>: writes ICU's locale bundles, with phrase tables added,
// to <directory>/<icudtNNl>. With --for, fails unless ICU's data is of that kind, such as "ICU 72.1, little-endian".

#include "BundleList.h"
#include "PhraseTables.h"
#include "ResourceBundleWriter.h"
#include "StockBundles.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <exception>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <unicode/uversion.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using namespace zel::icudata;

[[noreturn]] void fail(const std::string& reason)
{
    throw std::runtime_error(reason + " (this is ICU " U_ICU_VERSION "; ICU 72 to 78 are supported)");
}

void writeFile(const fs::path& path, const std::string& bytes)
{
    std::ofstream file(path, std::ios::binary);
    file << bytes;
    file.close();
    if (!file) {
        fail(path.string() + ": cannot be written");
    }
}

std::string copyWithPhrases(const std::string& name, StockBundles& bundles, PhraseTables& phrases)
{
    std::string error;
    const ResourceBundleReader* bundle = bundles.find(name, error);
    if (bundle == nullptr) {
        fail(error.empty() ? name + ": listed by ICU, but not there" : error);
    }
    const auto tables = phrases.forLocale(name, error);
    if (!tables) {
        fail(error);
    }
    auto copy = ResourceBundleWriter::write(*bundle, *tables, error);
    if (!copy) {
        fail(name + ": " + error);
    }
    return *std::move(copy);
}

void writeBundles(const fs::path& directory)
{
    std::string error;
    StockBundles bundles;
    PhraseTables phrases(bundles);
    const ResourceBundleReader* const pool = bundles.find("pool", error);
    if (!error.empty()) {
        fail(error);
    }
    BundleList list(pool != nullptr ? pool->index(IndexWord::PoolChecksum) : 0);
    if (pool != nullptr) {
        fs::create_directories(directory / BundleList::packageName);
        writeFile(directory / BundleList::packageName / BundleList::poolName, pool->data().toFile());
    }
    for (const std::string& name : StockBundles::names()) {
        const std::string copy = copyWithPhrases(name, bundles, phrases);
        list.add(name + ".res", copy);
        writeFile(directory / (name + ".res"), copy);
    }
    writeFile(directory / BundleList::fileName, list.toFile());
}

// A directory for this run only, removed with this object.
class Unfinished
{
public:
    explicit Unfinished(const fs::path& directory) : m_path(directory / U_ICUDATA_NAME ".unfinished.XXXXXX")
    {
        fs::create_directories(directory);
        std::string name = m_path.string();
        if (::mkdtemp(name.data()) == nullptr) {
            throw fs::filesystem_error("cannot be made", m_path, std::error_code(errno, std::generic_category()));
        }
        m_path = name;
        fs::permissions(m_path, fs::perms(0755));
    }
    ~Unfinished()
    {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }
    Unfinished(const Unfinished&) = delete;
    Unfinished& operator=(const Unfinished&) = delete;

    const fs::path& path() const { return m_path; }

    // Exchanges the directory with the final one atomically; the old one is then removed with this object.
    void putInPlaceOf(const fs::path& final) const
    {
        std::error_code isThere;
        fs::rename(m_path, final, isThere);
        if (isThere && ::renameat2(AT_FDCWD, m_path.c_str(), AT_FDCWD, final.c_str(), RENAME_EXCHANGE) != 0) {
            fs::remove_all(final); // the file system cannot exchange two names
            fs::rename(m_path, final);
        }
    }

private:
    fs::path m_path;
};

// Moved into place when complete: the final directory is always whole, also with several runs at once, and running
// programs keep their open files.
void generate(const fs::path& directory)
{
    const Unfinished unfinished(directory);
    writeBundles(unfinished.path());
    unfinished.putInPlaceOf(directory / U_ICUDATA_NAME);
}

bool isSound(const fs::path& bundles)
{
    return BundleList::problemOf(bundles).empty() && BundleList::hasPool(bundles);
}

struct Options
{
    bool unlessSound = false;
    std::string kind;
    fs::path directory;
};

std::optional<Options> parse(const std::vector<std::string>& arguments)
{
    constexpr std::string_view forKind = "--for=";
    Options options;
    for (const std::string& argument : arguments) {
        if (argument == "--unless-sound") {
            options.unlessSound = true;
        } else if (argument.rfind(forKind, 0) == 0) {
            options.kind = argument.substr(forKind.size());
        } else if (options.directory.empty()) {
            options.directory = argument;
        } else {
            return std::nullopt;
        }
    }
    return options.directory.empty() ? std::nullopt : std::make_optional(std::move(options));
}

std::string kindOfData()
{
    UVersionInfo version = {};
    std::array<char, U_MAX_VERSION_STRING_LENGTH> text{};
    u_getVersion(version);
    u_versionToString(version, text.data());
    return std::string("ICU ") + text.data() + (U_IS_BIG_ENDIAN != 0 ? ", big-endian" : ", little-endian");
}

int run(const std::vector<std::string>& arguments)
{
    const auto options = parse(arguments);
    if (!options) {
        std::cerr << "usage: zel-icudata-gen [--unless-sound] [--for=<kind>] <directory>\n";
        return EXIT_FAILURE;
    }
    if (!options->kind.empty() && options->kind != kindOfData()) {
        throw std::runtime_error("the build needs data of " + options->kind + "; this generator has that of " +
                                 kindOfData());
    }
    // Copy ICU's own data, whatever ICU_DATA is in the environment of the build.
    unsetenv("ICU_DATA"); // NOLINT(concurrency-mt-unsafe): the only thread
    if (!options->unlessSound || !isSound(options->directory / U_ICUDATA_NAME)) {
        generate(options->directory);
    }
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& exception) {
        std::cerr << "zel-icudata-gen: " << exception.what() << '\n';
        return EXIT_FAILURE;
    }
}
