#include "services/core/Texts.h"

namespace iw {

std::string GetText(std::string_view /*key*/, std::string_view /*section*/,
                    std::string_view defaultText) {
    return std::string(defaultText);
}

std::string ReplacePlaceholder(std::string_view text, std::string_view placeholder,
                               std::string_view value) {
    if (placeholder.empty()) return std::string(text);
    std::string result;
    result.reserve(text.size() + value.size());
    std::size_t pos = 0;
    while (true) {
        std::size_t hit = text.find(placeholder, pos);
        if (hit == std::string_view::npos) break;
        result.append(text.substr(pos, hit - pos));
        result.append(value);
        pos = hit + placeholder.size();
    }
    result.append(text.substr(pos));
    return result;
}

}  // namespace iw
