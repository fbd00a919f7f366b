// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICUDATA_BUNDLEDATA_H
#define ZEL_ICUDATA_BUNDLEDATA_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unicode/udata.h>

namespace zel::icudata {

/**
 * The words at the start of a bundle's body: the root resource, then ICU's indexes[]. Their names in ICU are those of
 * icu4c/source/common/uresdata.h, here of ICU 72.1. Checked with every bundle of ICU 72.1, 76.1 and 78.3.
 */
enum class IndexWord : std::uint8_t {
    Root = 0,         ///< the root resource
    Length = 1,       ///< URES_INDEX_LENGTH, with bits 0 to 23 of poolStringIndexLimit
    KeysTop = 2,      ///< URES_INDEX_KEYS_TOP
    ResourcesTop = 3, ///< URES_INDEX_RESOURCES_TOP
    BundleTop = 4,    ///< URES_INDEX_BUNDLE_TOP
    LongestTable = 5, ///< URES_INDEX_MAX_TABLE_LENGTH
    Attributes = 6,   ///< URES_INDEX_ATTRIBUTES, with the rest of poolStringIndexLimit and poolStringIndex16Limit
    Units16Top = 7,   ///< URES_INDEX_16BIT_TOP
    PoolChecksum = 8  ///< URES_INDEX_POOL_CHECKSUM
};

/** A resource bundle: its header's fields, and the bytes after the header, which are not owned. */
struct BundleData
{
    UDataInfo info;
    std::string_view body;

    /** The data in the bytes of a .res file; none, with the reason in `error`, if they are not of this machine. */
    static std::optional<BundleData> fromFile(std::string_view file, std::string& error);

    /** Data that ICU opened. ICU does not give its length, so that the index declares it. */
    static BundleData fromIcu(UDataMemory* memory);

    /** The bytes of a .res file. */
    std::string toFile() const;
};

} // namespace zel::icudata

#endif
