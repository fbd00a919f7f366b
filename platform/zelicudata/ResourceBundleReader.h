// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICUDATA_RESOURCEBUNDLEREADER_H
#define ZEL_ICUDATA_RESOURCEBUNDLEREADER_H

#include "BundleData.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zel::icudata {

/** A reference to a resource: the type in the upper 4 bits, the offset or a small value in the lower 28. */
using Resource = std::uint32_t;

/** The types of resources, with the names in ICU's unicode/ures.h and, for internal types, in its uresdata.h. */
enum class ResourceType : std::uint8_t {
    String = 0,    ///< URES_STRING
    Binary = 1,    ///< URES_BINARY
    Table = 2,     ///< URES_TABLE
    Alias = 3,     ///< URES_ALIAS
    Table32 = 4,   ///< URES_TABLE32, internal
    Table16 = 5,   ///< URES_TABLE16, internal
    String16 = 6,  ///< URES_STRING_V2, internal
    Int = 7,       ///< URES_INT
    Array = 8,     ///< URES_ARRAY
    Array16 = 9,   ///< URES_ARRAY16, internal
    IntVector = 14 ///< URES_INT_VECTOR
};

/**
 * Reads one compiled ICU resource bundle of format version 2 or 3. ICU describes the format in
 * icu4c/source/common/uresdata.h.
 *
 * open() checks every table, key and text of the bundle, so that reading an open bundle cannot fail. A bundle with
 * shared keys and texts needs the pool bundle that has them. The pool and the bytes of both must outlive the reader.
 */
class ResourceBundleReader
{
public:
    struct Entry
    {
        std::uint32_t keyWord; ///< the key in a table with 32-bit keys; the top bit means "in the pool"
        std::string_view key;
        Resource value;
    };

    /** Opens a bundle; none, with the reason in `error`, if it is damaged or of an unknown format. */
    static std::optional<ResourceBundleReader> open(const BundleData& data, const ResourceBundleReader* pool,
                                                    std::string& error);

    const BundleData& data() const { return m_data; }
    std::uint32_t index(IndexWord position) const { return word(static_cast<std::size_t>(position) * wordSize); }
    Resource root() const { return index(IndexWord::Root); }
    bool hasNoFallback() const;

    static ResourceType type(Resource resource) { return static_cast<ResourceType>(resource >> 28U); }
    static bool isTable(Resource resource);

    /** The number of items of a table or an array. */
    std::size_t size(Resource container) const;
    /** The item at a position of a table, or of an array, with an empty key. */
    std::optional<Entry> entry(Resource container, std::size_t position) const;
    /** The item of a table with a key. */
    std::optional<Resource> find(Resource table, std::string_view key) const;
    /** The text of a string or an alias; none for other types. */
    std::optional<std::u16string> text(Resource resource) const;

private:
    friend class ResourceBundleChecker;

    static constexpr std::size_t wordSize = sizeof(std::uint32_t);
    static constexpr std::size_t unitSize = sizeof(char16_t);

    /** The offsets of the keys and items of a table or an array, in bytes of the body. */
    struct Container
    {
        std::size_t size = 0;
        std::size_t keys = 0;
        std::size_t items = 0;
        std::size_t keySize = 0;
        std::size_t itemSize = 0;
    };

    ResourceBundleReader(const BundleData& data, const ResourceBundleReader* pool);

    static std::size_t wordOffset(Resource resource) { return std::size_t{resource & 0x0fffffffU} * wordSize; }

    std::uint32_t word(std::size_t offset) const;
    char16_t unit(std::size_t offset) const;
    bool hasItems(std::size_t offset, std::size_t count, std::size_t itemSize) const;
    std::size_t units16Count() const;

    std::optional<Container> container(Resource resource) const;
    std::optional<Container> container16(Resource resource) const;
    std::optional<Container> container32(Resource resource) const;
    std::uint32_t keyWord(char16_t key) const;
    std::optional<std::string_view> key(std::uint32_t keyWord) const;
    std::optional<std::string_view> keyAt(std::size_t offset) const;
    Resource string16(char16_t item) const;
    std::optional<std::u16string> text32(Resource resource) const;
    std::optional<std::u16string> text16(Resource resource) const;
    std::optional<std::u16string> text16At(std::size_t position) const;
    std::u16string units(std::size_t offset, std::size_t count) const;

    BundleData m_data;
    const ResourceBundleReader* m_pool = nullptr;
    std::size_t m_keys = 0;                  ///< offset of the first key
    std::size_t m_keyLimit = 0;              ///< localKeyLimit in ICU: 16-bit keys from here on are in the pool
    std::size_t m_units16 = 0;               ///< offset of the 16-bit units
    std::uint32_t m_poolStringLimit = 0;     ///< poolStringIndexLimit: 16-bit strings below are in the pool
    std::uint32_t m_poolStringItemLimit = 0; ///< poolStringIndex16Limit: the same for items of 16-bit tables, arrays
};

} // namespace zel::icudata

#endif
