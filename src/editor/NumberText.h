#pragma once
// Numbers typed by the user or read from the settings store. Untrusted: anything that is not
// a plain finite number gives no value.

#include <optional>
#include <string>
#include <string_view>

namespace iw {

// A decimal number with optional sign, fraction and surrounding blanks ("12", " -3 ", "7.5").
std::optional<double> ParseNumber(std::string_view text);

// A whole number only ("12", " 12 "; not "12.5", "1e3" or "").
std::optional<int> ParseInteger(std::string_view text);

// The number as a store or a text box shows it, without a fraction.
std::string NumberText(int value);

}  // namespace iw
