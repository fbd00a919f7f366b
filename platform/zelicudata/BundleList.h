#ifndef ZEL_ICUDATA_BUNDLELIST_H
#define ZEL_ICUDATA_BUNDLELIST_H

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unicode/udata.h>
#include <vector>

namespace zel::icudata {

/**
 * The list that lies beside the bundles of a data directory and says what each of them is to be.
 *
 * ICU trusts its data: it shows another language where a bundle is damaged at its start, reads past the end of one that
 * was cut short, and finds nothing in bundles made with another pool of keys and texts. The list finds these before
 * ICU does.
 */
class BundleList
{
public:
    static constexpr const char* fileName = "bundles.list";
    /** Where the pool of the bundles is, below the directory: with it, the bundles can be opened as a package. */
    static constexpr const char* packageName = "pool/" U_ICUDATA_NAME;
    static constexpr const char* poolName = "pool.res";

    /** An empty list of bundles that share keys and texts of the pool with this checksum. */
    explicit BundleList(std::uint32_t poolChecksum) : m_poolChecksum(poolChecksum) {}

    /** The list that toFile() wrote; none where the file is anything else. */
    static std::optional<BundleList> fromFile(std::string_view file);

    /** Adds a bundle by the name, relative to the directory, and the bytes of its file. */
    void add(const std::string& name, std::string_view bytes);

    /** The list as the file that goes into the directory, after all bundles. */
    std::string toFile() const;

    /**
     * What is wrong with the directory at a path, or with it for the ICU in use; empty where nothing is.
     *
     * Costs one look at the status of each file. Only the contents of those changed after the list are read.
     */
    static std::string problemOf(const std::filesystem::path& path);

    /** The same for the first line of the list alone, at a cost that does not grow with the bundles. */
    static std::string problemOfStart(const std::filesystem::path& path);

    /** Whether the pool of the ICU in use is in the directory at a path, so that packageName can be opened. */
    static bool hasPool(const std::filesystem::path& path);

private:
    struct Bundle
    {
        std::string name;
        std::size_t size = 0;
        std::uint64_t checksum = 0;
    };
    class Directory;

    std::uint32_t m_poolChecksum;
    std::vector<Bundle> m_bundles;
};

} // namespace zel::icudata

#endif
