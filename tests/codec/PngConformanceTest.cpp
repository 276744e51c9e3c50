// PngSuite: every valid image decodes to its reference pixels, with the loaded zlib and
// with the own inflate; every corrupt image is refused cleanly.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <set>
#include <string>

#include "PngTestHelpers.h"
#include "codec/Compression.h"
#include "support/TestSupport.h"

namespace iw::test {
namespace {

std::filesystem::path SuiteFolder() {
    return SharedPath("testdata/pngsuite");
}

std::vector<std::filesystem::path> SuiteFiles() {
    std::vector<std::filesystem::path> files;
    std::error_code ec;
    for (const auto& entry : std::filesystem::directory_iterator(SuiteFolder() / "png", ec)) {
        if (entry.path().extension() == ".png") files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

bool IsCorrupt(const std::filesystem::path& file) {
    return file.filename().string()[0] == 'x';
}

bool IsSixteenBit(const std::filesystem::path& file) {
    const std::string stem = file.stem().string();
    return stem.size() >= 8 && stem.substr(stem.size() - 2) == "16";
}

// The reference pixels as 8-bit RGBA. Sixteen-bit files are compared with their 8-bit
// reference ("_to8") where there is one, else with the high bytes of the 16-bit one.
std::vector<int> ReferenceFor(const std::filesystem::path& file) {
    const auto folder = SuiteFolder() / "json";
    const std::string stem = file.stem().string();
    if (!IsSixteenBit(file)) return ReadJsonNumbers(folder / (stem + ".json"));
    if (std::filesystem::exists(folder / (stem + "_to8.json"))) {
        return ReadJsonNumbers(folder / (stem + "_to8.json"));
    }
    std::vector<int> samples = ReadJsonNumbers(folder / (stem + ".json"));
    for (int& sample : samples)
        sample >>= 8;
    return samples;
}

// The largest difference between decoded and reference samples; -1 when the sizes differ.
int LargestDifference(const std::vector<std::uint8_t>& decoded, const std::vector<int>& reference) {
    if (decoded.size() != reference.size()) return -1;
    int largest = 0;
    for (std::size_t i = 0; i < decoded.size(); ++i) {
        largest = std::max(largest, std::abs(decoded[i] - reference[i]));
    }
    return largest;
}

struct SuiteResult {
    int valid = 0, validDecoded = 0, corrupt = 0, corruptRefused = 0;
    std::vector<std::string> failures;
    std::set<std::string> corruptLoaded;
};

SuiteResult RunSuite() {
    SuiteResult result;
    for (const auto& file : SuiteFiles()) {
        const auto bytes = ReadFileBytes(file);
        const auto decoded = Decode(bytes);
        const std::string name = file.filename().string();
        if (IsCorrupt(file)) {
            ++result.corrupt;
            if (decoded) {
                result.corruptLoaded.insert(name);
            } else {
                ++result.corruptRefused;
            }
            continue;
        }
        ++result.valid;
        if (!decoded) {
            result.failures.push_back(name + ": not decoded");
            continue;
        }
        // The reference holds exact 8-bit values, or the 16-bit samples' high bytes; one
        // step of rounding is allowed for the 16-to-8 reduction.
        const int tolerance = IsSixteenBit(file) ? 1 : 0;
        const int difference = LargestDifference(RgbaOf(*decoded), ReferenceFor(file));
        if (difference < 0 || difference > tolerance) {
            result.failures.push_back(name + ": pixels differ by " + std::to_string(difference));
            continue;
        }
        ++result.validDecoded;
    }
    return result;
}

void Print(const char* mode, const SuiteResult& r) {
    std::cout << "PngSuite (" << mode << "): " << r.validDecoded << " of " << r.valid
              << " valid decoded, " << r.corruptRefused << " of " << r.corrupt
              << " corrupt refused\n";
}

TEST(PngSuite, EveryValidImageMatchesItsReferenceWithZlib) {
    if (SuiteFiles().empty()) GTEST_SKIP() << "PngSuite not found at " << SuiteFolder();
    if (!IsZlibLoaded()) GTEST_SKIP() << "no zlib on this machine";
    const SuiteResult r = RunSuite();
    Print("zlib", r);
    EXPECT_EQ(r.valid, 161);
    EXPECT_EQ(r.validDecoded, r.valid);
    for (const auto& failure : r.failures)
        ADD_FAILURE() << failure;
    // The reader checks CRCs on IDAT only: the file whose IHDR CRC is wrong still loads.
    EXPECT_EQ(r.corruptLoaded, (std::set<std::string>{"xhdn0g08.png"}));
    EXPECT_EQ(r.corruptRefused, r.corrupt - 1);
}

TEST(PngSuite, EveryValidImageMatchesItsReferenceWithOwnInflate) {
    if (SuiteFiles().empty()) GTEST_SKIP() << "PngSuite not found at " << SuiteFolder();
    ScopedZlibDisabled ownInflate;
    const SuiteResult r = RunSuite();
    Print("own inflate", r);
    EXPECT_EQ(r.validDecoded, r.valid);
    for (const auto& failure : r.failures)
        ADD_FAILURE() << failure;
    // Without zlib no CRC is checked, so the IDAT-CRC file loads as well.
    EXPECT_EQ(r.corruptLoaded, (std::set<std::string>{"xhdn0g08.png", "xcsn0g01.png"}));
}

TEST(PngSuite, CorruptFilesWithAReferenceDecodeToItWhenTheyLoad) {
    if (SuiteFiles().empty()) GTEST_SKIP() << "PngSuite not found at " << SuiteFolder();
    ScopedZlibDisabled ownInflate;
    for (const char* name : {"xhdn0g08", "xcsn0g01"}) {
        const auto file = SuiteFolder() / "png" / (std::string(name) + ".png");
        const auto decoded = Decode(ReadFileBytes(file));
        ASSERT_TRUE(decoded) << name;
        EXPECT_EQ(LargestDifference(RgbaOf(*decoded), ReferenceFor(file)), 0) << name;
    }
}

TEST(PngSuite, InterlacedAndPlainImagesDecodeAlike) {
    if (SuiteFiles().empty()) GTEST_SKIP() << "PngSuite not found at " << SuiteFolder();
    int pairs = 0;
    for (const auto& file : SuiteFiles()) {
        std::string name = file.filename().string();
        const auto at = name.find('i', 3);
        if (IsCorrupt(file) || at != 3) continue;
        std::string plainName = name;
        plainName[3] = 'n';
        const auto plainFile = file.parent_path() / plainName;
        if (!std::filesystem::exists(plainFile)) continue;
        const auto interlaced = Decode(ReadFileBytes(file));
        const auto plain = Decode(ReadFileBytes(plainFile));
        ASSERT_TRUE(interlaced && plain) << name;
        EXPECT_EQ(RgbaOf(*interlaced), RgbaOf(*plain)) << name;
        ++pairs;
    }
    EXPECT_GE(pairs, 30);
}

}  // namespace
}  // namespace iw::test
