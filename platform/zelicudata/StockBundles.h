// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICUDATA_STOCKBUNDLES_H
#define ZEL_ICUDATA_STOCKBUNDLES_H

#include "ResourceBundleReader.h"

#include <map>
#include <memory>
#include <string>
#include <unicode/udata.h>
#include <vector>

namespace zel::icudata {

/** The locale bundles of the data that ICU opens by default, each read on first use and kept. */
class StockBundles
{
public:
    /** Every locale that ICU lists, and the root. */
    static std::vector<std::string> names();

    /** A bundle by its name. Null without an error if ICU has none of that name. */
    const ResourceBundleReader* find(const std::string& name, std::string& error);

private:
    struct Closer
    {
        void operator()(UDataMemory* memory) const { udata_close(memory); }
    };
    struct Bundle
    {
        std::unique_ptr<UDataMemory, Closer> memory;
        std::optional<ResourceBundleReader> reader;
    };

    static Bundle open(const std::string& name, const ResourceBundleReader* pool, std::string& error);
    const ResourceBundleReader* keep(const std::string& name, const ResourceBundleReader* pool, std::string& error);

    std::map<std::string, Bundle> m_bundles;
};

} // namespace zel::icudata

#endif
