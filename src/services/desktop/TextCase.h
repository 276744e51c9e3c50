#pragma once
// ASCII case folding for the names the desktop compares without regard to case: registry
// keys and values, desktop.ini keys, command words.

#include <algorithm>
#include <string>
#include <string_view>

namespace iw {

inline char LowerAscii(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

inline bool EqualsNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return LowerAscii(x) == LowerAscii(y); });
}

inline std::string UpperAscii(std::string_view text) {
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return upper;
}

}  // namespace iw
