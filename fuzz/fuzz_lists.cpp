// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Reads arbitrary bytes as the list of a data directory. A valid list is unchanged after writing and reading it. A
// directory is valid exactly if a simple reading of the list finds each file with its size, and the contents of files
// changed later.

#include "Require.h"

#include "BundleList.h"
#include "StockBundles.h"
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <QtCore/QTemporaryDir>
#include <regex>
#include <sstream>

using namespace zel::icudata;

namespace {

namespace fs = std::filesystem;

std::uint32_t poolChecksum()
{
    StockBundles bundles;
    std::string error;
    return bundles.find("pool", error)->index(IndexWord::PoolChecksum);
}

void requireRoundTrip(const std::string& file)
{
    const auto list = BundleList::fromFile(file);
    const auto again = list ? BundleList::fromFile(list->toFile()) : std::nullopt;
    ZEL_REQUIRE(!list || (again && again->toFile() == list->toFile()));
}

void write(const fs::path& path, const std::string& contents)
{
    std::ofstream(path, std::ios::binary) << contents;
}

// A small directory with a list.
class Directory
{
public:
    Directory()
    {
        fs::create_directory(m_path);
        write(m_path / "a.res", "abc");
        write(m_path / "b.res", "");
    }

    const fs::path& path() const { return m_path; }
    void setList(const std::string& list) const { write(m_path / BundleList::fileName, list); }

    // Sets the time of a file to one after the list.
    void touch(const char* name) const
    {
        fs::last_write_time(m_path / name, fs::file_time_type::clock::now() + std::chrono::hours(24));
    }

    bool hasFile(const std::string& name, std::uintmax_t size) const
    {
        std::error_code error;
        return !name.empty() && fs::exists(m_path / name, error) && fs::file_size(m_path / name, error) == size &&
               !error;
    }

private:
    QTemporaryDir m_parent;
    fs::path m_path{fs::path(m_parent.path().toStdString()) / "data"};
};

bool isNumber(const std::string& text)
{
    errno = 0;
    std::strtoull(text.c_str(), nullptr, 10);
    return errno != ERANGE;
}

bool isPlainlySound(const Directory& directory, const std::string& lines)
{
    static const std::regex form("([^ \n]*) ([0-9]+) ([0-9]+)");
    std::istringstream stream(lines);
    std::smatch match;
    for (std::string line; std::getline(stream, line);) {
        if (!std::regex_match(line, match, form) || !isNumber(match[2]) || !isNumber(match[3]) ||
            !directory.hasFile(match[1], std::strtoull(match[2].str().c_str(), nullptr, 10))) {
            return false;
        }
    }
    return lines.empty() || lines.back() == '\n';
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Directory directory;
    static const Directory changed;
    static const std::uint32_t pool = poolChecksum();
    std::string text(reinterpret_cast<const char*>(data), size);
    requireRoundTrip(text);
    static const bool hasPool = BundleList::hasPool(directory.path());
    ZEL_REQUIRE(!hasPool);

    BundleList list(pool);
    list.add("a.res", text);
    changed.setList(list.toFile());
    changed.touch("a.res");
    ZEL_REQUIRE(BundleList::problemOf(changed.path()).empty() == (text == "abc"));

    // Only files of this directory, whose times are known.
    std::replace(text.begin(), text.end(), '/', '_');
    std::replace(text.begin(), text.end(), '\0', '_');
    const auto count = std::count(text.begin(), text.end(), '\n');
    const std::string file = std::to_string(count) + ' ' + std::to_string(pool) + '\n' + text;
    requireRoundTrip(file);
    directory.setList(file);
    ZEL_REQUIRE(BundleList::problemOf(directory.path()).empty() == isPlainlySound(directory, text));
    return 0;
}
