// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

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
 * The list of the bundles in a data directory, with their sizes and checksums.
 *
 * ICU trusts its data: it shows another language if a bundle is damaged at its start, reads past the end of a truncated
 * one, and finds nothing in bundles that were made with another pool of keys and texts. problemOf() detects these
 * before ICU reads them.
 */
class BundleList
{
public:
    static constexpr const char* fileName = "bundles.list";
    /** The pool of the bundles, below the directory; with it, the bundles can be opened as a package. */
    static constexpr const char* packageName = "pool/" U_ICUDATA_NAME;
    static constexpr const char* poolName = "pool.res";

    /** An empty list, for bundles that share the keys and texts of the pool with this checksum. */
    explicit BundleList(std::uint32_t poolChecksum) : m_poolChecksum(poolChecksum) {}

    /** Parses the result of toFile(); none for any other file. */
    static std::optional<BundleList> fromFile(std::string_view file);

    /** Adds a bundle: its name, relative to the directory, and the bytes of its file. */
    void add(const std::string& name, std::string_view bytes);

    /** The list as a file, to be written after all bundles. */
    std::string toFile() const;

    /**
     * Checks a directory for the ICU in use, and returns the reason why it cannot be used; empty if it can.
     *
     * Costs one stat() per file. Reads only the files that are newer than the list.
     */
    static std::string problemOf(const std::filesystem::path& path);

    /** Checks only the first line of the list, at a cost that does not depend on the number of bundles. */
    static std::string problemOfStart(const std::filesystem::path& path);

    /** Whether the pool of the ICU in use is in the directory, so that packageName can be opened. */
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
