// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

// Reads arbitrary bytes as a compiled resource bundle and as its texts. A bundle that opens can be read everywhere, and
// a copy with additional entries opens and has them.

#include "Require.h"

#include "ResourceBundleReader.h"
#include "ResourceBundleWriter.h"
#include "StockBundles.h"
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

using namespace zel::icudata;

namespace {

const ResourceBundleReader* stockPool()
{
    static StockBundles bundles;
    std::string error;
    return bundles.find("pool", error);
}

void requireReadable(const ResourceBundleReader& bundle)
{
    bundle.hasNoFallback();
    std::vector<Resource> pending{bundle.root()};
    std::unordered_set<Resource> seen;
    while (!pending.empty()) {
        const Resource resource = pending.back();
        pending.pop_back();
        if (!seen.insert(resource).second) {
            continue;
        }
        bundle.text(resource);
        for (std::size_t position = 0; position < bundle.size(resource); ++position) {
            const auto entry = bundle.entry(resource, position);
            ZEL_REQUIRE(entry);
            ZEL_REQUIRE(!ResourceBundleReader::isTable(resource) || bundle.find(resource, entry->key) == entry->value);
            pending.push_back(entry->value);
        }
    }
}

void requireCopy(const ResourceBundleReader& bundle, const ResourceBundleReader* pool)
{
    ResourceTree additions;
    additions.children["units"].children["fuzz"].text = u"{0}";
    std::string error;
    const auto file = ResourceBundleWriter::write(bundle, additions, error);
    ZEL_REQUIRE(file.has_value() == error.empty());
    if (!file) {
        return;
    }
    const auto copy = ResourceBundleReader::open(BundleData::fromFile(*file, error).value(), pool, error);
    ZEL_REQUIRE(copy);
    ZEL_REQUIRE(copy->size(copy->root()) >= bundle.size(bundle.root()));
    const auto units = copy->find(copy->root(), "units");
    ZEL_REQUIRE(units && copy->find(*units, "fuzz"));
}

void readAll(const BundleData& data, const ResourceBundleReader* pool)
{
    std::string error;
    const auto bundle = ResourceBundleReader::open(data, pool, error);
    ZEL_REQUIRE(bundle.has_value() == error.empty());
    if (bundle) {
        requireReadable(*bundle);
        requireCopy(*bundle, pool);
    }
}

// A bundle of two texts in 16-bit units, both somewhere in the input.
std::string bundleAround(std::string_view input)
{
    constexpr std::uint32_t root = 5U << 28U; // a table with 16-bit keys and items, at the first unit
    constexpr std::uint32_t indexWords = 8;
    constexpr std::uint32_t keysTop = indexWords + 1;
    constexpr std::size_t tableUnits = 5;
    std::vector<char16_t> units{2, 4 * indexWords, 4 * indexWords + 2, tableUnits, tableUnits};
    for (std::size_t at = 0; at + 1 < input.size(); at += 2) {
        units.push_back(static_cast<char16_t>(static_cast<unsigned char>(input[at]) |
                                              static_cast<unsigned char>(input[at + 1]) << 8U));
    }
    units[4] = static_cast<char16_t>(tableUnits + input.size() % 7);
    units.resize(units.size() / 2 * 2 + 2);
    const auto top = static_cast<std::uint32_t>(keysTop + units.size() / 2);
    const std::array<std::uint32_t, keysTop> words{root, indexWords - 1,  keysTop, top, top, 2, 0,
                                                   top,  'a' | 'b' << 16U};
    std::string body(reinterpret_cast<const char*>(words.data()), sizeof words);
    return body.append(reinterpret_cast<const char*>(units.data()), units.size() * sizeof units.front());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view file(reinterpret_cast<const char*>(data), size);
    BundleData texts = stockPool()->data();
    const std::string body = bundleAround(file);
    texts.body = body;
    readAll(texts, nullptr);

    std::string error;
    const auto bundle = BundleData::fromFile(file, error);
    ZEL_REQUIRE(bundle.has_value() == error.empty());
    if (bundle) {
        readAll(*bundle, stockPool());
        // A damaged pool: the bundle is its own pool.
        const auto self = ResourceBundleReader::open(*bundle, nullptr, error);
        readAll(*bundle, self ? &*self : nullptr);
    }
    return 0;
}
