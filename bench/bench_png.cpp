// PNG decode speed against libpng, and the writer's output size against libpng at zlib
// level 9, optipng -o2, ImageMagick and Pillow, on icon art and photographs.
//
// The samples are real pictures read through ImageMagick at start-up: Adwaita icons (icon
// art with soft alpha) and a photograph cut to icon size. Benchmarks whose inputs are
// missing are skipped.

#include <benchmark/benchmark.h>
#include <png.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

#include "codec/png/PngCodec.h"
#include "codec/png/PngColorAnalysis.h"
#include "codec/png/PngFilterStrategy.h"
#include "codec/png/c32bppDIB.h"
#include "codec/png/cPNGWriter.h"
#include "codec/zlib/Compression.h"

namespace {

struct Sample {
    std::string name;
    int width = 0, height = 0;
    std::vector<std::uint8_t> rgba;
};

std::vector<std::uint8_t> Run(const std::string& command) {
    std::vector<std::uint8_t> out;
    std::FILE* pipe = popen(command.c_str(), "r");
    if (!pipe) return out;
    std::uint8_t buffer[65536];
    std::size_t got = 0;
    while ((got = std::fread(buffer, 1, sizeof buffer, pipe)) > 0)
        out.insert(out.end(), buffer, buffer + got);
    if (pclose(pipe) != 0) out.clear();
    return out;
}

// The picture at `path`, resized to fit `side` x `side` and cut to it.
Sample Load(const std::string& name, const std::string& path, int side, const char* extra = "") {
    Sample s{name, side, side, {}};
    if (!std::filesystem::exists(path)) return s;
    s.rgba = Run("/usr/bin/convert '" + path + "' " + extra + " -resize " + std::to_string(side) +
                 "x" + std::to_string(side) + "^ -gravity center -extent " + std::to_string(side) +
                 "x" + std::to_string(side) + " -depth 8 RGBA:- 2>/dev/null");
    if (s.rgba.size() != static_cast<std::size_t>(side) * side * 4) s.rgba.clear();
    return s;
}

const std::vector<Sample>& Samples() {
    static const std::vector<Sample> samples = [] {
        const std::string icons = "/usr/share/icons/Adwaita/";
        const std::string photo =
            "/root/.rustup/toolchains/stable-x86_64-unknown-linux-gnu/share/doc/rust/html/"
            "embedded-book/assets/f3.jpg";
        std::vector<Sample> all{
            Load("icon-trash-256", icons + "256x256/places/user-trash.png", 256),
            Load("icon-package-256", icons + "256x256/mimetypes/x-package-repository.png", 256),
            Load("icon-folder-256", icons + "512x512/places/folder-pictures.png", 256),
            Load("icon-folder-48", icons + "512x512/places/folder-open.png", 48),
            Load("icon-trash-32", icons + "256x256/status/user-trash-full.png", 32),
            Load("photo-256", photo, 256),
            Load("photo-512", photo, 512),
        };
        std::erase_if(all, [](const Sample& s) { return s.rgba.empty(); });
        return all;
    }();
    return samples;
}

// libpng at zlib level 9 with its default filtering, RGBA as given.
std::vector<std::uint8_t> LibpngEncode(const Sample& s, int level) {
    std::vector<std::uint8_t> out;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    if (setjmp(png_jmpbuf(png))) {
        png_destroy_write_struct(&png, &info);
        return {};
    }
    png_set_write_fn(
        png, &out,
        [](png_structp p, png_bytep data, png_size_t n) {
            auto* v = static_cast<std::vector<std::uint8_t>*>(png_get_io_ptr(p));
            v->insert(v->end(), data, data + n);
        },
        nullptr);
    png_set_compression_level(png, level);
    png_set_IHDR(png, info, s.width, s.height, 8, PNG_COLOR_TYPE_RGBA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    for (int y = 0; y < s.height; ++y) {
        png_write_row(
            png, const_cast<png_bytep>(s.rgba.data() + static_cast<std::size_t>(y) * s.width * 4));
    }
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return out;
}

std::size_t FileSizeOf(const std::string& path) {
    std::error_code ec;
    const auto size = std::filesystem::file_size(path, ec);
    return ec ? 0 : static_cast<std::size_t>(size);
}

void WriteFile(const std::string& path, const std::vector<std::uint8_t>& bytes) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
}

// --- Decoding ---------------------------------------------------------------------------

const std::vector<std::uint8_t>& IconPng() {
    static const std::vector<std::uint8_t> png =
        Samples().empty() ? std::vector<std::uint8_t>{} : LibpngEncode(Samples()[0], 6);
    return png;
}

void BM_DecodeOwn(benchmark::State& state, bool ownInflate) {
    if (IconPng().empty()) return state.SkipWithError("no icon sample");
    std::optional<iw::ScopedZlibDisabled> noZlib;
    if (ownInflate) noZlib.emplace();
    iw::c32bppDIB dib;
    for (auto _ : state) {
        if (!iw::DecodePngStream(IconPng(), dib)) return state.SkipWithError("decode failed");
        benchmark::DoNotOptimize(dib.BitsPointer());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * 256 * 256 * 4);
}
BENCHMARK_CAPTURE(BM_DecodeOwn, zlib_loaded, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_DecodeOwn, own_inflate, true)->Unit(benchmark::kMicrosecond);

void BM_DecodeLibpng(benchmark::State& state) {
    if (IconPng().empty()) return state.SkipWithError("no icon sample");
    std::vector<std::uint8_t> pixels(256 * 256 * 4);
    for (auto _ : state) {
        png_image image{};
        image.version = PNG_IMAGE_VERSION;
        png_image_begin_read_from_memory(&image, IconPng().data(), IconPng().size());
        image.format = PNG_FORMAT_RGBA;
        png_image_finish_read(&image, nullptr, pixels.data(), 0, nullptr);
        benchmark::DoNotOptimize(pixels.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * 256 * 256 * 4);
}
BENCHMARK(BM_DecodeLibpng)->Unit(benchmark::kMicrosecond);

// --- Output size --------------------------------------------------------------------------

void BM_WriterSize(benchmark::State& state, std::size_t index) {
    if (index >= Samples().size()) return state.SkipWithError("sample missing");
    const Sample& s = Samples()[index];
    std::vector<std::uint8_t> ours;
    for (auto _ : state) {
        if (!iw::EncodePngStream(s.width, s.height, s.rgba, ours))
            return state.SkipWithError("encode failed");
    }
    const std::string base = "/tmp/iw-bench-png-" + std::to_string(getpid()) + "-" + s.name;
    const auto libpng9 = LibpngEncode(s, 9);
    WriteFile(base + "-libpng.png", libpng9);
    std::remove((base + "-opt.png").c_str());
    std::system(
        ("optipng -quiet -o2 -out '" + base + "-opt.png' '" + base + "-libpng.png' >/dev/null 2>&1")
            .c_str());
    WriteFile(base + ".rgba", s.rgba);
    const std::string size = std::to_string(s.width) + "x" + std::to_string(s.height);
    std::system(("/usr/bin/convert -size " + size + " -depth 8 'rgba:" + base + ".rgba' '" + base +
                 "-magick.png' 2>/dev/null")
                    .c_str());
    std::system(
        ("/usr/bin/python3 -c \"import sys; from PIL import Image; Image.frombytes('RGBA', (" +
         std::to_string(s.width) + "," + std::to_string(s.height) +
         "), open(sys.argv[1],'rb').read()).save(sys.argv[2])\" '" + base + ".rgba' '" + base +
         "-pillow.png' 2>/dev/null")
            .c_str());
    const double mine = static_cast<double>(ours.size());
    state.counters["ours"] = mine;
    state.counters["libpng9"] = static_cast<double>(libpng9.size());
    state.counters["optipng"] = static_cast<double>(FileSizeOf(base + "-opt.png"));
    state.counters["magick"] = static_cast<double>(FileSizeOf(base + "-magick.png"));
    state.counters["pillow"] = static_cast<double>(FileSizeOf(base + "-pillow.png"));
    state.counters["vs_optipng"] = mine / state.counters["optipng"];
    state.counters["vs_libpng9"] = mine / state.counters["libpng9"];
    for (const char* suffix : {"-libpng.png", "-opt.png", ".rgba", "-magick.png", "-pillow.png"}) {
        std::remove((base + suffix).c_str());
    }
}
BENCHMARK_CAPTURE(BM_WriterSize, 0, 0)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_WriterSize, 1, 1)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_WriterSize, 2, 2)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_WriterSize, 3, 3)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_WriterSize, 4, 4)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_WriterSize, 5, 5)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_WriterSize, 6, 6)->Iterations(1)->Unit(benchmark::kMillisecond);

// --- Writer time: analysis and filtering against one compress2 level 9 pass ----------------

iw::c32bppDIB IconDib() {
    const Sample& s = Samples()[0];
    iw::c32bppDIB dib;
    dib.InitializeDIB(s.width, s.height);
    for (int y = 0; y < s.height; ++y) {
        for (int x = 0; x < s.width; ++x) {
            const std::uint8_t* q = s.rgba.data() + 4 * (static_cast<std::size_t>(y) * s.width + x);
            dib.SetPixel(x, y, {q[2], q[1], q[0], q[3]});
        }
    }
    return dib;
}

// Colour analysis, packing and every filter strategy the writer tries for the encoding.
void BM_WriterAnalysisAndFiltering(benchmark::State& state) {
    if (Samples().empty()) return state.SkipWithError("no icon sample");
    const iw::c32bppDIB dib = IconDib();
    for (auto _ : state) {
        const auto stats = iw::png::AnalyzeColors(dib);
        for (const auto& encoding : iw::png::CandidateEncodings(stats, dib.Width(), dib.Height())) {
            const auto rows = iw::png::PackRows(dib, encoding);
            for (auto strategy :
                 iw::cPNGWriter::StrategiesFor(encoding.colorType, encoding.bitDepth)) {
                auto filtered = iw::png::FilterImage(
                    rows, static_cast<std::size_t>(dib.Height()),
                    iw::png::RowBytes(encoding, dib.Width()),
                    iw::png::FilterStride(encoding.colorType, encoding.bitDepth), strategy);
                benchmark::DoNotOptimize(filtered.data());
            }
        }
    }
}
BENCHMARK(BM_WriterAnalysisAndFiltering)->Unit(benchmark::kMillisecond);

void BM_Compress2Level9(benchmark::State& state) {
    if (Samples().empty()) return state.SkipWithError("no icon sample");
    const iw::c32bppDIB dib = IconDib();
    const auto stats = iw::png::AnalyzeColors(dib);
    const auto encoding = iw::png::CandidateEncodings(stats, dib.Width(), dib.Height())[0];
    const auto filtered = iw::png::FilterImage(
        iw::png::PackRows(dib, encoding), static_cast<std::size_t>(dib.Height()),
        iw::png::RowBytes(encoding, dib.Width()),
        iw::png::FilterStride(encoding.colorType, encoding.bitDepth),
        iw::png::FilterStrategy::MinimumSum);
    for (auto _ : state)
        benchmark::DoNotOptimize(iw::ZlibCompress(filtered).data());
}
BENCHMARK(BM_Compress2Level9)->Unit(benchmark::kMillisecond);

void BM_WriterWhole(benchmark::State& state) {
    if (Samples().empty()) return state.SkipWithError("no icon sample");
    const iw::c32bppDIB dib = IconDib();
    std::vector<std::uint8_t> png;
    for (auto _ : state) {
        dib.SaveToStream_PNG(png);
        benchmark::DoNotOptimize(png.data());
    }
}
BENCHMARK(BM_WriterWhole)->Unit(benchmark::kMillisecond);

}  // namespace
