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

TEST_F(TemplateEditing, TheAddButtonTakesOnlyWholeSidesFrom1To256) {
    struct Case {
        const char* width;
        const char* height;
        int depthIndex;
        int compressedIndex;
        bool added;
    };
    const Case cases[] = {
        {"16", "24", 0, 0, true},  {"+32", "32", 4, 1, true},         {"256", "1", 2, 0, true},
        {"0", "16", 4, 0, false},  {"16", "257", 4, 0, false},        {"4.5", "16", 4, 0, false},
        {"", "16", 4, 0, false},   {"99999999999", "1", 4, 0, false}, {"-16", "16", 4, 0, false},
        {"16", "16", 5, 0, false},
    };
    std::size_t messagesBefore = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.width) + " x " + c.height);
        const std::size_t rows = editor.Entries().size();
        EXPECT_EQ(editor.AddItemText(c.width, c.height, c.depthIndex, c.compressedIndex), c.added);
        EXPECT_EQ(editor.Entries().size(), rows + (c.added ? 1 : 0));
        const bool told = messages.presenter.shown.size() > messagesBefore;
        // Every refused side is told; a depth outside the list cannot be chosen in the window.
        EXPECT_EQ(told, !c.added && c.depthIndex < 5);
        if (told) {
            EXPECT_EQ(messages.presenter.shown.back().text,
                      "Please enter an integer between 1 and 256.");
        }
        messagesBefore = messages.presenter.shown.size();
    }
    ASSERT_EQ(editor.Entries().size(), 3u);
    EXPECT_EQ(std::tie(editor.Rows()[0].size, editor.Rows()[1].compressed, editor.Rows()[2].depth),
              std::tuple("16 x 24", "Yes", "256 Colors"));
    EXPECT_EQ(std::tuple(editor.Entries()[0].bits, editor.Entries()[1].bits), std::tuple(1, 32));
    while (editor.Entries().size() < 65)
        ASSERT_TRUE(editor.AddItem(16, 16, 32, false));
    EXPECT_FALSE(editor.AddItemText("16", "16", 4, 0));
    EXPECT_EQ(messages.presenter.shown.back().text, "You cannot add anymore icons.");
}

TEST_F(TemplateEditing, AViewedShippedTemplateRefusesEveryChange) {
    IconTemplate shipped;
    shipped.name = "Shipped";
    shipped.path = (user / "Shipped.ini").string();
    shipped.lock = "LOCKED";
    shipped.entries.resize(2);
    EXPECT_FALSE(editor.OpenTemplates(shipped));  // opened for editing: refused, untouched
    EXPECT_EQ(editor.Name(), "NEW");
    EXPECT_EQ(rowEvents + templateEvents, 0);
    editor.ViewTemplate(shipped);
    EXPECT_TRUE(editor.ReadOnly());
    EXPECT_EQ(editor.Rows().size(), 2u);
    editor.SelectRow(1);
    EXPECT_FALSE(editor.AddItemText("16", "16", 0, 0));
    EXPECT_FALSE(editor.RemoveItem());
    EXPECT_FALSE(editor.MoveUp());
    EXPECT_FALSE(editor.Save("Shipped"));
    EXPECT_FALSE(editor.SaveTemplatesAs("Copy"));
    EXPECT_EQ(messages.presenter.shown.size(), 6u);
    for (const auto& shown : messages.presenter.shown)
        EXPECT_EQ(shown.text, "This template cannot be edited.");
    EXPECT_EQ(editor.Entries(), shipped.entries);
    EXPECT_FALSE(std::filesystem::exists(shipped.path));
    EXPECT_FALSE(std::filesystem::exists(user / "Copy.ini"));
    editor.NewTemplate();
    EXPECT_FALSE(editor.ReadOnly());
}

TEST_F(TemplateEditing, SavingANewTemplateAsksBeforeReplacingOne) {
    WriteText(user / "Mine.ini", "48,48,32,0\r\n");
    editor.NewTemplate();
    editor.AddItem(16, 16, 8, false);
    EXPECT_FALSE(editor.Save("a:b"));
    EXPECT_EQ(messages.presenter.shown.back().key, "TemplateName");
    messages.presenter.answer = MessageAnswer::No;
    EXPECT_FALSE(editor.Save("Mine"));
    EXPECT_EQ(messages.presenter.shown.back().text,
              "The file " + (user / "Mine.ini").string() + " already exists.  OK to overwrite?");
    EXPECT_EQ(ReadTemplateFile(user / "Mine.ini")->front().Width(), 48);
    EXPECT_EQ(editor.Name(), "NEW");
    messages.presenter.answer = MessageAnswer::Yes;
    ASSERT_TRUE(editor.Save("Mine"));
    EXPECT_EQ(ReadTemplateFile(user / "Mine.ini")->front().Width(), 16);
    // From now on Save writes the same file without asking.
    const std::size_t asked = messages.presenter.shown.size();
    editor.AddItem(32, 32, 8, false);
    ASSERT_TRUE(editor.Save("ignored"));
    EXPECT_EQ(messages.presenter.shown.size(), asked);
    EXPECT_EQ(ReadTemplateFile(user / "Mine.ini")->size(), 2u);
}

TEST_F(TemplateEditing, DeletingAsksAndSparesTheProgramsTemplates) {
    WriteText(user / "Mine.ini", "48,48,32,0\r\n");
    IconTemplate mine{"Mine", (user / "Mine.ini").string(), "", {}};
    messages.presenter.answer = MessageAnswer::No;
    EXPECT_FALSE(DeleteTemplate(mine, messages.service));
    EXPECT_EQ(messages.presenter.shown.back().text,
              "Delete the template \"Mine\"?  This cannot be undone.");
    EXPECT_TRUE(std::filesystem::exists(mine.path));
    messages.presenter.answer = MessageAnswer::Yes;
    EXPECT_TRUE(DeleteTemplate(mine, messages.service));
    EXPECT_FALSE(std::filesystem::exists(mine.path));
    WriteText(user / "Shipped.ini", "48,48,32,0\r\n");
    IconTemplate shipped{"Shipped", (user / "Shipped.ini").string(), "LOCKED", {}};
    EXPECT_FALSE(DeleteTemplate(shipped, messages.service));
    EXPECT_EQ(messages.presenter.shown.back().text, "This template cannot be edited.");
    EXPECT_TRUE(std::filesystem::exists(shipped.path));
}

}  // namespace
}  // namespace iw
