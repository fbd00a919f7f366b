// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICUDATA_RESOURCEBUNDLECHECKER_H
#define ZEL_ICUDATA_RESOURCEBUNDLECHECKER_H

#include "ResourceBundleReader.h"

#include <string>
#include <unordered_set>
#include <vector>

namespace zel::icudata {

/** Checks that ResourceBundleReader knows the format of a bundle and can read it without leaving its bytes. */
class ResourceBundleChecker
{
public:
    /** Call before a reader uses the index. Returns the reason why the format is unknown; empty if it is known. */
    static std::string checkFormat(const BundleData& data);

    explicit ResourceBundleChecker(const ResourceBundleReader& bundle) : m_bundle(bundle) {}

    /** Call before the reader is used. Returns the reason why the bundle cannot be read; empty if it can. */
    std::string check();

private:
    std::string problemOfIndex() const;
    std::string problemOfPool() const;
    std::string problemOfResources();
    std::string problemOfResource(Resource resource);
    std::string problemOfContainer(Resource container);
    bool hasItemsOf(Resource resource, std::size_t itemSize) const;

    const ResourceBundleReader& m_bundle;
    std::vector<Resource> m_pending;
    std::unordered_set<Resource> m_seen;
    std::size_t m_items = 0;
};

} // namespace zel::icudata

#endif
