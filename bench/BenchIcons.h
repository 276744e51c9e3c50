#pragma once
// Icons the benchmarks share: a painted image, and the 9-size icon (16 to 256 px, 32-bit,
// the 256 px image PNG-compressed), in memory or as a file.

#include <string>

#include "document/io/IconFileWriter.h"
#include "document/model/IconSet.h"
#include "support/TestSupport.h"

namespace iw::bench {

// A gradient disc with a soft edge (4-bit images get colours of the sixteen).
inline void Paint(IconImage& image, int seed) {
    const int w = image.info.Width(), h = image.info.Height();
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const int dx = 2 * x - w, dy = 2 * y - h;
            const bool inside = dx * dx + dy * dy < w * h;
            PackedColor c = PackColor((x * 255) / w, (y * 255) / h, (seed * 40) & 0xFF);
            if (image.info.bitCount == 4) c = PackColor(x * 8 / w * 128 % 256, 0, 128);
            if (image.info.bitCount != 32 && !inside) c = TransparentColor;
            image.Color(x, y) = c;
            image.Alpha(x, y) = inside ? 255 : (dx * dx + dy * dy < w * h * 5 / 4 ? 128 : 0);
        }
    }
}

inline IconSet NineSizeSet() {
    IconSet set;
    for (int side : {256, 128, 96, 64, 48, 40, 32, 24, 16}) {
        const int i = set.AddIcon(side - 1, side - 1, 32);
        set.Info(i).png = side == 256 ? 1 : 0;
        Paint(set.Image(i), i);
    }
    return set;
}

// The 9-size icon written to `folder` as "nine.ico"; its path.
inline std::string WriteNineSizeIcon(const test::TempDir& folder) {
    test::MessageFixture messages;
    NullProgress progress;
    NullLog log;
    CoreContext context{messages.service, progress, log};
    const std::string path = (folder / "nine.ico").string();
    WriteIconFile(path, NineSizeSet(), context);
    return path;
}

}  // namespace iw::bench
