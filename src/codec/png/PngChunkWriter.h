#pragma once
// Building PNG chunks: length, type, data and the CRC-32 over type and data.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "codec/png/PngProperties.h"

namespace iw::png {

void AppendChunk(std::vector<std::uint8_t>& out, std::uint32_t type,
                 std::span<const std::uint8_t> data);

// tEXt or zTXt for every text property set (zTXt when the compressed text is smaller),
// then tIME when the modification time is set. False when compressing a text fails.
bool AppendPropertyChunks(std::vector<std::uint8_t>& out, const PngProperties& properties);

// PNG text is Latin-1: UTF-8 text is converted, characters outside Latin-1 become '?',
// and NUL bytes (the keyword separator) are dropped.
std::string ToLatin1(std::string_view utf8);

}  // namespace iw::png
