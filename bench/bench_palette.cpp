// The 256-colour palette builder on a 256 x 256 photograph-like picture (counting,
// coarsening, merging and dithering) and on a 48 x 48 icon, beside ImageMagick.

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "../tests/imaging/SyntheticImages.h"
#include "imaging/Palette256.h"

namespace {

constexpr std::uint32_t kPictureSeed = 2024;

void MakePicture(iw::IconImage& image, int side) {
    iw::test::ShapeImage(image, side, side, 8);
    iw::test::FillPhotoLike(image, kPictureSeed);
}

void BuildPalette(benchmark::State& state, int side) {
    iw::IconImage image;
    MakePicture(image, side);
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

// For comparison, ImageMagick on the same 256 x 256 picture: quantising to 254 colours with
// Floyd-Steinberg dithering, and the same command without quantising, so that the process
// start and the file reading and writing can be taken off.
const std::filesystem::path& PictureFile() {
    static const std::filesystem::path path = [] {
        iw::IconImage image;
        MakePicture(image, 256);
        auto file = std::filesystem::temp_directory_path() / "iw_bench_palette.ppm";
        std::ofstream out(file, std::ios::binary);
        out << "P6\n256 256\n255\n";
        for (int y = 0; y < 256; ++y) {
            for (int x = 0; x < 256; ++x) {
                const iw::PackedColor c = image.Color(x, y);
                out.put(static_cast<char>(iw::RedOf(c)));
                out.put(static_cast<char>(iw::GreenOf(c)));
                out.put(static_cast<char>(iw::BlueOf(c)));
            }
        }
        return file;
    }();
    return path;
}

void RunConvert(benchmark::State& state, const std::string& options) {
    if (!std::filesystem::exists("/usr/bin/convert")) {
        state.SkipWithError("/usr/bin/convert is not installed");
        return;
    }
    const auto output = std::filesystem::temp_directory_path() / "iw_bench_palette_out.ppm";
    const std::string command =
        "/usr/bin/convert " + PictureFile().string() + " " + options + " " + output.string();
    for (auto _ : state) {
        if (std::system(command.c_str()) != 0) {
            state.SkipWithError("convert failed");
            return;
        }
    }
}

void BM_ImageMagick_Dither254(benchmark::State& state) {
    RunConvert(state, "-dither FloydSteinberg -colors 254");
}
void BM_ImageMagick_NoQuantise(benchmark::State& state) {
    RunConvert(state, "");
}

BENCHMARK(BM_CreatePalette256_Photo256)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CreatePalette256_Icon48)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ImageMagick_Dither254)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(BM_ImageMagick_NoQuantise)->Unit(benchmark::kMillisecond)->Iterations(20);

}  // namespace
