// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "ResourceBundleReader.h"

#include "ResourceBundleChecker.h"

#include <cstring>

namespace zel::icudata {

namespace {

constexpr std::uint32_t poolKeyBit = 0x80000000U;

constexpr std::uint32_t noFallbackAttribute = 1U; // URES_ATT_NO_FALLBACK

// The length of a URES_STRING_V2: in its first unit up to 0xdfee, in the first two from 0xdfef, in the two after
// 0xdfff. Any other first unit is already text, which ends at a NUL. ICU has no names for these limits.
constexpr char16_t shortLength = 0xdc00;
constexpr char16_t mediumLength = 0xdfef;
constexpr char16_t longLength = 0xdfff;
constexpr char16_t shortLengthMask = 0x3ff;

} // namespace

std::optional<ResourceBundleReader> ResourceBundleReader::open(const BundleData& data, const ResourceBundleReader* pool,
                                                               std::string& error)
{
    error = ResourceBundleChecker::checkFormat(data);
    if (!error.empty()) {
        return std::nullopt;
    }
    ResourceBundleReader reader(data, pool);
    error = ResourceBundleChecker(reader).check();
    return error.empty() ? std::make_optional(reader) : std::nullopt;
}

ResourceBundleReader::ResourceBundleReader(const BundleData& data, const ResourceBundleReader* pool)
    : m_data(data),
      m_pool(pool)
{
    const std::uint32_t length = index(IndexWord::Length);
    const std::uint32_t attributes = index(IndexWord::Attributes);
    m_keys = (1 + (length & 0xffU)) * wordSize;
    m_units16 = std::size_t{index(IndexWord::KeysTop)} * wordSize;
    m_keyLimit = m_units16 > m_keys ? m_units16 : 0;
    m_poolStringLimit = (length >> 8U) | ((attributes & 0xf000U) << 12U);
    m_poolStringItemLimit = attributes >> 16U;
    // Ignore bytes past the declared end; copies drop them.
    m_data.body = m_data.body.substr(0, std::size_t{index(IndexWord::BundleTop)} * wordSize);
}

bool ResourceBundleReader::hasNoFallback() const
{
    return (index(IndexWord::Attributes) & noFallbackAttribute) != 0;
}

bool ResourceBundleReader::isTable(Resource resource)
{
    const ResourceType kind = type(resource);
    return kind == ResourceType::Table || kind == ResourceType::Table16 || kind == ResourceType::Table32;
}

std::size_t ResourceBundleReader::size(Resource container) const
{
    return this->container(container).value_or(Container{}).size;
}

std::optional<ResourceBundleReader::Entry> ResourceBundleReader::entry(Resource container, std::size_t position) const
{
    const auto place = this->container(container);
    if (!place || position >= place->size) {
        return std::nullopt;
    }
    Entry entry{};
    const std::size_t item = place->items + position * place->itemSize;
    entry.value = place->itemSize == unitSize ? string16(unit(item)) : word(item);
    if (place->keySize != 0) {
        const std::size_t at = place->keys + position * place->keySize;
        entry.keyWord = place->keySize == unitSize ? keyWord(unit(at)) : word(at);
        const auto text = key(entry.keyWord);
        if (!text) {
            return std::nullopt;
        }
        entry.key = *text;
    }
    return entry;
}

std::optional<Resource> ResourceBundleReader::find(Resource table, std::string_view key) const
{
    std::size_t low = 0;
    std::size_t high = isTable(table) ? size(table) : 0;
    while (low < high) {
        const std::size_t middle = low + (high - low) / 2;
        const auto candidate = entry(table, middle);
        if (!candidate) {
            return std::nullopt;
        }
        if (candidate->key == key) {
            return candidate->value;
        }
        if (candidate->key < key) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return std::nullopt;
}

std::optional<std::u16string> ResourceBundleReader::text(Resource resource) const
{
    switch (type(resource)) {
    case ResourceType::String:
    case ResourceType::Alias:
        return text32(resource);
    case ResourceType::String16:
        return text16(resource);
    default:
        return std::nullopt;
    }
}

std::uint32_t ResourceBundleReader::word(std::size_t offset) const
{
    std::uint32_t value = 0;
    std::memcpy(&value, m_data.body.data() + offset, sizeof value);
    return value;
}

char16_t ResourceBundleReader::unit(std::size_t offset) const
{
    char16_t value = 0;
    std::memcpy(&value, m_data.body.data() + offset, sizeof value);
    return value;
}

bool ResourceBundleReader::hasItems(std::size_t offset, std::size_t count, std::size_t itemSize) const
{
    return offset <= m_data.body.size() && count <= (m_data.body.size() - offset) / itemSize;
}

std::size_t ResourceBundleReader::units16Count() const
{
    const std::size_t top = std::size_t{index(IndexWord::Units16Top)} * wordSize;
    return top > m_units16 ? (top - m_units16) / unitSize : 0;
}

std::optional<ResourceBundleReader::Container> ResourceBundleReader::container(Resource resource) const
{
    switch (type(resource)) {
    case ResourceType::Table16:
    case ResourceType::Array16:
        return container16(resource);
    case ResourceType::Table:
    case ResourceType::Table32:
    case ResourceType::Array:
        return container32(resource);
    default:
        return std::nullopt;
    }
}

// A size, the keys of a table and the items, all of 16 bits each.
std::optional<ResourceBundleReader::Container> ResourceBundleReader::container16(Resource resource) const
{
    const std::size_t position = resource & 0x0fffffffU;
    if (position >= units16Count()) {
        // An empty one may refer to units that the bundle does not have.
        return position == 0 ? std::make_optional(Container{}) : std::nullopt;
    }
    Container place;
    place.size = unit(m_units16 + position * unitSize);
    place.keys = m_units16 + (position + 1) * unitSize;
    place.keySize = type(resource) == ResourceType::Table16 ? unitSize : 0;
    place.items = place.keys + place.size * place.keySize;
    place.itemSize = unitSize;
    const bool fits = place.items + place.size * unitSize <= m_units16 + units16Count() * unitSize;
    return fits ? std::make_optional(place) : std::nullopt;
}

// A size, the keys of a table in 16 or 32 bits, and the items in 32 bits at the next full word.
std::optional<ResourceBundleReader::Container> ResourceBundleReader::container32(Resource resource) const
{
    const std::size_t offset = wordOffset(resource);
    if (offset == 0) {
        return Container{};
    }
    if (!hasItems(offset, 1, wordSize)) {
        return std::nullopt;
    }
    Container place;
    const bool shortKeys = type(resource) == ResourceType::Table;
    const std::size_t sizeSize = shortKeys ? unitSize : wordSize;
    place.size = shortKeys ? unit(offset) : word(offset);
    place.keys = offset + sizeSize;
    place.keySize = type(resource) == ResourceType::Array ? 0 : sizeSize;
    if (!hasItems(place.keys, place.size, place.keySize + wordSize)) {
        return std::nullopt;
    }
    place.items = (place.keys + place.size * place.keySize + wordSize - 1) / wordSize * wordSize;
    place.itemSize = wordSize;
    return hasItems(place.items, place.size, wordSize) ? std::make_optional(place) : std::nullopt;
}

std::uint32_t ResourceBundleReader::keyWord(char16_t key) const
{
    return key < m_keyLimit ? key : static_cast<std::uint32_t>(key - m_keyLimit) | poolKeyBit;
}

std::optional<std::string_view> ResourceBundleReader::key(std::uint32_t keyWord) const
{
    if ((keyWord & poolKeyBit) == 0) {
        return keyAt(keyWord);
    }
    return m_pool != nullptr ? m_pool->keyAt(m_pool->m_keys + (keyWord & ~poolKeyBit)) : std::nullopt;
}

std::optional<std::string_view> ResourceBundleReader::keyAt(std::size_t offset) const
{
    if (offset < m_keys || offset >= m_data.body.size()) {
        return std::nullopt;
    }
    const std::size_t end = m_data.body.find('\0', offset);
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    return m_data.body.substr(offset, end - offset);
}

Resource ResourceBundleReader::string16(char16_t item) const
{
    const Resource position = item < m_poolStringItemLimit ? item : item - m_poolStringItemLimit + m_poolStringLimit;
    return static_cast<Resource>(ResourceType::String16) << 28U | position;
}

std::optional<std::u16string> ResourceBundleReader::text32(Resource resource) const
{
    const std::size_t offset = wordOffset(resource);
    if (offset == 0) {
        return std::u16string();
    }
    if (!hasItems(offset, 1, wordSize) || !hasItems(offset + wordSize, word(offset), unitSize)) {
        return std::nullopt;
    }
    return units(offset + wordSize, word(offset));
}

std::optional<std::u16string> ResourceBundleReader::text16(Resource resource) const
{
    const std::size_t position = resource & 0x0fffffffU;
    if (position >= m_poolStringLimit) {
        return text16At(position - m_poolStringLimit);
    }
    return m_pool != nullptr ? m_pool->text16At(position) : std::nullopt;
}

std::optional<std::u16string> ResourceBundleReader::text16At(std::size_t position) const
{
    const std::size_t count = units16Count();
    const auto at = [this](std::size_t where) { return std::size_t{unit(m_units16 + where * unitSize)}; };
    if (position >= count) {
        return std::nullopt;
    }
    const std::size_t first = at(position);
    std::size_t prefix = 0;
    std::size_t length = 0;
    if (first < shortLength || first > longLength) {
        while (position + length < count && at(position + length) != 0) {
            ++length;
        }
    } else if (first < mediumLength) {
        prefix = 1;
        length = first & shortLengthMask;
    } else if (first < longLength && position + 1 < count) {
        prefix = 2;
        length = (first - mediumLength) << 16U | at(position + 1);
    } else if (position + 2 < count) {
        prefix = 3;
        length = at(position + 1) << 16U | at(position + 2);
    } else {
        return std::nullopt;
    }
    // Every string ends with a NUL, which ICU's readers rely on.
    if (length >= count - position || prefix + length >= count - position) {
        return std::nullopt;
    }
    return units(m_units16 + (position + prefix) * unitSize, length);
}

std::u16string ResourceBundleReader::units(std::size_t offset, std::size_t count) const
{
    std::u16string text(count, u'\0');
    std::memcpy(text.data(), m_data.body.data() + offset, count * unitSize);
    return text;
}

} // namespace zel::icudata
