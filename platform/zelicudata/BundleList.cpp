#include "BundleList.h"

#include "ResourceBundleReader.h"

#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <tuple>
#include <unicode/udata.h>

namespace zel::icudata {

namespace {

namespace fs = std::filesystem;

/** A line of the list. */
struct Bundle
{
    std::string name;
    std::uintmax_t size = 0;
    std::uint64_t checksum = 0;
};

// FNV-1a: finds damage, not malice.
std::uint64_t checksumOf(std::string_view bytes)
{
    std::uint64_t checksum = 0xcbf29ce484222325U;
    for (const char byte : bytes) {
        checksum = (checksum ^ static_cast<unsigned char>(byte)) * 0x100000001b3U;
    }
    return checksum;
}

std::string contentsOf(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/** The checksum of the pool in ICU's own data; 0 where it has none. */
std::uint32_t checksumOfIcuPool()
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUDataMemoryPointer pool(udata_open(nullptr, "res", "pool", &status));
    if (U_FAILURE(status)) {
        return 0;
    }
    const auto* const words = static_cast<const std::uint32_t*>(udata_getMemory(pool.getAlias()));
    return words[static_cast<std::size_t>(IndexWord::PoolChecksum)];
}

bool isNewer(const struct stat& one, const struct stat& other)
{
    return std::tie(one.st_mtim.tv_sec, one.st_mtim.tv_nsec) > std::tie(other.st_mtim.tv_sec, other.st_mtim.tv_nsec);
}

bool isSound(const std::string& path, const Bundle& expected, const struct stat& list)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && static_cast<std::uintmax_t>(status.st_size) == expected.size &&
           (!isNewer(status, list) || checksumOf(contentsOf(path)) == expected.checksum);
}

} // namespace

void BundleList::add(const std::string& name, std::string_view bytes)
{
    ++m_count;
    m_lines += name + ' ' + std::to_string(bytes.size()) + ' ' + std::to_string(checksumOf(bytes)) + '\n';
}

std::string BundleList::toFile(std::uint32_t poolChecksum) const
{
    return std::to_string(m_count) + ' ' + std::to_string(poolChecksum) + '\n' + m_lines;
}

std::string BundleList::problemOf(const fs::path& directory)
{
    std::string damagedList = std::string(fileName) + " is missing or damaged";
    const fs::path path = directory / fileName;
    struct stat status = {};
    std::ifstream list(path);
    std::size_t count = 0;
    std::uint32_t pool = 0;
    if (::stat(path.c_str(), &status) != 0 || !(list >> count >> pool)) {
        return damagedList;
    }
    if (pool != checksumOfIcuPool()) {
        return "made for another ICU";
    }
    for (; count > 0; --count) {
        Bundle bundle;
        if (!(list >> bundle.name >> bundle.size >> bundle.checksum)) {
            return damagedList;
        }
        if (!isSound(directory / bundle.name, bundle, status)) {
            return bundle.name + " is missing or damaged";
        }
    }
    return {};
}

} // namespace zel::icudata
