// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#include "BundleData.h"

#include <array>
#include <cstring>

namespace zel::icudata {

namespace {

// The start of every ICU data file.
struct FileHeader
{
    std::uint16_t size;
    std::array<std::uint8_t, 2> magic;
    UDataInfo info;
};

constexpr std::array<std::uint8_t, 2> dataMagic{0xda, 0x27};
constexpr std::size_t paddedHeaderSize = 32; // ICU requires the data after the header to be aligned to 16 bytes

} // namespace

std::optional<BundleData> BundleData::fromFile(std::string_view file, std::string& error)
{
    FileHeader header{};
    if (file.size() < sizeof header) {
        error = "the file ends inside its header";
        return std::nullopt;
    }
    std::memcpy(&header, file.data(), sizeof header);
    if (header.magic != dataMagic) {
        error = "not an ICU data file";
        return std::nullopt;
    }
    if (header.info.isBigEndian != U_IS_BIG_ENDIAN) {
        error = "made for machines with the other byte order";
        return std::nullopt;
    }
    if (header.size < sizeof header || header.size > file.size()) {
        error = "the header's size is out of range";
        return std::nullopt;
    }
    return BundleData{header.info, file.substr(header.size)};
}

BundleData BundleData::fromIcu(UDataMemory* memory)
{
    BundleData data{};
    data.info.size = sizeof data.info;
    udata_getInfo(memory, &data.info);

    constexpr auto top = static_cast<std::size_t>(IndexWord::BundleTop);
    const auto* words = static_cast<const std::uint32_t*>(udata_getMemory(memory));
    const bool hasTop = (words[static_cast<std::size_t>(IndexWord::Length)] & 0xffU) >= top;
    const std::size_t size = hasTop ? std::size_t{words[top]} * sizeof *words : 0;
    data.body = {static_cast<const char*>(udata_getMemory(memory)), size};
    return data;
}

std::string BundleData::toFile() const
{
    FileHeader header{paddedHeaderSize, dataMagic, info};
    header.info.size = sizeof header.info;
    std::string file(paddedHeaderSize, '\0');
    std::memcpy(file.data(), &header, sizeof header);
    return file.append(body);
}

} // namespace zel::icudata
