// Hand-made program files that lie: about their sections, their addresses, their resource
// tree (loops, counts, names) and their groups. Each is refused, or loses just the part
// that lies, and never reads outside the file (AddressSanitizer watches). Then every
// single-byte change and truncation of a built library reads cleanly.

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>

#include "document/io/PeResources.h"
#include "document/io/ProgramIcons.h"
#include "support/IcoBuilder.h"
#include "support/PeBuilder.h"
#include "support/TestSupport.h"
#include "support/WriteReadBack.h"

namespace iw {
namespace {

using test::Bytes;
using test::PutLE16;
using test::PutLE32;

// An icon group "1" of one 8 x 8 image (RT_ICON 1) and a cursor group "ARROW" of one
// 6 x 6 image with hotspot 3, 4 (RT_CURSOR 2), in this order in the table.
std::vector<test::PeResourceSpec> TwoGroups() {
    return test::IconAndCursorGroups("1", "ARROW", 1033);
}

struct Built {
    Bytes file;
    test::ResourceLayout layout;
};

Built BuildTwoGroups(bool pe32Plus = true) {
    Built built;
    built.file =
        test::BuildPeImage(test::BuildResourceSection(TwoGroups(), &built.layout), pe32Plus);
    return built;
}

// The file offset of resource section offset `at`.
std::size_t InSection(std::uint32_t at) {
    return test::kSectionFileOffset + at;
}

TEST(ProgramHostile, TheBuiltProgramReadsBothGroups) {
    for (bool pe32Plus : {true, false}) {
        const Built built = BuildTwoGroups(pe32Plus);
        const std::optional<ProgramIconTable> table = ProgramIconTable::Read(built.file);
        ASSERT_TRUE(table);
        ASSERT_EQ(table->Groups().size(), 2u);
        EXPECT_EQ(table->Groups()[1].name.Display(), "ARROW");

        IconSet icon;
        NullProgress progress;
        ASSERT_TRUE(table->ReadGroup(built.file, 0, {}, icon, progress).Ok());
        ASSERT_EQ(icon.Count(), 1);
        EXPECT_EQ(icon.Image(0).Color(2, 1), PackColor(40, 30, 90));
        IconSet cursor;
        ASSERT_TRUE(table->ReadGroup(built.file, 1, {}, cursor, progress).Ok());
        EXPECT_EQ(cursor.mode, FileMode::CUR);
        EXPECT_EQ(cursor.Info(0).Width(), 6);
        EXPECT_EQ(cursor.properties.hotspotX, 3);
        EXPECT_EQ(cursor.properties.hotspotY, 4);
    }
}

using Lie = std::function<void(Built&)>;
using Names = std::vector<std::string>;

struct HostileCase {
    const char* what;
    bool program;      // still taken for a PE image
    bool refused;      // the resource tree as a whole
    Names groups;      // the groups still listed
    bool iconPresent;  // the icon group's image found
    Lie lie;
};

std::uint16_t SectionWord(const Built& b, std::uint32_t at) {
    return static_cast<std::uint16_t>(b.file[InSection(at)] | (b.file[InSection(at) + 1] << 8));
}

// Offsets into the built section: the root lists RT_ICON, RT_CURSOR, RT_GROUP_ICON and
// RT_GROUP_CURSOR in that order; resource i's data entry and data as the layout says.
const Names kNone, kBoth = {"1", "ARROW"}, kArrow = {"ARROW"}, kIcon = {"1"};
const std::uint32_t kSection = test::SectionHeaderOffset();
const HostileCase kHostile[] = {
    {"e_lfanew past the end", false, false, kNone, false,
     [](Built& b) { PutLE32(b.file, 0x3C, 0x7FFF'FFF0); }},
    {"e_lfanew into the last bytes", false, false, kNone, false,
     [](Built& b) { PutLE32(b.file, 0x3C, static_cast<std::uint32_t>(b.file.size() - 3)); }},
    {"200 sections", false, false, kNone, false,
     [](Built& b) { PutLE16(b.file, test::kPeOffset + 6, 200); }},
    {"section table past the end", false, false, kNone, false,
     [](Built& b) { PutLE16(b.file, test::kPeOffset + 4 + 16, 0xFFF0); }},
    {"unknown optional header magic", false, false, kNone, false,
     [](Built& b) { PutLE16(b.file, test::kPeOffset + 24, 0x107); }},
    {"raw size far beyond the file", true, false, kBoth, true,
     [](Built& b) { PutLE32(b.file, kSection + 16, 0x7FFF'FFFF); }},
    {"raw pointer past the end", true, true, kNone, false,
     [](Built& b) { PutLE32(b.file, kSection + 20, 0xFFFF'FF00); }},
    {"virtual size of 16 bytes", true, true, kNone, false,
     [](Built& b) { PutLE32(b.file, kSection + 8, 16); }},
    {"section at the top of the address space", true, true, kNone, false,
     [](Built& b) { PutLE32(b.file, kSection + 12, 0xFFFF'FFF0); }},
    {"resource directory outside every section", true, true, kNone, false,
     [](Built& b) { PutLE32(b.file, test::kPeOffset + 24 + 112 + 16, 0x0090'0000); }},
    {"root lists itself", true, true, kNone, false,
     [](Built& b) { PutLE32(b.file, InSection(16 + 8 * 2 + 4), 0x8000'0000u); }},
    {"name directory lists its type directory", true, true, kNone, false,
     [](Built& b) {
         const std::uint32_t type = b.layout.typeDirectories[2];
         PutLE32(b.file, InSection(type + 16 + 4), 0x8000'0000u | type);
     }},
    {"two names share a language directory", true, true, kNone, false,
     [](Built& b) {
         PutLE32(b.file, InSection(b.layout.typeDirectories[3] + 16 + 4),
                 0x8000'0000u | b.layout.languageDirectories[2]);
     }},
    {"root claims 65535 + 65535 entries", true, true, kNone, false,
     [](Built& b) {
         PutLE16(b.file, InSection(12), 0xFFFF);
         PutLE16(b.file, InSection(14), 0xFFFF);
     }},
    {"type directory claims more than the section holds", true, true, kNone, false,
     [](Built& b) { PutLE16(b.file, InSection(b.layout.typeDirectories[0] + 14), 0x4000); }},
    {"language entry is a directory (a fourth level)", true, false, kArrow, false,
     [](Built& b) {
         PutLE32(b.file, InSection(b.layout.languageDirectories[2] + 16 + 4), 0x8000'0000u);
     }},
    {"group directory outside every section", true, false, kArrow, false,
     [](Built& b) { PutLE32(b.file, InSection(b.layout.dataEntries[2]), 0x0090'0000); }},
    {"group directory claims 65535 images", true, false, kBoth, true,
     [](Built& b) { PutLE16(b.file, InSection(b.layout.data[2] + 4), 0xFFFF); }},
    {"group directory of the wrong type", true, false, kArrow, false,
     [](Built& b) { PutLE16(b.file, InSection(b.layout.data[2] + 2), 2); }},
    {"icon image outside every section", true, false, kBoth, false,
     [](Built& b) { PutLE32(b.file, InSection(b.layout.dataEntries[0]), 0x7000'0000); }},
    {"icon image size beyond the section", true, false, kBoth, false,
     [](Built& b) { PutLE32(b.file, InSection(b.layout.dataEntries[0] + 4), 0xFFFF'FFF0); }},
    {"group names an image that is not there", true, false, kBoth, false,
     [](Built& b) { PutLE16(b.file, InSection(b.layout.data[2] + 6 + 12), 99); }},
    {"name string longer than the section", true, false, kIcon, true,
     [](Built& b) {
         const std::uint32_t string = SectionWord(b, b.layout.typeDirectories[3] + 16);
         PutLE16(b.file, InSection(string), 0xFFFF);
     }},
};

TEST(ProgramHostile, LyingFilesAreRefusedOrLoseOnlyWhatLies) {
    for (const HostileCase& c : kHostile) {
        SCOPED_TRACE(c.what);
        Built built = BuildTwoGroups();
        c.lie(built);
        const std::optional<ProgramIconTable> table = ProgramIconTable::Read(built.file);
        ASSERT_EQ(table.has_value(), c.program);
        if (table) {
            EXPECT_EQ(table->Refused(), c.refused);
            std::vector<std::string> names;
            for (const ResourceGroup& g : table->Groups())
                names.push_back(g.name.Display());
            EXPECT_EQ(names, c.groups);
            if (!names.empty() && names[0] == "1") {
                ASSERT_EQ(table->Groups()[0].images.size(), 1u);
                EXPECT_EQ(table->Groups()[0].images[0].present, c.iconPresent);
            }
        }
        // Opening it: the group, or the scan, whose finds must write back; never a crash.
        IconSet set;
        NullProgress progress;
        const IconReadResult read = ReadIconData(built.file, "a.dll", set, progress);
        if (read.Ok()) {
            EXPECT_EQ(test::CheckWriteAndReadBack(set), "");
        }
        if (table && !table->Groups().empty()) {
            ASSERT_TRUE(read.Ok());
            EXPECT_EQ(set.Count(), 1);
            // An image that is not found stays blank at the group's sides, 32 bits.
            if (table->Groups()[0].name.Display() == "1" && !c.iconPresent) {
                EXPECT_EQ(set.Info(0).bitCount, 32);
                EXPECT_EQ(set.Image(0).Color(2, 1), 0);
            }
        }
    }
}

// Thousands of entries all naming one long string would make text without end.
TEST(ProgramHostile, NamesMayNotOutgrowTheSection) {
    const std::uint32_t entries = 2000, units = 30000;
    Bytes section(16 + 8 + 16 + 8 * entries + 2 + 2 * units, 0);
    PutLE16(section, 14, 1);  // root: one numbered type, RT_GROUP_ICON
    PutLE32(section, 16, pe::kRtGroupIcon);
    PutLE32(section, 20, 0x8000'0000u | 24);
    PutLE16(section, 24 + 12, static_cast<std::uint16_t>(entries));  // all named
    const std::uint32_t string = 24 + 16 + 8 * entries;
    for (std::uint32_t i = 0; i < entries; ++i) {
        PutLE32(section, 24 + 16 + 8 * i, 0x8000'0000u | string);
        PutLE32(section, 24 + 16 + 8 * i + 4, 0x8000'0000u);
    }
    PutLE16(section, string, static_cast<std::uint16_t>(units));
    const std::optional<ProgramIconTable> table =
        ProgramIconTable::Read(test::BuildPeImage(section));
    ASSERT_TRUE(table);
    EXPECT_TRUE(table->Refused());
}

// Every single-byte change (to 0xFF, and to the byte plus one) and every truncation of a
// small built library. A few of the sets of each shape are written back.
TEST(ProgramHostile, EveryByteChangeOfABuiltLibraryReadsCleanly) {
    const Bytes original = BuildTwoGroups().file;
    std::map<std::string, int> shapes;
    auto check = [&](const Bytes& bytes) {
        IconSet set;
        NullProgress progress;
        if (!ReadIconData(bytes, "a.dll", set, progress).Ok()) return;
        std::string shape;
        for (int i = 0; i < set.Count(); ++i)
            shape += std::to_string(set.Info(i).Width()) + "x" +
                     std::to_string(set.Info(i).Height()) + "/" +
                     std::to_string(set.Info(i).bitCount) + ",";
        if (shapes[shape]++ < 3) {
            ASSERT_EQ(test::CheckWriteAndReadBack(set), "") << shape;
        }
    };
    for (std::size_t at = 0; at < original.size(); ++at) {
        for (std::uint8_t value :
             {std::uint8_t{0xFF}, static_cast<std::uint8_t>(original[at] + 1)}) {
            Bytes changed = original;
            changed[at] = value;
            check(changed);
        }
    }
    for (std::size_t length = 0; length < original.size(); length += 3)
        check(Bytes(original.begin(), original.begin() + static_cast<std::ptrdiff_t>(length)));
    EXPECT_GT(shapes.size(), 1u);
}

}  // namespace
}  // namespace iw
