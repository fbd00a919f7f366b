// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICUDATA_BUNDLEDATA_H
#define ZEL_ICUDATA_BUNDLEDATA_H

#include <optional>
#include <string>
#include <string_view>
#include <unicode/udata.h>

namespace zel::icudata {

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
