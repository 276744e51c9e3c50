#pragma once
// Frame rates of animated cursors: held in jiffies (1/60 second), shown and typed in jiffies
// or in seconds.

#include <optional>
#include <string>
#include <string_view>

namespace iw {

enum class RateUnit { Jiffies, Seconds };

// A frame's rate is a 16-bit field: 0 to 32767 jiffies.
inline constexpr int kMaxRate = 32767;
inline constexpr int kJiffiesPerSecond = 60;

// "jiffies" or "seconds" through the text lookup.
std::string RateUnitText(RateUnit unit);

// The rate as the unit shows it: jiffies whole ("10"), seconds with at most three decimals
// and no trailing zeros ("0.167", "1.5", "2"). Three decimals are enough for every rate to
// come back unchanged through RateFromText.
std::string RateText(int jiffies, RateUnit unit);

// A typed rate in jiffies: a whole number of jiffies, or seconds rounded to the nearest
// jiffy (halves to even). Nothing when the text is no number or the rate lies outside
// 0..kMaxRate.
std::optional<int> RateFromText(std::string_view text, RateUnit unit);

// How long a frame shows, in milliseconds: a rate of 0 shows for one jiffy, so an animation
// always moves on.
int RateMilliseconds(int jiffies);

}  // namespace iw
