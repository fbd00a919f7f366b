// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "StockBundles.h"

#include <unicode/uloc.h>
#include <utility>

namespace zel::icudata {

namespace {

const std::string poolName = "pool";

} // namespace

std::vector<std::string> StockBundles::names()
{
    std::vector<std::string> names{"root"};
    for (int32_t number = 0; number < uloc_countAvailable(); ++number) {
        names.emplace_back(uloc_getAvailable(number));
    }
    return names;
}

const ResourceBundleReader* StockBundles::find(const std::string& name, std::string& error)
{
    const ResourceBundleReader* pool = keep(poolName, nullptr, error);
    return error.empty() ? keep(name, pool, error) : nullptr;
}

const ResourceBundleReader* StockBundles::keep(const std::string& name, const ResourceBundleReader* pool,
                                               std::string& error)
{
    auto known = m_bundles.find(name);
    if (known == m_bundles.end()) {
        Bundle bundle = open(name, pool, error);
        if (!error.empty()) {
            error.insert(0, name + ": ");
            return nullptr;
        }
        known = m_bundles.emplace(name, std::move(bundle)).first;
    }
    const auto& reader = known->second.reader;
    return reader ? &*reader : nullptr;
}

StockBundles::Bundle StockBundles::open(const std::string& name, const ResourceBundleReader* pool, std::string& error)
{
    Bundle bundle;
    UErrorCode status = U_ZERO_ERROR;
    bundle.memory.reset(udata_open(nullptr, "res", name.c_str(), &status));
    if (U_SUCCESS(status)) {
        bundle.reader = ResourceBundleReader::open(BundleData::fromIcu(bundle.memory.get()), pool, error);
    } else if (status != U_FILE_ACCESS_ERROR) {
        error = u_errorName(status);
    }
    return bundle;
}

} // namespace zel::icudata
