// Reading icons from memory: a 9-size icon (16 to 256 px) and a 175-image icon.

#include <benchmark/benchmark.h>

#include "document/io/IconFileReader.h"
#include "support/IcoBuilder.h"

namespace {

using iw::test::BitmapSpec;
using iw::test::Bytes;

BitmapSpec Art(int side, int bpp) {
    BitmapSpec spec;
    spec.width = spec.height = side;
    spec.bitCount = bpp;
    for (int i = 0; i < 256; ++i) {
        spec.palette.push_back({static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(i * 3),
                                static_cast<std::uint8_t>(255 - i), 0});
    }
    spec.pixel = [side, bpp](int x, int y) {
        if (bpp <= 8)
            return iw::test::Rgba{static_cast<std::uint8_t>((x + y) % (1 << bpp)), 0, 0, 0};
        return iw::test::Rgba{static_cast<std::uint8_t>(x * 255 / side),
                              static_cast<std::uint8_t>(y * 255 / side), 128,
                              static_cast<std::uint8_t>((x * y) % 256)};
    };
    spec.masked = [side](int x, int y) { return x + y < side / 4; };
    return spec;
}

Bytes NineSizes() {
    std::vector<iw::test::EntrySpec> entries;
    for (int side : {256, 128, 96, 64, 48, 40, 32, 24, 16}) {
        entries.push_back(iw::test::BitmapEntry(Art(side, 32)));
    }
    return iw::test::BuildIconFile(entries);
}

Bytes ManyImages() {
    std::vector<iw::test::EntrySpec> entries;
    const int sides[] = {16, 24, 32, 48, 64};
    const int depths[] = {4, 8, 24, 32};
    for (int i = 0; i < 175; ++i) {
        entries.push_back(iw::test::BitmapEntry(Art(sides[i % 5], depths[(i / 5) % 4])));
    }
    return iw::test::BuildIconFile(entries);
}

void Read(benchmark::State& state, const Bytes& file, const char* name) {
    iw::NullProgress progress;
    for (auto _ : state) {
        iw::IconSet set;
        auto result = iw::ReadIconData(file, name, set, progress);
        benchmark::DoNotOptimize(result);
        benchmark::DoNotOptimize(set.Image(0).Color(0, 0));
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * file.size()));
}

void BM_ReadNineSizeIcon(benchmark::State& state) {
    static const Bytes file = NineSizes();
    Read(state, file, "nine.ico");
}
BENCHMARK(BM_ReadNineSizeIcon)->Unit(benchmark::kMicrosecond);

void BM_Read175ImageIcon(benchmark::State& state) {
    static const Bytes file = ManyImages();
    Read(state, file, "many.ico");
}
BENCHMARK(BM_Read175ImageIcon)->Unit(benchmark::kMicrosecond);

void BM_Salvage175ImageFile(benchmark::State& state) {
    static const Bytes file = ManyImages();
    Read(state, file, "many.cur");
}
BENCHMARK(BM_Salvage175ImageFile)->Unit(benchmark::kMicrosecond);

}  // namespace
