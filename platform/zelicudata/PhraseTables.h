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
 * The phrase tables of a locale, put together from the phrases that ICU's data has under other keys.
 *
 * Each phrase is looked up on its own along the chain of parents, because a locale that overrides one of a table's
 * phrases inherits the others.
 */
class PhraseTables
{
public:
    using Path = std::vector<std::string>;

    explicit PhraseTables(StockBundles& bundles) : m_bundles(bundles) {}

    /** All phrase tables; none, with the reason in \a error, where ICU's data lacks a phrase that must be there. */
    std::optional<ResourceTree> forLocale(const std::string& locale, std::string& error);

    /** Whether what only the root bundle has counts as found. */
    enum class Root { Included, LeftOut };

    /** The text at a path as ICU finds it for a locale, through parents and aliases; none where ICU finds none. */
    std::optional<std::u16string> text(const std::string& locale, const Path& path, Root root, std::string& error);

private:
    using Chain = std::vector<const ResourceBundleReader*>;

    struct Place
    {
        std::string locale;
        Path path;
    };

    /** What one bundle has at a place: a text, or an alias that names another place. */
    struct Found
    {
        std::optional<std::u16string> text;
        std::optional<Place> elsewhere;
    };

    bool addTexts(ResourceTree& table, const std::string& locale, const Path& source, const Path& keys,
                  const Path& required, std::string& error);
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
