// The 256-colour palette builder on a 256 x 256 photograph-like picture (counting,
// coarsening, merging and dithering) and on a 48 x 48 icon.

#include <benchmark/benchmark.h>

#include "../tests/imaging/SyntheticImages.h"
#include "imaging/Palette256.h"

namespace {

void BuildPalette(benchmark::State& state, int side) {
    iw::IconImage image;
    iw::test::ShapeImage(image, side, side, 8);
    iw::test::FillPhotoLike(image, 2024);
    iw::NullProgress progress;
    for (auto _ : state) {
        iw::Palette256Result result = iw::CreatePalette256(image, 0, progress);
        benchmark::DoNotOptimize(result.indices.data());
    }
}

void BM_CreatePalette256_Photo256(benchmark::State& state) {
    BuildPalette(state, 256);
}
void BM_CreatePalette256_Icon48(benchmark::State& state) {
    BuildPalette(state, 48);
}

BENCHMARK(BM_CreatePalette256_Photo256)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CreatePalette256_Icon48)->Unit(benchmark::kMillisecond);

}  // namespace
