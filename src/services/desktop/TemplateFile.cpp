#include "services/desktop/TemplateFile.h"

#include <fstream>

#include "services/core/AtomicFile.h"
#include "services/core/ParseInteger.h"

namespace iw {
namespace {

// A template holds at most 65 short lines; anything past this is not a template.
constexpr std::size_t kMaxFileBytes = 64 * 1024;

std::string_view Trim(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '"'; };
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::optional<int> TokenValue(std::string_view token) {
    return ParseInteger<int>(Trim(token));
}

// Values separated by commas or line breaks; blank lines hold none.
std::vector<std::string_view> Tokens(std::string_view text) {
    std::vector<std::string_view> tokens;
    std::size_t lineStart = 0;
    while (lineStart < text.size()) {
        std::size_t lineEnd = text.find_first_of("\r\n", lineStart);
        if (lineEnd == std::string_view::npos) lineEnd = text.size();
        const std::string_view line = text.substr(lineStart, lineEnd - lineStart);
        if (!Trim(line).empty()) {
            std::size_t start = 0;
            for (;;) {
                const std::size_t comma = line.find(',', start);
                tokens.push_back(line.substr(start, comma - start));
                if (comma == std::string_view::npos) break;
                start = comma + 1;
            }
        }
        lineStart = lineEnd + 1;
    }
    return tokens;
}

}  // namespace

std::optional<int> TemplateDepthFromField(int field) {
    switch (field) {
        case 0:
            return 1;
        case 1:
            return 4;
        case 2:
            return 8;
        case 3:
            return 24;
        case 4:
            return 32;
        case 8:
        case 24:
        case 32:
            return field;
        default:
            return std::nullopt;
    }
}

int TemplateDepthField(int bits) {
    if (bits == 1) return 0;
    if (bits == 4) return 1;
    return bits;
}

std::vector<TemplateEntry> ParseTemplateText(std::string_view text) {
    const std::vector<std::string_view> tokens = Tokens(text);
    std::vector<TemplateEntry> entries;
    for (std::size_t i = 0; i + 4 <= tokens.size(); i += 4) {
        if (entries.size() >= static_cast<std::size_t>(IconTemplate::kMaxEntries)) break;
        const auto width = TokenValue(tokens[i]);
        const auto height = TokenValue(tokens[i + 1]);
        const auto depthField = TokenValue(tokens[i + 2]);
        const auto flag = TokenValue(tokens[i + 3]);
        if (!width || !height || !depthField || !flag) continue;
        if (*width < 1 || *width > 256 || *height < 1 || *height > 256) continue;
        const auto bits = TemplateDepthFromField(*depthField);
        if (!bits) continue;
        TemplateEntry entry;
        entry.widthMinus1 = static_cast<std::int16_t>(*width - 1);
        entry.heightMinus1 = static_cast<std::int16_t>(*height - 1);
        entry.bits = static_cast<std::int16_t>(*bits);
        entry.compressed = *flag != 0 ? 1 : 0;
        entries.push_back(entry);
    }
    return entries;
}

std::string FormatTemplateText(const std::vector<TemplateEntry>& entries) {
    std::string text;
    for (const TemplateEntry& entry : entries) {
        text += std::to_string(entry.Width()) + "," + std::to_string(entry.Height()) + "," +
                std::to_string(TemplateDepthField(entry.bits)) + "," +
                std::to_string(entry.compressed != 0 ? 1 : 0) + "\r\n";
    }
    return text;
}

std::optional<std::vector<TemplateEntry>> ReadTemplateFile(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return std::nullopt;
    std::string text(kMaxFileBytes, '\0');
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(in.gcount()));
    return ParseTemplateText(text);
}

bool WriteTemplateFile(const std::filesystem::path& file,
                       const std::vector<TemplateEntry>& entries) {
    const std::string text = FormatTemplateText(entries);
    return WriteFileAtomically(file, std::as_bytes(std::span(text.data(), text.size())));
}

std::string TemplateNameOf(const std::filesystem::path& file) {
    std::string name = file.filename().string();
    return name.size() > 4 ? name.substr(0, name.size() - 4) : std::string();
}

}  // namespace iw
