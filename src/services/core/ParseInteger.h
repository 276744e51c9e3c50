#pragma once
// The one parser for integers written as text: in files, stores and command lines.

#include <charconv>
#include <concepts>
#include <optional>
#include <string_view>
#include <system_error>

namespace iw {

// The whole of `text` as a decimal integer of type T: one optional sign ("+" or "-") and
// one or more digits, nothing before or after them (no blanks). Nothing when the text is
// not that, or when its value does not fit T (an unsigned T takes no minus sign at all).
template <std::integral T>
requires(!std::same_as<T, bool>) std::optional<T> ParseInteger(std::string_view text) {
    if (!text.empty() && text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-') return std::nullopt;
    }
    if (text.empty()) return std::nullopt;
    T value{};
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

// `text` without the blanks (spaces, tabs, line breaks) round it.
constexpr std::string_view TrimBlanks(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    return text;
}

// An integer as a user types it into a box: blanks round it are allowed.
template <std::integral T>
requires(!std::same_as<T, bool>) std::optional<T> ParseTypedInteger(std::string_view text) {
    return ParseInteger<T>(TrimBlanks(text));
}

}  // namespace iw
