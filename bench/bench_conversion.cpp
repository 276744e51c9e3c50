// "Convert an Image": a 1024 x 1024 photo-like picture to the fourteen sizes of the
// "Windows All Sizes" template, then every entry encoded as a save does (the 256 px entry
// PNG-compressed). The resampling alone is measured beside it.

#include <benchmark/benchmark.h>

#include <cmath>

#include "../tests/imaging/SyntheticImages.h"
#include "document/io/IconFileWriter.h"
#include "document/io/ImageConversion.h"
#include "imaging/Resampler.h"
#include "services/desktop/TemplateFile.h"

namespace {

// Smooth shading in three waves plus grain, like a photograph, fully opaque.
iw::RgbaBuffer PhotoLike(int side) {
    iw::test::Lcg random{42};
    iw::RgbaBuffer picture(side, side);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double u = static_cast<double>(x) / side;
            const double v = static_cast<double>(y) / side;
            const double waves[3] = {std::sin(9.1 * u + 2.3 * v), std::cos(7.7 * v - 1.9 * u + 0.5),
                                     std::sin(6.3 * (u + v) + 3.1 * u * v)};
            std::uint8_t channel[3];
            for (int k = 0; k < 3; ++k) {
                const int grain = static_cast<int>(random.Next() % 13) - 6;
                const int value = static_cast<int>(127.5 + 121.5 * waves[k]) + grain;
                channel[k] = static_cast<std::uint8_t>(value < 0 ? 0 : (value > 255 ? 255 : value));
            }
            picture.At(x, y) = {channel[0], channel[1], channel[2], 255};
        }
    }
    return picture;
}

std::vector<iw::IconInfo> AllSizesFormats() {
    const auto entries = iw::ReadTemplateFile(IW_TEMPLATES_DIR "/Windows All Sizes.ini");
    return iw::FormatsOf(entries.value_or(std::vector<iw::TemplateEntry>{}));
}

void BM_ConvertPhoto1024_WindowsAllSizes(benchmark::State& state) {
    const iw::RgbaBuffer picture = PhotoLike(1024);
    const std::vector<iw::IconInfo> formats = AllSizesFormats();
    if (formats.size() != 14) {
        state.SkipWithError("the Windows All Sizes template did not load");
        return;
    }
    iw::XmlStore store;
    iw::NullProgress progress;
    iw::NullLog log;
    struct Silent final : iw::IMessagePresenter {
        iw::MessageBoxResult Present(const iw::MessageBoxRequest&) override { return {}; }
    } presenter;
    iw::MessageService messages(store, presenter);
    iw::CoreContext context{messages, progress, log};
    std::size_t bytes = 0;
    for (auto _ : state) {
        iw::IconSet set;
        iw::ConvertPicture(picture, formats, set, progress);
        const auto file = iw::EncodeIconFile(set, context);
        bytes = file ? file->size() : 0;
        benchmark::DoNotOptimize(bytes);
    }
    state.counters["file_bytes"] = static_cast<double>(bytes);
}
BENCHMARK(BM_ConvertPhoto1024_WindowsAllSizes)->Unit(benchmark::kMillisecond);

void BM_Resample1024To256(benchmark::State& state) {
    const iw::RgbaBuffer picture = PhotoLike(1024);
    for (auto _ : state) {
        iw::RgbaBuffer out = iw::Resample(picture, 256, 256);
        benchmark::DoNotOptimize(out.At(0, 0));
    }
}
BENCHMARK(BM_Resample1024To256)->Unit(benchmark::kMillisecond);

}  // namespace
