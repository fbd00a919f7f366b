// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICUDATA_RESOURCEBUNDLEWRITER_H
#define ZEL_ICUDATA_RESOURCEBUNDLEWRITER_H

#include "ResourceBundleReader.h"
#include "ResourceTree.h"

#include <map>
#include <optional>
#include <string>

namespace zel::icudata {

/**
 * Writes a copy of a bundle with additional entries.
 *
 * The bytes of the bundle keep their contents and offsets, so that no entry can change; new bytes are appended. Only
 * the tables on the path to a new entry are written a second time, with old and new items, and the index gets the new
 * root and the new end. Existing entries are never replaced.
 */
class ResourceBundleWriter
{
public:
    /** The bytes of the copy's .res file; none, with the reason in `error`, if an addition does not fit. */
    static std::optional<std::string> write(const ResourceBundleReader& bundle, const ResourceTree& additions,
                                            std::string& error);

private:
    struct Item
    {
        std::uint32_t keyWord;
        Resource value;
    };
    using Items = std::map<std::string, Item, std::less<>>;

    explicit ResourceBundleWriter(const ResourceBundleReader& bundle);

    Items itemsOf(Resource table) const;
    Resource addMerged(Items items, const ResourceTree& additions, const std::string& path);
    void merge(Item& item, const ResourceTree& addition, const std::string& path);
    Resource addTable(const Items& items);
    Resource addString(const std::u16string& text);
    std::uint32_t addKey(const std::string& key);
    std::string finish(Resource root);

    std::uint32_t nextWord() const;
    void append(std::uint32_t word);
    void append(const void* bytes, std::size_t size);
    void setIndex(IndexWord position, std::uint32_t word);

    const ResourceBundleReader& m_bundle;
    std::string m_body;
    std::map<std::string, std::uint32_t> m_keys;
    std::map<std::u16string, Resource> m_strings;
    std::uint32_t m_longestTable;
    std::string m_error;
};

} // namespace zel::icudata

#endif
