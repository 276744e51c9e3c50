#include "editor/NumberText.h"

#include <charconv>
#include <cmath>

#include "services/core/ParseInteger.h"

namespace iw {
namespace {

// An optional sign, digits and at most one decimal point, nothing else.
bool PlainNumberSyntax(std::string_view text) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    bool digits = false;
    bool point = false;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            digits = true;
        } else if (c == '.' && !point) {
            point = true;
        } else {
            return false;
        }
    }
    return digits;
}

}  // namespace

std::optional<double> ParseNumber(std::string_view text) {
    text = TrimBlanks(text);
    if (!PlainNumberSyntax(text)) return std::nullopt;
    if (text.front() == '+') text.remove_prefix(1);
    double value = 0;
    auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<int> ParseInteger(std::string_view text) {
    return ParseTypedInteger<int>(text);
}

std::string NumberText(int value) {
    return std::to_string(value);
}

}  // namespace iw
