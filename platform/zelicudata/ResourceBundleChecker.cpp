// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "ResourceBundleChecker.h"

#include <algorithm>
#include <array>

namespace zel::icudata {

namespace {

constexpr std::uint32_t isPoolAttribute = 2U;   // URES_ATT_IS_POOL_BUNDLE
constexpr std::uint32_t usesPoolAttribute = 4U; // URES_ATT_USES_POOL_BUNDLE
constexpr std::uint32_t unknownAttributes = 0x0ff8U;

constexpr std::size_t indexLength = static_cast<std::size_t>(IndexWord::PoolChecksum);
constexpr std::size_t indexLengthWithoutPool = static_cast<std::size_t>(IndexWord::Units16Top);

std::string problemOfInfo(const UDataInfo& info)
{
    constexpr std::array<std::uint8_t, 4> resourceBundle{'R', 'e', 's', 'B'};
    if (!std::equal(resourceBundle.begin(), resourceBundle.end(), std::begin(info.dataFormat))) {
        return "not a resource bundle";
    }
    if (info.isBigEndian != U_IS_BIG_ENDIAN || info.charsetFamily != U_CHARSET_FAMILY ||
        info.sizeofUChar != sizeof(char16_t)) {
        return "made for another kind of machine";
    }
    if (info.formatVersion[0] != 2 && info.formatVersion[0] != 3) {
        return "unknown format version " + std::to_string(info.formatVersion[0]) + '.' +
               std::to_string(info.formatVersion[1]);
    }
    return {};
}

std::string problemOfSize(std::string_view body)
{
    return body.size() < (1 + indexLengthWithoutPool) * sizeof(std::uint32_t) ? "too short for its index" : "";
}

} // namespace

std::string ResourceBundleChecker::checkFormat(const BundleData& data)
{
    const std::string reason = problemOfInfo(data.info);
    return reason.empty() ? problemOfSize(data.body) : reason;
}

std::string ResourceBundleChecker::check()
{
    std::string reason = problemOfIndex();
    if (reason.empty()) {
        reason = problemOfPool();
    }
    return reason.empty() ? problemOfResources() : reason;
}

std::string ResourceBundleChecker::problemOfIndex() const
{
    const std::size_t length = m_bundle.index(IndexWord::Length) & 0xffU;
    const std::uint32_t attributes = m_bundle.index(IndexWord::Attributes);
    const bool hasPool = (attributes & (isPoolAttribute | usesPoolAttribute)) != 0;
    if (length != indexLength && (hasPool || length != indexLengthWithoutPool)) {
        return "an index of unknown length " + std::to_string(length);
    }
    if ((attributes & unknownAttributes) != 0) {
        return "unknown attributes";
    }
    const std::size_t words = m_bundle.m_data.body.size() / ResourceBundleReader::wordSize;
    const std::array<std::size_t, 6> tops{length + 1,
                                          m_bundle.index(IndexWord::KeysTop),
                                          m_bundle.index(IndexWord::Units16Top),
                                          m_bundle.index(IndexWord::ResourcesTop),
                                          m_bundle.index(IndexWord::BundleTop),
                                          words};
    return std::is_sorted(tops.begin(), tops.end()) ? std::string() : "an index with tops out of range";
}

std::string ResourceBundleChecker::problemOfPool() const
{
    const ResourceBundleReader* pool = m_bundle.m_pool;
    if ((m_bundle.index(IndexWord::Attributes) & usesPoolAttribute) == 0) {
        return m_bundle.m_poolStringLimit == 0 && m_bundle.m_poolStringItemLimit == 0 ? std::string()
                                                                                      : "texts in a pool, but no pool";
    }
    if (pool == nullptr) {
        return "the pool bundle is missing";
    }
    if ((pool->index(IndexWord::Attributes) & isPoolAttribute) == 0 ||
        pool->index(IndexWord::PoolChecksum) != m_bundle.index(IndexWord::PoolChecksum)) {
        return "made with another pool bundle";
    }
    return {};
}

std::string ResourceBundleChecker::problemOfResources()
{
    if (!ResourceBundleReader::isTable(m_bundle.root())) {
        return "the root is not a table";
    }
    m_pending.push_back(m_bundle.root());
    while (!m_pending.empty()) {
        const Resource resource = m_pending.back();
        m_pending.pop_back();
        if (!m_seen.insert(resource).second) {
            continue;
        }
        std::string problem = problemOfResource(resource);
        if (!problem.empty()) {
            return problem;
        }
    }
    return {};
}

std::string ResourceBundleChecker::problemOfResource(Resource resource)
{
    bool fits = true;
    switch (ResourceBundleReader::type(resource)) {
    case ResourceType::Table:
    case ResourceType::Table16:
    case ResourceType::Table32:
    case ResourceType::Array:
    case ResourceType::Array16:
        return problemOfContainer(resource);
    case ResourceType::String:
    case ResourceType::String16:
    case ResourceType::Alias:
        fits = m_bundle.text(resource).has_value();
        break;
    case ResourceType::Binary:
        fits = hasItemsOf(resource, 1);
        break;
    case ResourceType::IntVector:
        fits = hasItemsOf(resource, ResourceBundleReader::wordSize);
        break;
    case ResourceType::Int:
        break;
    default:
        return "a resource of unknown type " + std::to_string(resource >> 28U);
    }
    return fits ? std::string() : "a resource out of range";
}

std::string ResourceBundleChecker::problemOfContainer(Resource container)
{
    const auto place = m_bundle.container(container);
    if (!place) {
        return "a table or an array out of range";
    }
    // No two tables share items, so that their total size is limited by the bundle.
    m_items += place->size;
    if (m_items > m_bundle.m_data.body.size()) {
        return "tables that overlap";
    }
    std::string_view previous;
    for (std::size_t position = 0; position < place->size; ++position) {
        const auto entry = m_bundle.entry(container, position);
        if (!entry) {
            return "a key out of range";
        }
        if (place->keySize != 0 && position > 0 && entry->key <= previous) {
            return "a table with keys out of order";
        }
        previous = entry->key;
        m_pending.push_back(entry->value);
    }
    return {};
}

// A length, followed by as many items.
bool ResourceBundleChecker::hasItemsOf(Resource resource, std::size_t itemSize) const
{
    constexpr std::size_t lengthSize = ResourceBundleReader::wordSize;
    const std::size_t offset = ResourceBundleReader::wordOffset(resource);
    return offset == 0 || (m_bundle.hasItems(offset, 1, lengthSize) &&
                           m_bundle.hasItems(offset + lengthSize, m_bundle.word(offset), itemSize));
}

} // namespace zel::icudata
