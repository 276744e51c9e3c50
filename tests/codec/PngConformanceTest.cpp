// PngSuite: every valid image decodes to its reference pixels, with the loaded zlib and
// with the own inflate; every corrupt image is refused cleanly.

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <optional>
#include <set>
#include <string>

#include "PngTestHelpers.h"
#include "codec/zlib/Compression.h"
#include "support/TestSupport.h"

namespace iw::test {
namespace {

std::filesystem::path SuiteFolder() {
    return TestDataPath("pngsuite");
}

std::vector<std::filesystem::path> SuiteFiles() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(SuiteFolder() / "png")) {
        if (entry.path().extension() == ".png") files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

// The reference pixels as 8-bit RGBA (the numbers of a JSON array). The 16-bit references
// are reduced to their high bytes, as the reader reduces the samples.
std::vector<int> ReferenceFor(const std::filesystem::path& file) {
    std::ifstream in(SuiteFolder() / "json" / (file.stem().string() + ".json"));
    const bool sixteenBit = file.stem().string().ends_with("16");
    std::vector<int> numbers;
    int value = -1;
    for (char c; in.get(c);) {
        if (c >= '0' && c <= '9') {
            value = std::max(value, 0) * 10 + (c - '0');
        } else if (value >= 0) {
            numbers.push_back(sixteenBit ? value >> 8 : value);
            value = -1;
        }
    }
    return numbers;
}

struct SuiteResult {
    int valid = 0, validDecoded = 0, corrupt = 0, corruptRefused = 0;
    std::set<std::string> corruptLoaded;
};

// Decodes every file; a valid one must match its reference exactly, and so must a corrupt
// one that loads (the ones that do have a reference).
SuiteResult RunSuite() {
    SuiteResult result;
    for (const auto& file : SuiteFiles()) {
        const std::string name = file.filename().string();
        const bool corrupt = name[0] == 'x';
        const auto decoded = Decode(ReadFileBytes(file));
        ++(corrupt ? result.corrupt : result.valid);
        if (!decoded) {
            EXPECT_TRUE(corrupt) << name << ": not decoded";
            result.corruptRefused += corrupt ? 1 : 0;
            continue;
        }
        if (corrupt) result.corruptLoaded.insert(name);
        const auto rgba = RgbaOf(*decoded);
        const auto reference = ReferenceFor(file);
        if (std::equal(rgba.begin(), rgba.end(), reference.begin(), reference.end())) {
            result.validDecoded += corrupt ? 0 : 1;
        } else {
            ADD_FAILURE() << name << ": pixels differ from the reference";
        }
    }
    return result;
}

class PngSuite : public testing::TestWithParam<bool> {};

// The reader checks CRCs on IDAT only, and only with zlib: the file whose IHDR CRC is wrong
// always loads, the one whose IDAT CRC is wrong loads with the own inflate.
TEST_P(PngSuite, EveryValidImageMatchesItsReference) {
    std::optional<ScopedZlibDisabled> ownInflate;
    if (GetParam()) ownInflate.emplace();
    ASSERT_EQ(IsZlibLoaded(), !GetParam()) << "the test machine has zlib";
    const SuiteResult r = RunSuite();
    std::cout << "PngSuite (" << (GetParam() ? "own inflate" : "zlib") << "): " << r.validDecoded
              << " of " << r.valid << " valid decoded, " << r.corruptRefused << " of " << r.corrupt
              << " corrupt refused\n";
    EXPECT_EQ(r.valid, 161);
    EXPECT_EQ(r.validDecoded, r.valid);
    std::set<std::string> loaded{"xhdn0g08.png"};
    if (GetParam()) loaded.insert("xcsn0g01.png");
    EXPECT_EQ(r.corruptLoaded, loaded);
    EXPECT_EQ(r.corruptRefused, r.corrupt - static_cast<int>(loaded.size()));
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutZlib, PngSuite, testing::Bool(),
                         [](const auto& param) { return param.param ? "OwnInflate" : "Zlib"; });

}  // namespace
}  // namespace iw::test
