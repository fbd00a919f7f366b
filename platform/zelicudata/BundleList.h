#ifndef ZEL_ICUDATA_BUNDLELIST_H
#define ZEL_ICUDATA_BUNDLELIST_H

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

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

    /** Adds a bundle by the name and the bytes of its file. */
    void add(const std::string& name, std::string_view bytes);

    /** The list as the file that goes into the directory, after all bundles. */
    std::string toFile(std::uint32_t poolChecksum) const;

    /**
     * What is wrong with the directory at a path, or with it for the ICU in use; empty where nothing is.
     *
     * Costs one look at the status of each file. Only the contents of those changed after the list are read.
     */
    static std::string problemOf(const std::filesystem::path& path);

private:
    std::size_t m_count = 0;
    std::string m_lines;
};

} // namespace zel::icudata

#endif
