// The own inflate against zlib's uncompress, and the own deflate against zlib -9, on the
// zlib streams of icon-like pictures. After the runs a table gives the ratios measured in
// this same run (own CPU time / zlib CPU time, own size / zlib size).

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <cstdio>
#include <map>
#include <string>

#include "../tests/codec/CompressionSamples.h"
#include "codec/zlib/Deflate.h"
#include "codec/zlib/Inflate.h"

namespace {

using namespace iw::test;

struct Sample {
    std::string name;
    std::vector<std::uint8_t> raw;     // PNG image data (filter bytes and rows)
    std::vector<std::uint8_t> stream;  // zlib -9 of it
};

std::vector<std::uint8_t> ZlibLevel9(const std::vector<std::uint8_t>& raw) {
    std::vector<std::uint8_t> out(compressBound(raw.size()));
    uLongf size = out.size();
    compress2(out.data(), &size, raw.data(), raw.size(), 9);
    out.resize(size);
    return out;
}

const std::vector<Sample>& Samples() {
    static const std::vector<Sample> samples = [] {
        std::vector<Sample> s;
        auto add = [&](std::string name, std::vector<std::uint8_t> raw) {
            auto stream = ZlibLevel9(raw);
            s.push_back({std::move(name), std::move(raw), std::move(stream)});
        };
        add("gradient256", PngFiltered(GradientIcon(256), 256, 256));
        add("pixelart256", PngFiltered(PixelArt(256), 256, 256));
        add("photo256", PngFiltered(NoisyPhoto(256, 256), 256, 256));
        // About 2 MB of compressed data: a large photo-like picture.
        add("photo1024x768", PngFiltered(NoisyPhoto(1024, 768, 11), 1024, 768));
        return s;
    }();
    return samples;
}

void OwnInflate(benchmark::State& state, std::size_t index) {
    const Sample& s = Samples()[index];
    std::vector<std::uint8_t> out;
    for (auto _ : state) {
        if (iw::InflateZlib(s.stream, s.raw.size(), out) != iw::InflateStatus::Ok)
            state.SkipWithError("inflate failed");
        benchmark::DoNotOptimize(out.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * s.raw.size()));
    state.counters["stream_bytes"] = static_cast<double>(s.stream.size());
}

void ZlibUncompress(benchmark::State& state, std::size_t index) {
    const Sample& s = Samples()[index];
    std::vector<std::uint8_t> out(s.raw.size());
    for (auto _ : state) {
        uLongf size = out.size();
        if (uncompress(out.data(), &size, s.stream.data(), s.stream.size()) != Z_OK)
            state.SkipWithError("uncompress failed");
        benchmark::DoNotOptimize(out.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * s.raw.size()));
}

void OwnDeflate(benchmark::State& state, std::size_t index) {
    const Sample& s = Samples()[index];
    std::size_t size = 0;
    for (auto _ : state) {
        const auto stream = iw::DeflateZlib(s.raw);
        size = stream.size();
        benchmark::DoNotOptimize(stream.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * s.raw.size()));
    state.counters["stream_bytes"] = static_cast<double>(size);
    state.counters["size_vs_zlib9"] =
        static_cast<double>(size) / static_cast<double>(s.stream.size());
}

void ZlibCompress9(benchmark::State& state, std::size_t index) {
    const Sample& s = Samples()[index];
    std::vector<std::uint8_t> out(compressBound(s.raw.size()));
    for (auto _ : state) {
        uLongf size = out.size();
        compress2(out.data(), &size, s.raw.data(), s.raw.size(), 9);
        benchmark::DoNotOptimize(out.data());
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * s.raw.size()));
    state.counters["stream_bytes"] = static_cast<double>(s.stream.size());
}

// Collects each run's time per iteration and prints the own/zlib ratios at the end.
class RatioReporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            times_[run.benchmark_name()] = run.GetAdjustedCPUTime();  // the machine may be shared
            if (auto it = run.counters.find("stream_bytes"); it != run.counters.end())
                sizes_[run.benchmark_name()] = it->second;
        }
        ConsoleReporter::ReportRuns(runs);
    }
    void Finalize() override {
        ConsoleReporter::Finalize();
        std::printf("\n%-16s %18s %18s %18s\n", "sample", "inflate time", "deflate time",
                    "deflate size");
        std::printf("%-16s %18s %18s %18s\n", "", "own/uncompress", "own/compress2 -9",
                    "own/compress2 -9");
        for (const Sample& s : Samples()) {
            std::printf("%-16s %18.3f %18.3f %18.4f\n", s.name.c_str(),
                        Ratio("OwnInflate/", "ZlibUncompress/", s.name, times_),
                        Ratio("OwnDeflate/", "ZlibCompress9/", s.name, times_),
                        Ratio("OwnDeflate/", "ZlibCompress9/", s.name, sizes_));
        }
    }

  private:
    static double Ratio(const std::string& own, const std::string& ref, const std::string& name,
                        const std::map<std::string, double>& values) {
        const auto a = values.find(own + name), b = values.find(ref + name);
        return a == values.end() || b == values.end() || b->second == 0 ? 0.0
                                                                        : a->second / b->second;
    }
    std::map<std::string, double> times_;
    std::map<std::string, double> sizes_;
};

}  // namespace

int main(int argc, char** argv) {
    for (std::size_t i = 0; i < Samples().size(); ++i) {
        const std::string& name = Samples()[i].name;
        benchmark::RegisterBenchmark(("OwnInflate/" + name).c_str(), OwnInflate, i);
        benchmark::RegisterBenchmark(("ZlibUncompress/" + name).c_str(), ZlibUncompress, i);
        benchmark::RegisterBenchmark(("OwnDeflate/" + name).c_str(), OwnDeflate, i)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("ZlibCompress9/" + name).c_str(), ZlibCompress9, i)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return 0;
}
