#include "codec/png/PngChunkWriter.h"

#include "codec/png/PngFormat.h"
#include "codec/zlib/Checksums.h"
#include "codec/zlib/Compression.h"

namespace iw::png {
namespace {

void PutBE32(std::vector<std::uint8_t>& out, std::uint32_t value) {
    out.push_back(static_cast<std::uint8_t>(value >> 24));
    out.push_back(static_cast<std::uint8_t>(value >> 16));
    out.push_back(static_cast<std::uint8_t>(value >> 8));
    out.push_back(static_cast<std::uint8_t>(value));
}

std::span<const std::uint8_t> Bytes(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

}  // namespace

void AppendChunk(std::vector<std::uint8_t>& out, std::uint32_t type,
                 std::span<const std::uint8_t> data) {
    PutBE32(out, static_cast<std::uint32_t>(data.size()));
    const std::size_t typeAt = out.size();
    PutBE32(out, type);
    out.insert(out.end(), data.begin(), data.end());
    const std::span<const std::uint8_t> typeAndData(out.data() + typeAt, 4 + data.size());
    PutBE32(out, Crc32(0, typeAndData));
}

std::string ToLatin1(std::string_view utf8) {
    std::string out;
    out.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        std::size_t length = 1;
        unsigned code = c;
        if (c >= 0x80) {
            length = c >= 0xF0 ? 4 : c >= 0xE0 ? 3 : c >= 0xC0 ? 2 : 1;
            code = length == 1 ? '?' : c & (0x3Fu >> (length - 1));
            for (std::size_t k = 1; k < length; ++k) {
                const auto next = i + k < utf8.size() ? static_cast<unsigned char>(utf8[i + k]) : 0;
                if ((next & 0xC0) != 0x80) {  // a broken sequence: one '?' for its lead byte
                    length = 1;
                    code = '?';
                    break;
                }
                code = (code << 6) | (next & 0x3Fu);
            }
            if (code > 0xFF) code = '?';
        }
        if (code != 0) out.push_back(static_cast<char>(code));
        i += length;
    }
    return out;
}

bool AppendPropertyChunks(std::vector<std::uint8_t>& out, const PngProperties& properties) {
    for (int id = pngTitle; id <= pngComment; id <<= 1) {
        const std::string value = properties.Get(id);
        if (value.empty()) continue;
        const std::string_view keyword = PngPropertyKeyword(id);
        const std::string text = ToLatin1(value);
        // tEXt: keyword, NUL, text. zTXt: keyword, NUL, method 0, zlib stream.
        std::vector<std::uint8_t> plain(keyword.begin(), keyword.end());
        plain.push_back(0);
        const auto textBytes = Bytes(text);
        const std::vector<std::uint8_t> packed = ZlibCompress(textBytes);
        if (packed.empty()) return false;
        if (packed.size() + 1 < text.size()) {
            plain.push_back(0);
            plain.insert(plain.end(), packed.begin(), packed.end());
            AppendChunk(out, kZTXT, plain);
        } else {
            plain.insert(plain.end(), textBytes.begin(), textBytes.end());
            AppendChunk(out, kTEXT, plain);
        }
    }
    if (const auto& time = properties.Time()) {
        const std::uint8_t data[7] = {
            static_cast<std::uint8_t>(time->year >> 8), static_cast<std::uint8_t>(time->year),
            static_cast<std::uint8_t>(time->month),     static_cast<std::uint8_t>(time->day),
            static_cast<std::uint8_t>(time->hour),      static_cast<std::uint8_t>(time->minute),
            static_cast<std::uint8_t>(time->second)};
        AppendChunk(out, kTIME, data);
    }
    return true;
}

}  // namespace iw::png
