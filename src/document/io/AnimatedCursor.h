#pragma once
// Animated cursors: a RIFF file of form "ACON" whose frames are one-image cursor files.
//
//   "RIFF" size "ACON"
//   ["LIST" size "INFO" ["INAM" len name [pad]] ["IART" len artist [pad]]]
//   "anih" 36: size, frames, steps, 0, 0, 0, 0, default rate (jiffies), flags 1
//   ["rate" 4 x steps: the rate of the frame shown at each step]
//   ["seq " 4 x steps: the frame shown at each step]
//   "LIST" size "fram" ("icon" size <one-image cursor file>) per frame

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "document/model/IconSet.h"
#include "services/core/CoreContext.h"

namespace iw {

// Reads name, artist, rates, sequence (and the frames' hotspot) into a set whose frames the
// salvage reader has already found. False when the file is neither RIFF nor ACON, or when
// its chunks cannot be walked (a chunk running past the end of the file).
bool ReadAnimationChunks(std::span<const std::uint8_t> file, IconSet& set);

// The sequence text "0,1,2," as frame indices; anything that is not a number is skipped.
std::vector<int> ParseSequence(const std::string& text);
std::string FormatSequence(const std::vector<int>& frames);

// The whole ANI file of the set: every image a frame with the set's hotspot, stored as
// a bitmap (a PNG-compressed image as a 32-bit one). Nothing when an image cannot be
// written.
std::optional<std::vector<std::uint8_t>> BuildAnimatedCursor(const IconSet& set,
                                                             CoreContext& context);
bool WriteAnimatedCursor(const std::string& path, const IconSet& set, CoreContext& context);

}  // namespace iw
