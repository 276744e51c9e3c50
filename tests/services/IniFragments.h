#pragma once
// Texts of the INI family built at random from fragments that stress a line editor: group
// headers near and far from the ones edited, keys in other cases, stray brackets and equals
// signs, every kind of line end, blanks and NUL bytes.

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace iw::test {

inline std::string RandomIniText(std::mt19937& random, const std::vector<std::string>& fragments) {
    static const std::vector<std::string> common = {
        "\r\n", "\n", "\r", "[", "]", "=", " ", "\t", "a", std::string(1, '\0'), "#", ";", "[x]"};
    std::string text;
    const int pieces = static_cast<int>(random() % 40);
    for (int i = 0; i < pieces; ++i) {
        const bool own = random() % 2 == 0 && !fragments.empty();
        const auto& from = own ? fragments : common;
        text += from[random() % from.size()];
    }
    return text;
}

}  // namespace iw::test
