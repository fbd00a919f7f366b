#include "BundleList.h"

#include "ResourceBundleReader.h"

#include <algorithm>
#include <charconv>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <tuple>
#include <unicode/udata.h>
#include <unistd.h>

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

/** A directory, opened so that each look at a file in it does not walk the whole path again. */
class Directory
{
public:
    explicit Directory(const fs::path& path) : m_descriptor(::open(path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {}
    ~Directory() { ::close(m_descriptor); }
    Directory(const Directory&) = delete;
    Directory& operator=(const Directory&) = delete;

    bool look(const char* file, struct stat& status) const { return ::fstatat(m_descriptor, file, &status, 0) == 0; }

private:
    int m_descriptor;
};

/** Takes the next word off a text; empty at the end. */
std::string_view nextWord(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \n"), text.size()));
    const std::string_view word = text.substr(0, text.find_first_of(" \n"));
    text.remove_prefix(word.size());
    return word;
}

template <typename Number>
bool nextNumber(std::string_view& text, Number& number)
{
    const std::string_view word = nextWord(text);
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    return error == std::errc() && stop == end;
}

bool nextBundle(std::string_view& text, Bundle& bundle)
{
    bundle.name = nextWord(text);
    return nextNumber(text, bundle.size) && nextNumber(text, bundle.checksum);
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

void BundleList::add(const std::string& name, std::string_view bytes)
{
    ++m_count;
    m_lines += name + ' ' + std::to_string(bytes.size()) + ' ' + std::to_string(checksumOf(bytes)) + '\n';
}

std::string BundleList::toFile(std::uint32_t poolChecksum) const
{
    return std::to_string(m_count) + ' ' + std::to_string(poolChecksum) + '\n' + m_lines;
}

// This is done whenever a process starts: sizes and times are looked at, and contents only where the times are odd.
std::string BundleList::problemOf(const fs::path& path)
{
    const Directory directory(path);
    const std::string list = contentsOf(path / fileName);
    std::string_view rest = list;
    struct stat listed = {};
    std::size_t count = 0;
    std::uint32_t pool = 0;
    if (!directory.look(fileName, listed) || !nextNumber(rest, count) || !nextNumber(rest, pool)) {
        return damaged(fileName);
    }
    if (pool != checksumOfIcuPool()) {
        return "made for another ICU";
    }
    Bundle bundle;
    for (; count > 0; --count) {
        if (!nextBundle(rest, bundle)) {
            return damaged(fileName);
        }
        struct stat status = {};
        if (!directory.look(bundle.name.c_str(), status) ||
            static_cast<std::uintmax_t>(status.st_size) != bundle.size ||
            (isNewer(status, listed) && checksumOf(contentsOf(path / bundle.name)) != bundle.checksum)) {
            return damaged(bundle.name);
        }
    }
    return {};
}

} // namespace zel::icudata
