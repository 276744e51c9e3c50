// Icon and cursor groups of Windows libraries built by the MinGW-w64 windres and ld from
// our own test icons (tests/data/pe): every group must read as the file it was made from.

#include <gtest/gtest.h>

#include <filesystem>

#include "document/io/PeImage.h"
#include "document/io/ProgramIcons.h"
#include "support/IcoBuilder.h"
#include "support/TestSupport.h"
#include "support/WriteReadBack.h"

namespace iw {
namespace {

using test::Bytes;

std::filesystem::path ProgramPath(const std::string& name) {
    const std::filesystem::path path = std::filesystem::path(IW_PE_PROGRAMS_DIR) / name;
    if (!std::filesystem::exists(path)) throw std::runtime_error("not built: " + path.string());
    return path;
}

struct ReadFile {
    IconSet set;
    IconReadResult result;
};

ReadFile ReadBytes(const Bytes& bytes, const std::string& name, const GroupChoice& choice = {}) {
    ReadFile read;
    NullProgress progress;
    read.result = ReadIconData(bytes, name, read.set, progress, choice);
    return read;
}

ReadFile ReadSource(const std::string& name) {
    return ReadBytes(test::ReadFileBytes(test::TestDataPath("interop/" + name)), name);
}

// The same images: fields, pixels and the PNG streams' bytes.
void ExpectSameImages(const IconSet& read, const IconSet& source) {
    ASSERT_EQ(read.Count(), source.Count());
    for (int i = 0; i < read.Count(); ++i) {
        SCOPED_TRACE("image " + std::to_string(i));
        const IconInfo &a = read.Info(i), &b = source.Info(i);
        EXPECT_EQ(std::tie(a.widthMinus1, a.heightMinus1, a.bitCount, a.png),
                  std::tie(b.widthMinus1, b.heightMinus1, b.bitCount, b.png));
        EXPECT_EQ(read.Image(i).OriginalPng(), source.Image(i).OriginalPng());
        EXPECT_TRUE(test::SamePixels(read.Image(i), source.Image(i)));
    }
}

struct GroupCase {
    ResourceGroupKind kind;
    const char* name;
    std::optional<std::uint16_t> language;
    std::uint16_t languageRead;
    const char* source;
};

const GroupCase kGroups[] = {
    {ResourceGroupKind::Icon, "APP", {}, 1033, "pillow-png-16-256.ico"},
    {ResourceGroupKind::Icon, "1", {}, 1031, "icotool-4bpp-16-48.ico"},
    {ResourceGroupKind::Icon, "1", 1033, 1033, "icotool-32bpp-16-256.ico"},
    {ResourceGroupKind::Icon, "1", 2052, 1031, "icotool-4bpp-16-48.ico"},  // absent: the first
    {ResourceGroupKind::Icon, "2", {}, 1033, "icotool-8bpp-48.ico"},
    {ResourceGroupKind::Icon, "3", {}, 1033, "icotool-4bpp-nonstandard-48.ico"},
    {ResourceGroupKind::Cursor, "pointer", {}, 1033, "icotool-cursor-32.cur"},
    {ResourceGroupKind::Cursor, "7", {}, 1033, "icotool-cursor-32.cur"},
};

TEST(ProgramIcons, EveryGroupReadsAsTheFileItWasMadeFrom) {
    for (const char* library : {"programs64.dll", "programs32.dll"}) {
        const std::optional<ProgramFile> program = ProgramFile::Open(ProgramPath(library));
        ASSERT_TRUE(program) << library;
        for (const GroupCase& c : kGroups) {
            SCOPED_TRACE(std::string(library) + " group " + c.name);
            const int index = program->Table().Find(c.kind, c.name);
            ASSERT_GE(index, 0);
            test::CoreFixture core;
            IconSet set;
            ASSERT_TRUE(program->ReadGroup(index, c.language, set, core.context));
            const ReadFile source = ReadSource(c.source);
            ExpectSameImages(set, source.set);
            EXPECT_EQ(set.mode, c.kind == ResourceGroupKind::Icon ? FileMode::ICO : FileMode::CUR);
            EXPECT_EQ(std::tie(set.properties.hotspotX, set.properties.hotspotY),
                      std::tie(source.set.properties.hotspotX, source.set.properties.hotspotY));
            // "Bad16Icons" exactly when the icon file has the same to say.
            EXPECT_EQ(core.presenter.shown.size(), source.result.nonStandard16Converted ? 1u : 0u);

            // The listing says what the read gave (a 4-bit image as stored, before the
            // 16-colour check).
            const ResourceGroup group = program->Describe(index, c.language);
            EXPECT_EQ(group.language, c.languageRead);
            ASSERT_EQ(static_cast<int>(group.images.size()), set.Count());
            for (int i = 0; i < set.Count(); ++i) {
                const ResourceImageSummary& s = group.images[static_cast<std::size_t>(i)];
                EXPECT_TRUE(s.present);
                EXPECT_EQ(
                    std::tuple(s.width, s.height, s.png),
                    std::tuple(set.Info(i).Width(), set.Info(i).Height(), set.Info(i).png != 0));
                EXPECT_EQ(s.bitCount == 4 && source.result.nonStandard16Converted ? 8 : s.bitCount,
                          set.Info(i).bitCount);
            }
        }
    }
}

TEST(ProgramIcons, ListsIconGroupsThenCursorGroupsInTableOrder) {
    for (const char* library : {"programs64.dll", "programs32.dll"}) {
        const Bytes bytes = test::ReadFileBytes(ProgramPath(library));
        const std::optional<pe::ImageHeaders> headers = pe::ReadImageHeaders(bytes);
        ASSERT_TRUE(headers);
        EXPECT_EQ(headers->pe32Plus, std::string(library) == "programs64.dll");
        const std::optional<ProgramIconTable> table = ProgramIconTable::Read(bytes);
        ASSERT_TRUE(table);
        std::vector<std::string> names;
        for (const ResourceGroup& g : table->Groups())
            names.push_back(std::string(g.kind == ResourceGroupKind::Icon ? "icon " : "cursor ") +
                            g.name.Display());
        EXPECT_EQ(names, (std::vector<std::string>{"icon APP", "icon 1", "icon 2", "icon 3",
                                                   "cursor POINTER", "cursor 7"}));
        EXPECT_TRUE(table->Groups()[0].name.isText);
        EXPECT_EQ(table->Groups()[1].languages, (std::vector<std::uint16_t>{1031, 1033}));
        const ResourceImageSummary& cursor = table->Groups()[5].images.at(0);
        EXPECT_EQ(std::pair(cursor.hotspotX, cursor.hotspotY), std::pair(5, 7));
    }
}

// Opening a file: the first icon group, else the first cursor group, else the scan; by
// content, whatever the name.
TEST(ProgramIcons, OpeningTakesTheGroupAFileManagerShows) {
    struct Case {
        const char* library;
        const char* name;
        const char* source;
        FileMode mode;
    };
    for (const Case& c :
         {Case{"programs64.dll", "a.dll", "pillow-png-16-256.ico", FileMode::ICO},
          Case{"programs32.dll", "a.ico", "pillow-png-16-256.ico", FileMode::ICO},
          Case{"cursors64.dll", "a.exe", "icotool-cursor-32.cur", FileMode::CUR},
          Case{"noicons64.dll", "a.dll", "icotool-24bpp-16-48.ico", FileMode::ICO}}) {
        SCOPED_TRACE(c.library);
        const ReadFile read = ReadBytes(test::ReadFileBytes(ProgramPath(c.library)), c.name);
        ASSERT_TRUE(read.result.Ok());
        EXPECT_TRUE(read.result.program);
        EXPECT_EQ(read.set.mode, c.mode);
        const ReadFile source = ReadSource(c.source);
        ExpectSameImages(read.set, source.set);
        EXPECT_EQ(std::tie(read.set.properties.hotspotX, read.set.properties.hotspotY),
                  std::tie(source.set.properties.hotspotX, source.set.properties.hotspotY));
        EXPECT_EQ(test::CheckWriteAndReadBack(read.set), "");
    }
}

TEST(ProgramIcons, AGroupTheFileDoesNotHaveIsACorruptFile) {
    const Bytes programs = test::ReadFileBytes(ProgramPath("programs64.dll"));
    EXPECT_EQ(ReadBytes(programs, "a.dll", {6, {}}).result.status, IconReadStatus::NoSuchGroup);
    const Bytes noIcons = test::ReadFileBytes(ProgramPath("noicons64.dll"));
    const ReadFile read = ReadBytes(noIcons, "a.dll", {0, {}});
    EXPECT_EQ(read.result.status, IconReadStatus::NoSuchGroup);
    EXPECT_TRUE(read.set.Empty());

    test::CoreFixture core;
    IconSet set;
    EXPECT_FALSE(ReadIconFile(ProgramPath("noicons64.dll").string(), {3, {}}, set, core.context));
    EXPECT_EQ(core.presenter.Keys(), std::vector<std::string>{"CorruptFile"});
}

TEST(ProgramIcons, TellsProgramsByTheirHeaders) {
    EXPECT_TRUE(IsProgramFile(ProgramPath("small32.dll").string()));
    EXPECT_TRUE(IsProgramFile(ProgramPath("noicons64.dll").string()));
    EXPECT_FALSE(IsProgramFile(test::TestDataPath("interop/icotool-1bpp-32.ico").string()));
    EXPECT_FALSE(ProgramFile::Open(test::TestDataPath("interop/icotool-1bpp-32.ico").string()));
}

}  // namespace
}  // namespace iw
