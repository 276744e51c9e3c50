#pragma once
// The texts of the animated cursor windows that the core decides on.

#include "services/core/Texts.h"

namespace iw::texts {

// A rate typed into the properties window that is no rate, in the unit shown.
inline constexpr TextId RateJiffies{
    "RateJiffies", "Messages",
    "Please enter a number of jiffies (1/60 second) between 0 and 32767."};
inline constexpr TextId RateSeconds{"RateSeconds", "Messages",
                                    "Please enter a number of seconds between 0 and 546.117."};

}  // namespace iw::texts
