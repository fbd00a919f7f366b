// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "ResourceBundleWriter.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace zel::icudata {

namespace {

constexpr std::size_t wordSize = sizeof(std::uint32_t);
constexpr std::uint32_t offsetLimit = 1U << 28U;

} // namespace

std::optional<std::string> ResourceBundleWriter::write(const ResourceBundleReader& bundle,
                                                       const ResourceTree& additions, std::string& error)
{
    ResourceBundleWriter writer(bundle);
    const Resource root = writer.addMerged(writer.itemsOf(bundle.root()), additions, {});
    if (writer.nextWord() >= offsetLimit) {
        writer.m_error = "too large";
    }
    error = writer.m_error;
    return error.empty() ? std::make_optional(writer.finish(root)) : std::nullopt;
}

ResourceBundleWriter::ResourceBundleWriter(const ResourceBundleReader& bundle)
    : m_bundle(bundle),
      m_body(bundle.data().body),
      m_longestTable(bundle.index(IndexWord::LongestTable))
{
}

ResourceBundleWriter::Items ResourceBundleWriter::itemsOf(Resource table) const
{
    Items items;
    for (std::size_t position = 0; position < m_bundle.size(table); ++position) {
        if (const auto entry = m_bundle.entry(table, position)) {
            items.emplace(entry->key, Item{entry->keyWord, entry->value});
        }
    }
    return items;
}

Resource ResourceBundleWriter::addMerged(Items items, const ResourceTree& additions, const std::string& path)
{
    for (const auto& [key, addition] : additions.children) {
        const std::string itemPath = std::string(path).append(1, '/').append(key);
        const auto existing = items.find(key);
        if (existing != items.end()) {
            merge(existing->second, addition, itemPath);
        } else {
            const Resource value = addition.isTable() ? addMerged({}, addition, itemPath) : addString(addition.text);
            items.emplace(key, Item{addKey(key), value});
        }
    }
    return addTable(items);
}

void ResourceBundleWriter::merge(Item& item, const ResourceTree& addition, const std::string& path)
{
    if (ResourceBundleReader::isTable(item.value) != addition.isTable()) {
        m_error = path + " is there already, as something else";
    } else if (addition.isTable()) {
        item.value = addMerged(itemsOf(item.value), addition, path);
    }
}

Resource ResourceBundleWriter::addTable(const Items& items)
{
    const Resource table = static_cast<Resource>(ResourceType::Table32) << 28U | nextWord();
    const auto size = static_cast<std::uint32_t>(items.size());
    append(size);
    for (const auto& [key, item] : items) {
        append(item.keyWord);
    }
    for (const auto& [key, item] : items) {
        append(item.value);
    }
    m_longestTable = std::max(m_longestTable, size);
    return table;
}

// The form with a 32-bit length: new 16-bit strings would have to be inserted between the old bytes.
Resource ResourceBundleWriter::addString(const std::u16string& text)
{
    const auto [known, isNew] = m_strings.emplace(text, nextWord());
    if (isNew) {
        append(static_cast<std::uint32_t>(text.size()));
        append(text.c_str(), (text.size() + 1) * sizeof(char16_t));
    }
    return known->second;
}

std::uint32_t ResourceBundleWriter::addKey(const std::string& key)
{
    const auto [known, isNew] = m_keys.emplace(key, static_cast<std::uint32_t>(m_body.size()));
    if (isNew) {
        append(key.c_str(), key.size() + 1);
    }
    return known->second;
}

std::string ResourceBundleWriter::finish(Resource root)
{
    setIndex(IndexWord::Root, root);
    setIndex(IndexWord::ResourcesTop, nextWord());
    setIndex(IndexWord::BundleTop, nextWord());
    setIndex(IndexWord::LongestTable, m_longestTable);
    return BundleData{m_bundle.data().info, m_body}.toFile();
}

std::uint32_t ResourceBundleWriter::nextWord() const
{
    return static_cast<std::uint32_t>(m_body.size() / wordSize);
}

void ResourceBundleWriter::append(std::uint32_t word)
{
    append(&word, sizeof word);
}

void ResourceBundleWriter::append(const void* bytes, std::size_t size)
{
    m_body.append(static_cast<const char*>(bytes), size);
    m_body.resize((m_body.size() + wordSize - 1) / wordSize * wordSize);
}

void ResourceBundleWriter::setIndex(IndexWord position, std::uint32_t word)
{
    std::memcpy(m_body.data() + static_cast<std::size_t>(position) * wordSize, &word, sizeof word);
}

} // namespace zel::icudata
