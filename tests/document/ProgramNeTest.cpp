// Icon and cursor groups of 16-bit Windows programs and icon libraries (NE images), built
// by hand: read as the PE ones are, and refused or cut short where the table lies.

#include <gtest/gtest.h>

#include <functional>

#include "document/io/NeResources.h"
#include "document/io/ProgramIcons.h"
#include "support/IcoBuilder.h"
#include "support/PeBuilder.h"
#include "support/TestSupport.h"
#include "support/WriteReadBack.h"

namespace iw {
namespace {

using test::AppendLE16;
using test::AppendLE32;
using test::Bytes;
using test::PutLE16;

constexpr std::size_t kNe = 0x40;     // the NE header
constexpr std::size_t kTable = 0x80;  // the resource table

// A DOS header, an NE header and the resource table of `resources` (each type once, in
// the order given), then the data, each piece aligned to 1 << shift.
Bytes BuildNe(const std::vector<test::PeResourceSpec>& resources, std::uint16_t shift = 4) {
    Bytes out(kTable, 0);
    out[0] = 'M';
    out[1] = 'Z';
    test::PutLE32(out, 0x3C, kNe);
    out[kNe] = 'N';
    out[kNe + 1] = 'E';
    Bytes table;
    AppendLE16(table, shift);
    std::vector<std::size_t> entryAt(resources.size());
    for (std::size_t i = 0; i < resources.size(); ++i) {
        AppendLE16(table, static_cast<std::uint16_t>(0x8000 | resources[i].type));
        AppendLE16(table, 1);
        AppendLE32(table, 0);
        entryAt[i] = table.size();
        table.resize(table.size() + 12);
    }
    AppendLE16(table, 0);
    for (std::size_t i = 0; i < resources.size(); ++i) {
        const std::string& text = resources[i].text;
        if (text.empty()) {
            PutLE16(table, entryAt[i] + 6,
                    static_cast<std::uint16_t>(0x8000 | resources[i].number));
            continue;
        }
        PutLE16(table, entryAt[i] + 6, static_cast<std::uint16_t>(table.size()));
        table.push_back(static_cast<std::uint8_t>(text.size()));
        table.insert(table.end(), text.begin(), text.end());
    }
    table.push_back(0);
    PutLE16(out, kNe + 0x24, kTable - kNe);
    PutLE16(out, kNe + 0x26, static_cast<std::uint16_t>(kTable - kNe + table.size()));
    out.insert(out.end(), table.begin(), table.end());
    const std::size_t unit = std::size_t{1} << shift;
    for (std::size_t i = 0; i < resources.size(); ++i) {
        out.resize((out.size() + unit - 1) / unit * unit);
        PutLE16(out, kTable + entryAt[i], static_cast<std::uint16_t>(out.size() >> shift));
        PutLE16(out, kTable + entryAt[i] + 2,
                static_cast<std::uint16_t>((resources[i].data.size() + unit - 1) >> shift));
        out.insert(out.end(), resources[i].data.begin(), resources[i].data.end());
    }
    return out;
}

// Icon group "MAIN" of RT_ICON 1 (8 x 8), cursor group 5 of RT_CURSOR 2 (6 x 6, hotspot 3, 4).
std::vector<test::PeResourceSpec> Library() {
    return test::IconAndCursorGroups("MAIN", "5", 0);
}

// Resource i's 12 bytes in the table built above.
std::size_t EntryOf(std::size_t i) {
    return kTable + 2 + 8 * (i + 1) + 12 * i;
}

TEST(ProgramNe, GroupsReadAsInAPeImage) {
    const Bytes file = BuildNe(Library());
    EXPECT_TRUE(LooksLikeProgram(file));
    const std::optional<ProgramIconTable> table = ProgramIconTable::Read(file);
    ASSERT_TRUE(table);
    ASSERT_EQ(table->Groups().size(), 2u);
    EXPECT_EQ(table->Groups()[0].name.Display(), "MAIN");
    EXPECT_EQ(table->Groups()[0].languages, std::vector<std::uint16_t>{0});

    IconSet set;
    NullProgress progress;
    const IconReadResult read = ReadIconData(file, "library.icl", set, progress);
    ASSERT_TRUE(read.Ok());
    EXPECT_TRUE(read.program);
    ASSERT_EQ(set.Count(), 1);
    EXPECT_EQ(set.Image(0).Color(2, 1), PackColor(40, 30, 90));
    EXPECT_EQ(test::CheckWriteAndReadBack(set), "");

    ASSERT_TRUE(ReadIconData(file, "library.icl", set, progress, {1, {}}).Ok());
    EXPECT_EQ(set.mode, FileMode::CUR);
    EXPECT_EQ(set.properties.hotspotX, 3);
    EXPECT_EQ(set.properties.hotspotY, 4);

    test::TempDir temp;
    test::WriteFileBytes(temp / "library.icl", file);
    EXPECT_TRUE(IsProgramFile((temp / "library.icl").string()));
}

struct NeCase {
    const char* what;
    bool refused;
    std::vector<std::string> groups;
    bool iconPresent;
    std::function<void(Bytes&)> lie;
};

const std::vector<std::string> kNone, kBoth = {"MAIN", "5"}, kCursor = {"5"};
const NeCase kLies[] = {
    {"a shift of 30 bits", true, kNone, false, [](Bytes& f) { PutLE16(f, kTable, 30); }},
    {"a type claims 65535 resources", true, kNone, false,
     [](Bytes& f) { PutLE16(f, kTable + 2 + 2, 0xFFFF); }},
    {"the table ends before its terminator", true, kNone, false,
     [](Bytes& f) { PutLE16(f, kNe + 0x26, static_cast<std::uint16_t>(kTable - kNe + 20)); }},
    {"the resident names before the table", true, kNone, false,
     [](Bytes& f) { PutLE16(f, kNe + 0x26, 0x10); }},
    {"the icon's data past the end of the file", false, kBoth, false,
     [](Bytes& f) { PutLE16(f, EntryOf(0), 0xFFF0); }},
    {"the group's name past the table", false, kCursor, false,
     [](Bytes& f) { PutLE16(f, EntryOf(2) + 6, 0x7000); }},
};

TEST(ProgramNe, LyingTablesAreRefusedOrLoseOnlyWhatLies) {
    for (const NeCase& c : kLies) {
        SCOPED_TRACE(c.what);
        Bytes file = BuildNe(Library());
        c.lie(file);
        const std::optional<ProgramIconTable> table = ProgramIconTable::Read(file);
        ASSERT_TRUE(table);
        EXPECT_EQ(table->Refused(), c.refused);
        std::vector<std::string> names;
        for (const ResourceGroup& g : table->Groups())
            names.push_back(g.name.Display());
        EXPECT_EQ(names, c.groups);
        if (!names.empty() && names[0] == "MAIN") {
            EXPECT_EQ(table->Groups()[0].images.at(0).present, c.iconPresent);
        }
        IconSet set;
        NullProgress progress;
        if (ReadIconData(file, "a.icl", set, progress).Ok()) {
            EXPECT_EQ(test::CheckWriteAndReadBack(set), "");
        }
    }
}

}  // namespace
}  // namespace iw
