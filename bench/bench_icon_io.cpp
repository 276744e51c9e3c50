// Reading and writing whole icons in memory:
//  - a 9-size icon (16 to 256 px, 32-bit, the 256 px image PNG-compressed), read with every
//    pixel decoded, against the floor of decoding its PNG entry with libpng and copying its
//    bitmaps;
//  - a 175-image icon of bitmaps (16 to 64 px, 4 to 32 bits), read;
//  - a 175-image icon of 256 px PNG entries, read as info reads it (no pixel decoded) and
//    with every pixel decoded;
//  - writing them, fresh and (for PNG entries) from the bytes they were read from.

#include <benchmark/benchmark.h>
#include <png.h>

#include <cstring>

#include "BenchIcons.h"
#include "document/io/IconFileReader.h"
#include "document/io/IconFileWriter.h"
#include "support/TestSupport.h"

namespace {

using iw::bench::NineSizeSet;
using iw::bench::Paint;
using Bytes = std::vector<std::uint8_t>;

struct Context {
    iw::test::MessageFixture messages;
    iw::NullProgress progress;
    iw::NullLog log;
    iw::CoreContext core{messages.service, progress, log};
};

iw::IconSet ManySet(bool png) {
    iw::IconSet set;
    const int sides[] = {16, 24, 32, 48, 64};
    const int depths[] = {4, 8, 24, 32};
    for (int i = 0; i < 175; ++i) {
        const int side = sides[i % 5];
        set.AddIcon(side - 1, side - 1, png ? 32 : depths[(i / 5) % 4]);
        set.Info(i).png = png ? 1 : 0;
        Paint(set.Image(i), i);
    }
    return set;
}

Bytes Encode(const iw::IconSet& set) {
    iw::test::TempDir dir;
    Context context;
    auto path = dir / "icon.ico";
    iw::WriteIconFile(path.string(), set, context.core);
    return iw::test::ReadFileBytes(path);
}

const Bytes& NineSizeFile() {
    static const Bytes file = Encode(NineSizeSet());
    return file;
}

// PNG entries are decoded when their pixels are first read; `decode` reads one of each.
void Read(benchmark::State& state, const Bytes& file, bool decode) {
    iw::NullProgress progress;
    for (auto _ : state) {
        iw::IconSet set;
        auto result = iw::ReadIconData(file, "icon.ico", set, progress);
        const iw::IconSet& view = set;
        for (int i = 0; decode && i < view.Count(); ++i)
            benchmark::DoNotOptimize(view.Image(i).Color(0, 0));
        benchmark::DoNotOptimize(result);
    }
}

void BM_ReadNineSizeIcon(benchmark::State& state) {
    Read(state, NineSizeFile(), true);
}
BENCHMARK(BM_ReadNineSizeIcon)->Unit(benchmark::kMicrosecond);

// The floor for the same work: libpng decodes the PNG entry and the bitmap entries are
// only copied.
void BM_LibpngPlusCopyNineSizeIcon(benchmark::State& state) {
    const Bytes& file = NineSizeFile();
    const std::size_t count = file[4] | (file[5] << 8);
    for (auto _ : state) {
        for (std::size_t i = 0; i < count; ++i) {
            const std::uint8_t* entry = file.data() + 6 + 16 * i;
            std::uint32_t size, offset;
            std::memcpy(&size, entry + 8, 4);
            std::memcpy(&offset, entry + 12, 4);
            if (file[offset] == 40) {
                Bytes copy(file.begin() + offset, file.begin() + offset + size);
                benchmark::DoNotOptimize(copy.data());
                continue;
            }
            png_image image{};
            image.version = PNG_IMAGE_VERSION;
            png_image_begin_read_from_memory(&image, file.data() + offset, size);
            image.format = PNG_FORMAT_BGRA;
            Bytes pixels(PNG_IMAGE_SIZE(image));
            png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr);
            benchmark::DoNotOptimize(pixels.data());
        }
    }
}
BENCHMARK(BM_LibpngPlusCopyNineSizeIcon)->Unit(benchmark::kMicrosecond);

void BM_Read175BitmapIcon(benchmark::State& state) {
    static const Bytes file = Encode(ManySet(false));
    Read(state, file, true);
}
BENCHMARK(BM_Read175BitmapIcon)->Unit(benchmark::kMicrosecond);

// 175 different 256 px images, each PNG-compressed.
const Bytes& LargePngFile() {
    static const Bytes file = [] {
        iw::IconSet set;
        for (int i = 0; i < 175; ++i) {
            set.AddIcon(255, 255, 32);
            set.Info(i).png = 1;
            Paint(set.Image(i), i);
            set.Image(i).Color(i, i) = iw::PackColor(i, 255 - i, 7);
        }
        return Encode(set);
    }();
    return file;
}

void BM_Read175LargePngIconHeaders(benchmark::State& state) {
    Read(state, LargePngFile(), false);
}
BENCHMARK(BM_Read175LargePngIconHeaders)->Unit(benchmark::kMicrosecond);

void BM_Read175LargePngIconDecoded(benchmark::State& state) {
    Read(state, LargePngFile(), true);
}
BENCHMARK(BM_Read175LargePngIconDecoded)->Unit(benchmark::kMillisecond);

void Write(benchmark::State& state, const iw::IconSet& set) {
    iw::test::TempDir dir;
    Context context;
    const std::string path = (dir / "out.ico").string();
    for (auto _ : state)
        benchmark::DoNotOptimize(iw::WriteIconFile(path, set, context.core));
}

void BM_WriteNineSizeIconFresh(benchmark::State& state) {
    static const iw::IconSet set = NineSizeSet();
    Write(state, set);
}
BENCHMARK(BM_WriteNineSizeIconFresh)->Unit(benchmark::kMillisecond);

// Saving a set as read from `file`: PNG entries are written from the bytes read.
void WriteAsRead(benchmark::State& state, const Bytes& file) {
    iw::IconSet set;
    iw::NullProgress progress;
    iw::ReadIconData(file, "icon.ico", set, progress);
    Write(state, set);
}

void BM_WriteNineSizeIconAsRead(benchmark::State& state) {
    WriteAsRead(state, NineSizeFile());
}
BENCHMARK(BM_WriteNineSizeIconAsRead)->Unit(benchmark::kMillisecond);

void BM_Write175BitmapIcon(benchmark::State& state) {
    static const iw::IconSet set = ManySet(false);
    Write(state, set);
}
BENCHMARK(BM_Write175BitmapIcon)->Unit(benchmark::kMillisecond);

void BM_Write175PngIconAsRead(benchmark::State& state) {
    static const Bytes file = Encode(ManySet(true));
    WriteAsRead(state, file);
}
BENCHMARK(BM_Write175PngIconAsRead)->Unit(benchmark::kMillisecond);

void BM_Write175LargePngIconAsRead(benchmark::State& state) {
    WriteAsRead(state, LargePngFile());
}
BENCHMARK(BM_Write175LargePngIconAsRead)->Unit(benchmark::kMillisecond);

}  // namespace
