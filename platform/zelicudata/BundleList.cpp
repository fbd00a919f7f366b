// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "BundleList.h"

#include "BundleData.h"

#include <algorithm>
#include <charconv>
#include <fcntl.h>
#include <sys/stat.h>
#include <tuple>
#include <unicode/udata.h>
#include <unistd.h>

namespace zel::icudata {

namespace {

namespace fs = std::filesystem;

constexpr const char* otherIcu = "made for another ICU";
constexpr std::size_t largestFile = std::size_t{16} * 1024 * 1024;

// FNV-1a: finds damage, not malice.
std::uint64_t checksumOf(std::string_view bytes)
{
    std::uint64_t checksum = 0xcbf29ce484222325U;
    for (const char byte : bytes) {
        checksum = (checksum ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
    }
    return checksum;
}

// The pool in ICU's own data; null if it has none.
icu::LocalUDataMemoryPointer icuPool()
{
    UErrorCode status = U_ZERO_ERROR;
    icu::LocalUDataMemoryPointer pool(udata_open(nullptr, "res", "pool", &status));
    return U_SUCCESS(status) ? std::move(pool) : icu::LocalUDataMemoryPointer();
}

std::uint32_t checksumOfIcuPool()
{
    const icu::LocalUDataMemoryPointer pool = icuPool();
    const auto* const words =
        static_cast<const std::uint32_t*>(pool.isValid() ? udata_getMemory(pool.getAlias()) : nullptr);
    return words != nullptr ? words[static_cast<std::size_t>(IndexWord::PoolChecksum)] : 0;
}

// Removes a number and its separator from the start of a text.
template <typename Number>
bool takeNumber(std::string_view& text, Number& number, char separator)
{
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop == end || *stop != separator) {
        return false;
    }
    text.remove_prefix(static_cast<std::size_t>(stop - text.data()) + 1);
    return true;
}

bool takeName(std::string_view& text, std::string& name)
{
    const std::size_t end = text.find(' ');
    if (end == std::string_view::npos || text.find('\n') < end) {
        return false;
    }
    name = text.substr(0, end);
    text.remove_prefix(end + 1);
    return true;
}

bool isNewer(const struct stat& one, const struct stat& other)
{
    return std::tie(one.st_mtim.tv_sec, one.st_mtim.tv_nsec) > std::tie(other.st_mtim.tv_sec, other.st_mtim.tv_nsec);
}

std::string damaged(const std::string& file)
{
    return file + " is missing or damaged";
}

} // namespace

// An open directory, so that looking up its files does not resolve the whole path each time.
class BundleList::Directory
{
public:
    explicit Directory(const fs::path& path) : m_descriptor(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {}
    ~Directory() { ::close(m_descriptor); }
    Directory(const Directory&) = delete;
    Directory& operator=(const Directory&) = delete;

    bool look(const char* file, struct stat& status) const { return ::fstatat(m_descriptor, file, &status, 0) == 0; }

    // The contents of a file, or their start; empty for a file that could block or be endless.
    std::string contentsOf(const char* file, std::size_t most = largestFile) const
    {
        const int descriptor = ::openat(m_descriptor, file, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
        struct stat status = {};
        std::string contents;
        if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
            static_cast<std::size_t>(status.st_size) <= largestFile) {
            contents.resize(std::min(most, static_cast<std::size_t>(status.st_size)));
            const ssize_t size = ::read(descriptor, contents.data(), contents.size());
            contents.resize(size < 0 ? 0 : static_cast<std::size_t>(size));
        }
        ::close(descriptor);
        return contents;
    }

    bool isSound(const Bundle& bundle, const struct stat& listed) const
    {
        struct stat status = {};
        return look(bundle.name.c_str(), status) && static_cast<std::size_t>(status.st_size) == bundle.size &&
               (!isNewer(status, listed) || checksumOf(contentsOf(bundle.name.c_str())) == bundle.checksum);
    }

private:
    int m_descriptor;
};

std::optional<BundleList> BundleList::fromFile(std::string_view file)
{
    std::size_t count = 0;
    BundleList list(0);
    if (!takeNumber(file, count, ' ') || !takeNumber(file, list.m_poolChecksum, '\n')) {
        return std::nullopt;
    }
    for (; count > 0; --count) {
        Bundle bundle;
        if (!takeName(file, bundle.name) || !takeNumber(file, bundle.size, ' ') ||
            !takeNumber(file, bundle.checksum, '\n')) {
            return std::nullopt;
        }
        list.m_bundles.push_back(std::move(bundle));
    }
    return file.empty() ? std::make_optional(std::move(list)) : std::nullopt;
}

void BundleList::add(const std::string& name, std::string_view bytes)
{
    m_bundles.push_back({name, bytes.size(), checksumOf(bytes)});
}

std::string BundleList::toFile() const
{
    std::string file = std::to_string(m_bundles.size()) + ' ' + std::to_string(m_poolChecksum) + '\n';
    for (const Bundle& bundle : m_bundles) {
        file += bundle.name + ' ' + std::to_string(bundle.size) + ' ' + std::to_string(bundle.checksum) + '\n';
    }
    return file;
}

std::string BundleList::problemOfStart(const fs::path& path)
{
    constexpr std::size_t longestLine = 64;
    const std::string start = Directory(path).contentsOf(fileName, longestLine);
    std::string_view rest = start;
    std::size_t count = 0;
    std::uint32_t checksum = 0;
    if (!takeNumber(rest, count, ' ') || !takeNumber(rest, checksum, '\n')) {
        return damaged(fileName);
    }
    return checksum == checksumOfIcuPool() ? std::string() : otherIcu;
}

// Once in each process: compares sizes and times, and reads only contents that are newer than the list.
std::string BundleList::problemOf(const fs::path& path)
{
    const Directory directory(path);
    const std::optional<BundleList> list = fromFile(directory.contentsOf(fileName));
    struct stat listed = {};
    if (!list || !directory.look(fileName, listed)) {
        return damaged(fileName);
    }
    if (list->m_poolChecksum != checksumOfIcuPool()) {
        return otherIcu;
    }
    for (const Bundle& bundle : list->m_bundles) {
        if (!directory.isSound(bundle, listed)) {
            return damaged(bundle.name);
        }
    }
    return {};
}

bool BundleList::hasPool(const fs::path& path)
{
    const icu::LocalUDataMemoryPointer pool = icuPool();
    return pool.isValid() &&
           Directory(path / packageName).contentsOf(poolName) == BundleData::fromIcu(pool.getAlias()).toFile();
}

} // namespace zel::icudata
