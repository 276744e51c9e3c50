// One recomputation of the adjustments window on a 256 x 256 picture: restore from the
// backup, then contrast, saturation, gamma and brightness.

#include <benchmark/benchmark.h>

#include "../tests/imaging/SyntheticImages.h"
#include "imaging/ColorAdjustments.h"

namespace {

void UpdateAll(benchmark::State& state, int bitCount) {
    iw::IconImage image;
    iw::test::ShapeImage(image, 256, 256, bitCount);
    iw::test::FillPhotoLike(image, 99);
    iw::ColorAdjustments window(image);
    window.SetContrast(70);
    window.SetSaturation(65);
    window.SetGamma(40);
    window.SetBrightness(55);
    for (auto _ : state) {
        window.UpdateAdjustments();
        benchmark::DoNotOptimize(image.Color(128, 128));
    }
}

void BM_UpdateAdjustments_All4Sliders_32bit(benchmark::State& state) {
    UpdateAll(state, 32);
}
void BM_UpdateAdjustments_All4Sliders_4bit(benchmark::State& state) {
    UpdateAll(state, 4);
}

BENCHMARK(BM_UpdateAdjustments_All4Sliders_32bit)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_UpdateAdjustments_All4Sliders_4bit)->Unit(benchmark::kMicrosecond);

}  // namespace
