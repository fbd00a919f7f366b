// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_ICUDATA_PHRASETABLES_H
#define ZEL_ICUDATA_PHRASETABLES_H

#include "ResourceTree.h"
#include "StockBundles.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zel::icudata {

/**
 * The phrase tables of a locale, built from the phrases that ICU's data has under other keys.
 *
 * Each phrase is looked up separately along the chain of parents, as a locale that overrides one phrase of a table
 * inherits the others.
 */
class PhraseTables
{
public:
    using Path = std::vector<std::string>;

    explicit PhraseTables(StockBundles& bundles) : m_bundles(bundles) {}

    /** All phrase tables; none, with the reason in `error`, if ICU's data lacks a required phrase. */
    std::optional<ResourceTree> forLocale(const std::string& locale, std::string& error);

    /** Whether an entry of the root bundle counts as found. */
    enum class Root { Included, LeftOut };

    /** The text at a path as ICU finds it for a locale, through parents and aliases; none if there is none. */
    std::optional<std::u16string> text(const std::string& locale, const Path& path, Root root, std::string& error);

private:
    using Chain = std::vector<const ResourceBundleReader*>;

    struct Place
    {
        std::string locale;
        Path path;
    };

    /** An entry of one bundle: a text, or an alias to another path. */
    struct Found
    {
        std::optional<std::u16string> text;
        std::optional<Place> elsewhere;
    };

    ResourceTree texts(const std::string& locale, const Path& source, const Path& keys, const Path& required,
                       std::string& error);
    static Found findIn(const ResourceBundleReader& bundle, const Place& place, std::string& error);
    static std::optional<Place> target(const std::u16string& alias, const Place& place, std::size_t depth,
                                       std::string& error);
    const Chain& chain(const std::string& locale, std::string& error);
    Chain makeChain(const std::string& locale, std::string& error);

    StockBundles& m_bundles;
    std::map<std::string, Chain> m_chains;
};

} // namespace zel::icudata

#endif
