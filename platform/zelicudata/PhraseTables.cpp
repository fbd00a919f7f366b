// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "PhraseTables.h"

#include <utility>

namespace zel::icudata {

namespace {

using Path = PhraseTables::Path;

const std::string rootName = "root";

// Far above the longest chain of parents or aliases in ICU's data; a longer one is circular.
constexpr std::size_t longestChain = 16;
constexpr int mostAliases = 16;

const Path& pluralCategories()
{
    static const Path categories{"zero", "one", "two", "few", "many", "other"};
    return categories;
}

// A text at the top of a bundle, about its relation to other bundles.
std::optional<std::string> note(const ResourceBundleReader& bundle, const char* key)
{
    const auto resource = bundle.find(bundle.root(), key);
    const auto text = resource ? bundle.text(*resource) : std::nullopt;
    return text ? std::make_optional(std::string(text->begin(), text->end())) : std::nullopt;
}

// An unknown entry of another ICU version is an error: guessing the parent would give wrong phrases.
std::string problemOfNotes(const ResourceBundleReader& bundle)
{
    for (std::size_t position = 0; position < bundle.size(bundle.root()); ++position) {
        const auto item = bundle.entry(bundle.root(), position);
        if (!item || item->key.substr(0, 2) != "%%" || item->key == "%%ParentIsRoot") {
            continue;
        }
        const std::string key(item->key);
        if (key != "%%Parent" && key != "%%ALIAS") {
            return "unknown key " + key;
        }
        if (!bundle.text(item->value)) {
            return key + " is not a text";
        }
    }
    return {};
}

// sr_Latn_RS, sr_Latn, sr, root
std::string shorterName(const std::string& name)
{
    const std::size_t end = name.find_last_of('_');
    return end == std::string::npos ? rootName : name.substr(0, end);
}

std::string parentName(const std::string& name, const ResourceBundleReader* bundle)
{
    if (name == rootName || (bundle != nullptr && bundle->hasNoFallback())) {
        return {};
    }
    if (bundle != nullptr && bundle->find(bundle->root(), "%%ParentIsRoot")) {
        return rootName;
    }
    const auto named = bundle != nullptr ? note(*bundle, "%%Parent") : std::nullopt;
    return named.value_or(shorterName(name));
}

std::string joined(const Path& path)
{
    std::string text;
    for (const std::string& key : path) {
        text += '/' + key;
    }
    return text;
}

Path split(const std::u16string& text)
{
    Path parts(1);
    for (const char16_t unit : text) {
        if (unit == u'/') {
            parts.emplace_back();
        } else {
            parts.back() += static_cast<char>(unit);
        }
    }
    return parts;
}

Path operator+(Path path, const Path& more)
{
    path.insert(path.end(), more.begin(), more.end());
    return path;
}

} // namespace

std::optional<ResourceTree> PhraseTables::forLocale(const std::string& locale, std::string& error)
{
    ResourceTree tree;
    for (const char* unit : {"minute", "hour", "year"}) {
        for (const char* direction : {"past", "future"}) {
            tree.children["units"].children[std::string(unit) + '-' + direction] =
                texts(locale, {"fields", unit, "relativeTime", direction}, pluralCategories(), {"other"}, error);
        }
    }
    const Path days{"-1", "0", "1"};
    ResourceTree& fields = tree.children["calendar"].children["gregorian"].children["fields"];
    fields.children["day"].children["relative"] = texts(locale, {"fields", "day", "relative"}, days, days, error);
    if (!error.empty()) {
        return std::nullopt;
    }
    // The root's word is English, so that other locales do not inherit it: empty means no word.
    ResourceTree& now = fields.children["second"].children["relative"].children["0"];
    now.text = text(locale, {"fields", "second", "relative", "0"}, Root::LeftOut, error).value_or(std::u16string());
    return error.empty() ? std::make_optional(std::move(tree)) : std::nullopt;
}

// Does nothing after an error.
ResourceTree PhraseTables::texts(const std::string& locale, const Path& source, const Path& keys, const Path& required,
                                 std::string& error)
{
    ResourceTree table;
    for (const std::string& key : keys) {
        if (auto phrase = text(locale, source + Path{key}, Root::Included, error)) {
            table.children[key].text = *std::move(phrase);
        }
    }
    for (const std::string& key : required) {
        if (error.empty() && table.children.count(key) == 0) {
            error = locale + ": no text at " + joined(source + Path{key});
        }
    }
    return table;
}

std::optional<std::u16string> PhraseTables::text(const std::string& locale, const Path& path, Root root,
                                                 std::string& error)
{
    const ResourceBundleReader* const leftOut = root == Root::LeftOut ? m_bundles.find(rootName, error) : nullptr;
    Place place{locale, path};
    for (int aliases = 0; aliases <= mostAliases && error.empty(); ++aliases) {
        Found found;
        for (const ResourceBundleReader* bundle : chain(place.locale, error)) {
            if (bundle == leftOut) {
                break; // the end of every chain
            }
            found = findIn(*bundle, place, error);
            if (found.text || found.elsewhere) {
                break;
            }
        }
        if (!found.elsewhere) {
            return found.text;
        }
        place = *std::move(found.elsewhere);
    }
    if (error.empty()) {
        error = locale + ": aliases without an end at " + joined(path);
    }
    return std::nullopt;
}

PhraseTables::Found PhraseTables::findIn(const ResourceBundleReader& bundle, const Place& place, std::string& error)
{
    Resource resource = bundle.root();
    std::size_t depth = 0;
    for (; depth < place.path.size() && ResourceBundleReader::isTable(resource); ++depth) {
        const auto item = bundle.find(resource, place.path[depth]);
        if (!item) {
            return {};
        }
        resource = *item;
    }
    if (ResourceBundleReader::type(resource) == ResourceType::Alias) {
        return {std::nullopt, target(*bundle.text(resource), place, depth, error)};
    }
    return {depth == place.path.size() ? bundle.text(resource) : std::nullopt, std::nullopt};
}

// "/LOCALE/path" starts again at the requested locale, "/ICUDATA/locale/path" and "locale/path" at another one; without
// a path, an alias means its own path.
std::optional<PhraseTables::Place> PhraseTables::target(const std::u16string& alias, const Place& place,
                                                        std::size_t depth, std::string& error)
{
    Path parts = split(alias);
    if (parts.front().empty()) {
        parts.erase(parts.begin());
        if (parts.front() == "LOCALE") {
            parts.front() = place.locale;
        } else if (parts.front() == "ICUDATA" && parts.size() > 1) {
            parts.erase(parts.begin());
        } else {
            error = place.locale + ": an alias out of the locale data at " + joined(place.path);
            return std::nullopt;
        }
    }
    const auto reached = place.path.begin() + static_cast<Path::difference_type>(depth);
    Place next{parts.front(), {parts.begin() + 1, parts.end()}};
    if (next.path.empty()) {
        next.path.assign(place.path.begin(), reached);
    }
    next.path.insert(next.path.end(), reached, place.path.end());
    return next;
}

const PhraseTables::Chain& PhraseTables::chain(const std::string& locale, std::string& error)
{
    auto known = m_chains.find(locale);
    if (known == m_chains.end()) {
        known = m_chains.emplace(locale, makeChain(locale, error)).first;
    }
    return known->second;
}

PhraseTables::Chain PhraseTables::makeChain(const std::string& locale, std::string& error)
{
    Chain chain;
    std::string name = locale;
    for (std::size_t length = 0; !name.empty() && length < longestChain; ++length) {
        const ResourceBundleReader* bundle = m_bundles.find(name, error);
        if (!error.empty()) {
            return {};
        }
        const bool isNamed = !chain.empty() && note(*chain.back(), "%%Parent") == name;
        const std::string problem = bundle != nullptr ? problemOfNotes(*bundle) : isNamed ? "no such parent" : "";
        if (!problem.empty()) {
            error.assign(name).append(": ").append(problem);
            return {};
        }
        if (const auto other = bundle != nullptr ? note(*bundle, "%%ALIAS") : std::nullopt) {
            name = *other;
            continue;
        }
        if (bundle != nullptr) {
            chain.push_back(bundle);
        }
        name = parentName(name, bundle);
    }
    if (!name.empty()) {
        error = locale + ": parents without an end";
    }
    return chain;
}

} // namespace zel::icudata
