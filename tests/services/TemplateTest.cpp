// Template files: reading, old-style colour indexes, limits, round trips, the two folders
// and the template editor's operations.
#include <gtest/gtest.h>

#include "DesktopTestSupport.h"
#include "services/desktop/ProgramFolders.h"
#include "services/desktop/TemplateEditor.h"
#include "services/desktop/TemplateFile.h"
#include "services/desktop/TemplateLibrary.h"

namespace iw {
namespace {

using test::WriteText;

// (width, bits, compressed) of each entry.
std::vector<std::tuple<int, int, int>> Summary(const std::vector<TemplateEntry>& entries) {
    std::vector<std::tuple<int, int, int>> out;
    for (const TemplateEntry& e : entries)
        out.emplace_back(e.Width(), e.bits, e.compressed);
    return out;
}

// Values are read four at a time whatever the lines; an entry with a bad value is skipped;
// old colour indexes (3 is 24 bits, 0 is 1 bit, 4 is 32 bits) are mapped; 65 at most.
TEST(TemplateFile, ReadsEntriesSkipsBadOnesAndStopsAt65) {
    using S = std::vector<std::tuple<int, int, int>>;
    EXPECT_EQ(Summary(ParseTemplateText("32,32,3,0\r\n32,32,24,0\r\n16, 16, 0, 0\r\n48,48,4,1")),
              (S{{32, 24, 0}, {32, 24, 0}, {16, 1, 0}, {48, 32, 1}}));
    EXPECT_EQ(Summary(ParseTemplateText("0,16,32,0\r\n16,300,32,0\r\n16,16,16,0\r\nx,16,32,0\r\n"
                                        "16,16\r\n32,0\r\n,,,\r\n\r\n99999999999,1,1,1\r\n"
                                        "24,24,8,7\r\n32,32,32")),
              (S{{16, 32, 0}, {24, 8, 1}}));
    EXPECT_TRUE(ParseTemplateText(std::string(1000, ',')).empty());
    std::string many;
    for (int i = 1; i <= 70; ++i)
        many += std::to_string(i) + "," + std::to_string(i) + ",32,0\r\n";
    const auto entries = ParseTemplateText(many);
    ASSERT_EQ(entries.size(), 65u);
    EXPECT_EQ(entries.back().Width(), 65);
}

TEST(TemplateFile, SavedTemplatesLoadBackTheSame) {
    test::TempDir dir;
    std::vector<TemplateEntry> entries;
    for (int side : {1, 47, 256}) {
        for (int bits : {1, 4, 8, 24, 32}) {
            TemplateEntry entry;
            entry.widthMinus1 = static_cast<std::int16_t>(side - 1);
            entry.heightMinus1 = static_cast<std::int16_t>(side == 47 ? 32 : side - 1);
            entry.bits = static_cast<std::int16_t>(bits);
            entry.compressed = bits == 32 ? 1 : 0;
            entries.push_back(entry);
        }
    }
    ASSERT_TRUE(WriteTemplateFile(dir / "Round trip.ini", entries));
    EXPECT_EQ(ReadTemplateFile(dir / "Round trip.ini"), entries);
    EXPECT_EQ(FormatTemplateText({entries[10]}), "256,256,0,0\r\n");
    EXPECT_FALSE(ReadTemplateFile(dir / "absent.ini").has_value());
}

TEST(TemplateLibrary, LoadsBothFoldersSortedAndLocksTheProgramsOwn) {
    test::TempDir program, user;
    WriteText(program / "Beta.ini", "16,16,32,0\r\n");
    WriteText(program / "alpha.INI", "32,32,32,0\r\n");
    WriteText(program / "notes.txt", "16,16,32,0\r\n");
    WriteText(user / "Mine.ini", "48,48,4,0\r\n");
    test::MessageFixture messages;
    TemplateLibrary library;
    library.LoadAll(program.Path(), user.Path(), messages.service);
    ASSERT_EQ(library.Templates().size(), 3u);
    EXPECT_EQ(std::tuple(library.Templates()[0].name, library.Templates()[1].name,
                         library.Templates()[0].Locked(), library.Find("Mine")->Locked()),
              std::tuple("alpha", "Beta", true, false));
    EXPECT_EQ(library.Find("Mine")->entries[0].bits, 32);
    EXPECT_TRUE(messages.presenter.shown.empty());

    TemplateLibrary without;
    without.LoadAll(user / "no-such-folder", user.Path(), messages.service);
    EXPECT_EQ(messages.presenter.shown.size(), 1u);  // the program's folder is missing
    EXPECT_EQ(messages.presenter.shown[0].type, MessageType::Critical);
    EXPECT_EQ(without.Templates().size(), 1u);
}

TEST(TemplateFolders, ProgramFolderPrefersTheBuildTreeThenTheInstalledDataFolder) {
    test::TempDir root;
    std::filesystem::create_directories(root / "bin");
    EXPECT_EQ(ProgramTemplatesFolder(root / "bin"), root / "share" / "iconwright" / "Templates");
    std::filesystem::create_directories(root / "bin" / "Templates");
    EXPECT_EQ(ProgramTemplatesFolder(root / "bin"), root / "bin" / "Templates");
    setenv("XDG_DATA_HOME", root.Path().c_str(), 1);
    EXPECT_EQ(EnsureUserTemplatesFolder(), root / "Quorvale" / "Iconwright" / "Templates");
    EXPECT_TRUE(std::filesystem::is_directory(root / "Quorvale" / "Iconwright" / "Templates"));
}

// A template editor saving into a temporary user folder, with what it told its observer.
struct TemplateEditing : ::testing::Test, ITemplateEditorObserver {
    void RowsChanged() override { ++rowEvents; }
    void TemplateChanged() override { ++templateEvents; }
    test::MessageFixture messages;
    test::TempDir user;
    TemplateEditor editor{messages.service, user.Path(), this};
    int rowEvents = 0;
    int templateEvents = 0;
};

TEST_F(TemplateEditing, LockedTemplatesCannotBeEdited) {
    IconTemplate locked;
    locked.name = "Shipped";
    locked.lock = "LOCKED";
    EXPECT_FALSE(editor.OpenTemplates(locked));
    EXPECT_EQ(messages.presenter.shown.size(), 1u);
    EXPECT_EQ(editor.Name(), "NEW");
    EXPECT_EQ(rowEvents + templateEvents, 0);
}

TEST_F(TemplateEditing, RowsAddRemoveAndMoveWithTheSelection) {
    EXPECT_TRUE(editor.AddItem(48, 48, 32, false) && editor.AddItem(16, 16, 4, false) &&
                editor.AddItem(256, 256, 32, true));
    EXPECT_FALSE(editor.AddItem(0, 16, 32, false) || editor.AddItem(16, 16, 16, false));
    EXPECT_EQ(editor.SelectedRow(), 2);
    EXPECT_TRUE(editor.MoveUp() && editor.MoveUp());
    EXPECT_FALSE(editor.MoveUp());
    EXPECT_EQ(editor.SelectedRow(), 0);
    EXPECT_EQ(std::tie(editor.Rows()[0].size, editor.Rows()[0].compressed, editor.Rows()[2].depth),
              std::tuple("256 x 256", "Yes", "16 Colors"));
    EXPECT_TRUE(editor.MoveDown());
    EXPECT_EQ(editor.Entries()[1].Width(), 256);
    editor.SelectRow(2);
    EXPECT_TRUE(editor.RemoveItem());
    EXPECT_EQ(editor.SelectedRow(), 1);  // the new last row
    EXPECT_EQ(editor.Entries().size(), 2u);
    editor.UnselectRows();
    EXPECT_FALSE(editor.RemoveItem() || editor.MoveDown());
    editor.SelectRow(7);
    EXPECT_EQ(editor.SelectedRow(), -1);
    EXPECT_EQ(rowEvents, 10);  // every change but the refused ones
    while (editor.Entries().size() < 65)
        ASSERT_TRUE(editor.AddItem(16, 16, 32, false));
    EXPECT_FALSE(editor.AddItem(16, 16, 32, false));
}

TEST_F(TemplateEditing, SavesUnderTheGivenNameAndLoadsBack) {
    editor.NewTemplate();
    editor.AddItem(32, 32, 1, false);
    editor.AddItem(24, 16, 4, false);
    EXPECT_FALSE(editor.SaveTemplates());  // a new template has no file yet
    EXPECT_FALSE(editor.SaveTemplatesAs("bad/name"));
    ASSERT_TRUE(editor.SaveTemplatesAs("Tiny"));
    EXPECT_EQ(editor.Path(), (user / "Tiny.ini").string());
    EXPECT_EQ(templateEvents, 2);  // the new template, then its name
    test::TempDir program;
    TemplateLibrary library;
    library.LoadAll(program.Path(), user.Path(), messages.service);
    const IconTemplate* tiny = library.Find("Tiny");
    ASSERT_NE(tiny, nullptr);
    EXPECT_EQ(tiny->entries, editor.Entries());

    TemplateEditor reopened(messages.service, user.Path());
    ASSERT_TRUE(reopened.OpenTemplates(*tiny));
    reopened.SelectRow(0);
    reopened.RemoveItem();
    ASSERT_TRUE(reopened.SaveTemplates());
    EXPECT_EQ(ReadTemplateFile(user / "Tiny.ini")->size(), 1u);
}

}  // namespace
}  // namespace iw
