#pragma once
// What every successful read promises: the set can be written again as an icon, as a
// cursor and as an animated cursor, and each of those files reads back. Header-only, so
// that the fuzz targets (built without the test framework) check the same as the tests.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "services/core/CheckedBytes.h"
#include "document/io/AnimatedCursor.h"
#include "document/io/IconFileReader.h"
#include "document/io/IconFileWriter.h"
#include "document/io/PngEntryDecoder.h"
#include "services/core/QuietContext.h"
#include "support/TestImages.h"

namespace iw::test {

// Every PNG stream in an icon file we wrote has the directory sides of its own IHDR.
inline bool PngEntriesHaveTheirOwnSides(std::span<const std::uint8_t> ico) {
    if (ico.size() < 6) return false;
    for (std::size_t i = 0; i < LoadLE16(ico.data() + 4); ++i) {
        if (!RangeFits(6 + 16 * i, 16, ico.size())) return false;
        const std::uint8_t* entry = ico.data() + 6 + 16 * i;
        const std::uint32_t size = LoadLE32(entry + 8), offset = LoadLE32(entry + 12);
        if (!RangeFits(offset, size, ico.size())) return false;
        const auto sides = ReadPngEntrySides(ico.subspan(offset, size));
        if (sides && ((entry[0] ? entry[0] : 256) != sides->width ||
                      (entry[1] ? entry[1] : 256) != sides->height)) {
            return false;
        }
    }
    return true;
}

// Writes `set` (as read from a file) as an icon, a cursor of its first image and an
// animated cursor, in memory, and reads each back. The icon must give the same images:
// the same flags and depths, a PNG entry its own sides, a bitmap its sides crossed, and
// the same pixels wherever the depth holds them exactly (PNG entries, square 24- and 32-bit
// bitmaps). Empty when all holds, else what did not.
inline std::string CheckWriteAndReadBack(const IconSet& set) {
    QuietContext quiet;
    CoreContext& context = quiet.Context();
    const std::optional<std::vector<std::uint8_t>> ico = EncodeIconFile(set, context);
    if (!ico) return "the icon could not be written";
    IconSet back;
    if (!ReadIconData(*ico, "w.ico", back, context.progress).Ok()) {
        return "the icon written does not read back";
    }
    if (back.Count() != set.Count()) return "the icon written reads back with another count";
    for (int i = 0; i < set.Count(); ++i) {
        const IconInfo& a = set.Info(i);
        const IconInfo& b = back.Info(i);
        const std::string which = "image " + std::to_string(i) + ": ";
        if (a.png != b.png || a.bitCount != b.bitCount) return which + "flag or depth changed";
        const bool crossed = a.png == 0;
        if ((crossed ? b.heightMinus1 : b.widthMinus1) != a.widthMinus1 ||
            (crossed ? b.widthMinus1 : b.heightMinus1) != a.heightMinus1) {
            return which + "sides changed";
        }
        const bool exact =
            a.png != 0 || ((a.bitCount == 24 || a.bitCount == 32) && a.Width() == a.Height());
        if (exact && !SamePixels(set.Image(i), back.Image(i))) return which + "pixels changed";
    }
    if (!PngEntriesHaveTheirOwnSides(*ico))
        return "a PNG entry's directory sides are not its IHDR's";

    const auto cursor =
        BuildCursorFile(set, 0, set.properties.hotspotX, set.properties.hotspotY, context);
    if (!cursor) return "the cursor could not be written";
    if (!ReadIconData(*cursor, "w.cur", back, context.progress).Ok()) {
        return "the cursor written does not read back";
    }
    const auto animated = BuildAnimatedCursor(set, context);
    if (!animated) return "the animated cursor could not be written";
    if (!ReadIconData(*animated, "w.ani", back, context.progress).Ok()) {
        return "the animated cursor written does not read back";
    }
    return {};
}

// For the fuzz targets: ends the process when the promise does not hold.
inline void AbortUnlessItWritesBack(const IconSet& set) {
    const std::string problem = CheckWriteAndReadBack(set);
    if (problem.empty()) return;
    std::fprintf(stderr, "%s\n", problem.c_str());
    std::abort();
}

}  // namespace iw::test
