#pragma once
// Every text the user sees is fetched by section, key and built-in English default.
// No translated source stands behind the lookup: it returns the default. Callers still
// pass section and key so that a translation can be put behind it without touching them.

#include <string>
#include <string_view>

namespace iw {

std::string GetText(std::string_view key, std::string_view section, std::string_view defaultText);

// Replaces every occurrence of `placeholder` ("%f", "%d"), scanning from the first
// character; replaced text is not scanned again.
std::string ReplacePlaceholder(std::string_view text, std::string_view placeholder,
                               std::string_view value);

// A text of the system: its key, its section and its English default, defined once.
struct TextId {
    std::string_view key;
    std::string_view section;
    std::string_view defaultText;
};

inline std::string GetText(const TextId& id) {
    return GetText(id.key, id.section, id.defaultText);
}

}  // namespace iw
