// Start-up, the command line, ask-to-save with its three answers, save as, and the
// document flags.
#include <gtest/gtest.h>

#include "EditorFakes.h"

namespace iw {
namespace {

using Keys = std::vector<std::string>;

struct Lifecycle : ::testing::Test {
    StartupResult Start(std::string_view commandLine = "") {
        return editor.RunStartup(commandLine, f.folders);
    }
    // Writes settings as a previous run would have left them.
    void SaveSettings(const std::vector<std::pair<std::string, std::string>>& values) {
        XmlStore store;
        store.SetFilePath(f.folders.dataFolder / "settings.xml");
        for (const auto& [key, value] : values)
            store.SetValue("Settings\\" + key, value);
        ASSERT_TRUE(store.Save());
    }
    bool Unmodified() { return editor.Document().Unmodified(); }

    test::EditorFixture f;
    Editor& editor = f.editor;
};

TEST_F(Lifecycle, StartupMakesAnUntitledBlankSetAndWritesExitOK) {
    EXPECT_TRUE(Start().showStartupDialog);
    EXPECT_EQ(editor.Document().Caption(), "untitled - Quorvale Iconwright");
    ASSERT_EQ(editor.Set().Count(), 1);
    EXPECT_EQ(AttributesOf(editor.Set().Info(0)), (ImageAttributes{32, 32, 32, false}));
    EXPECT_EQ(editor.Settings().Store().GetValue("Settings\\ExitOK", ""), "False");
    EXPECT_EQ(f.view.splashes, 1);
    EXPECT_TRUE(f.view.restored->Maximised());
    EXPECT_TRUE(Unmodified() && !editor.Document().HasFileName());
}

TEST_F(Lifecycle, StartupReadsItsSettingsFromTheDataFolder) {
    SaveSettings({{"Splash", "0"},
                  {"State", "0"},
                  {"Width", "9000"},
                  {"Startup", "2"},
                  {"BlankIcon", "1"},
                  {"ExitOK", "False"},
                  {"UseFont", "True"}});
    const StartupResult result = Start();
    EXPECT_EQ(f.view.splashes, 0);
    ASSERT_TRUE(f.view.restored.has_value());
    EXPECT_EQ(std::tuple(f.view.restored->Maximised(), f.view.restored->widthTwips,
                         f.view.restored->heightTwips, *f.view.useFont),
              std::tuple(false, 9000, 8000, true));
    EXPECT_FALSE(result.previousRunEndedCleanly || result.showStartupDialog);
    EXPECT_EQ(editor.Set().Info(0).Width(), 16);  // blank icon kind 1
}

TEST_F(Lifecycle, StartupOpensTheMostRecentFileOnlyWhenItExists) {
    const std::string path = f.PathFor("recent.ico");
    SaveSettings({{"Startup", "1"}, {"RecentFile1", path}});
    Start();
    EXPECT_FALSE(editor.Document().HasFileName());
    f.documents.Put(path, test::SolidSet(16, 32, PackColor(1, 2, 3)));
    Start();
    EXPECT_EQ(editor.Document().Caption(), "recent.ico - Quorvale Iconwright");
}

TEST_F(Lifecycle, CommandLineOpensAFileOrReportsItMissing) {
    const std::string path = f.PathFor("given.ico");
    f.documents.Put(path, test::SolidSet(16, 32, PackColor(1, 2, 3)));
    const StartupResult result = Start("  \"" + path + "\" /log ");
    EXPECT_TRUE(f.view.logShown);
    EXPECT_FALSE(result.showStartupDialog);
    for (const char* event : {"caption", "mode", "set", "current", "view", "undo", "inspector"})
        EXPECT_GT(f.observer.events[event], 0) << event;
    EXPECT_EQ(f.observer.events["recent"], 1);
    EXPECT_EQ(editor.Settings().RecentFiles()[0], path);

    f.presenter.shown.clear();
    EXPECT_FALSE(editor.HandleCommandLine("/nowhere/x.ico"));
    ASSERT_EQ(f.presenter.shown.size(), 1u);
    EXPECT_TRUE(f.presenter.shown[0].text.ends_with("\n/nowhere/x.ico"));
    EXPECT_EQ(editor.Document().FileName(), path);  // the window keeps what it had

    // Only a stand-alone switch leaves the path: a folder named like it stays.
    const std::string logos = f.PathFor("logos.ico");
    f.documents.Put(logos, test::SolidSet(16, 32, PackColor(1, 2, 3)));
    EXPECT_TRUE(editor.HandleCommandLine(logos));
    EXPECT_EQ(editor.Document().FileName(), logos);
}

TEST_F(Lifecycle, AskToSaveAsksOnlyAfterChangesAndNamesTheFileOrUntitled) {
    Start();
    EXPECT_EQ(editor.Document().AskToSave(), MessageAnswer::No);
    EXPECT_TRUE(f.presenter.shown.empty());
    f.Draw({1, 1});
    f.presenter.answer = MessageAnswer::No;
    EXPECT_EQ(editor.Document().AskToSave(), MessageAnswer::No);
    EXPECT_EQ(f.presenter.shown[0].buttons, MessageButtons::YesNoCancel);

    f.view.savePath = f.PathFor("named.ico");
    ASSERT_TRUE(editor.Document().Save());
    f.Draw({2, 2});
    editor.Document().AskToSave();
    EXPECT_EQ(f.presenter.Keys(), (Keys{"SaveUntitled", "SaveFilename"}));
    EXPECT_EQ(f.presenter.shown[1].text, "Save changes to " + *f.view.savePath + "?");
}

TEST_F(Lifecycle, CancelKeepsTheSetNoDiscardsItAndYesSavesOrBecomesCancel) {
    Start();
    f.Draw({1, 1});
    f.presenter.answer = MessageAnswer::Cancel;
    EXPECT_FALSE(editor.Document().NewDocument());
    EXPECT_FALSE(editor.QueryClose());
    EXPECT_FALSE(editor.Document().NewIcon({48, 20, 4, true}));

    f.presenter.answer = MessageAnswer::No;
    EXPECT_FALSE(editor.Document().NewIcon({48, 257, 4, true}));
    EXPECT_FALSE(editor.Document().NewIcon({48, 20, 2, true}));
    EXPECT_FALSE(Unmodified());
    ASSERT_TRUE(editor.Document().NewIcon({48, 20, 4, true}));
    ASSERT_EQ(editor.Set().Count(), 1);
    EXPECT_EQ(AttributesOf(editor.Set().Info(0)), (ImageAttributes{48, 20, 4, true}));
    EXPECT_EQ(editor.CurrentImage().Color(47, 19), TransparentColor);
    EXPECT_TRUE(Unmodified());
    EXPECT_TRUE(f.documents.writes.empty());

    // Yes saves; a refused or failed save becomes Cancel.
    f.Draw({1, 1});
    f.presenter.answer = MessageAnswer::Yes;
    EXPECT_EQ(editor.Document().AskToSave(), MessageAnswer::Cancel);  // Save As is cancelled
    EXPECT_EQ(f.view.savePathRequests, 1);
    f.view.savePath = f.PathFor("saved.ico");
    f.documents.failWrites = true;
    EXPECT_EQ(editor.Document().AskToSave(), MessageAnswer::Cancel);
    EXPECT_FALSE(Unmodified());
    f.documents.failWrites = false;
    EXPECT_EQ(editor.Document().AskToSave(), MessageAnswer::Yes);
    EXPECT_TRUE(Unmodified() && editor.Document().HasFileName());
    EXPECT_EQ(f.documents.files.count(f.PathFor("saved.ico")), 1u);
}

TEST_F(Lifecycle, SaveAsAsksBeforeOverwritingAndOnlyYesGoesOn) {
    Start();
    const std::string path = f.PathFor("exists.ico");
    f.documents.Put(path, test::SolidSet(16, 32, 0));
    f.presenter.answer = MessageAnswer::No;
    EXPECT_FALSE(editor.Document().SaveAs(path));
    EXPECT_TRUE(f.documents.writes.empty());
    f.presenter.answer = MessageAnswer::Yes;
    EXPECT_TRUE(editor.Document().SaveAs(path));
    EXPECT_EQ(f.documents.writes, Keys{path});
    EXPECT_EQ(editor.Document().FileName(), path);
}

TEST_F(Lifecycle, UndoBackToTheSavedStateClearsTheModifiedFlag) {
    Start();
    f.view.savePath = f.PathFor("flag.ico");
    f.Draw({1, 1});
    ASSERT_TRUE(editor.Document().Save());
    f.Draw({2, 2});
    EXPECT_FALSE(Unmodified());
    editor.Undo();
    EXPECT_TRUE(Unmodified());
    editor.Undo();
    EXPECT_FALSE(Unmodified());
    editor.Repeat();
    EXPECT_TRUE(Unmodified());
    editor.Document().MarkModified();
    EXPECT_FALSE(Unmodified());
}

TEST_F(Lifecycle, OpeningAMissingOrUnreadableFileKeepsTheSet) {
    Start();
    EXPECT_FALSE(editor.Document().OpenDocument(f.PathFor("absent.ico")));
    EXPECT_EQ(f.presenter.shown.size(), 1u);
    const std::string junk = f.PathFor("junk.ico");
    std::ofstream(junk) << "not an icon";
    EXPECT_FALSE(editor.Document().OpenDocument(junk));  // the fake store knows nothing of it
    EXPECT_EQ(editor.Set().Count(), 1);
    EXPECT_EQ(editor.Document().Caption(), "untitled - Quorvale Iconwright");
}

TEST_F(Lifecycle, OpeningAFileOrSwitchingImagesResetsUndo) {
    Start();
    IconSet two = test::SolidSet(32, 32, 0);
    two.AddIcon(15, 15, 32);
    ASSERT_TRUE(f.Open(two));
    f.Draw({1, 1});
    EXPECT_TRUE(editor.UndoEnabled());
    editor.SelectImage(1);
    EXPECT_FALSE(editor.UndoEnabled());
    f.Draw({1, 1});
    editor.Undo();
    f.presenter.answer = MessageAnswer::No;
    ASSERT_TRUE(f.Open(test::SolidSet(32, 32, 0), "arrow.cur"));
    EXPECT_FALSE(editor.UndoEnabled() || editor.RepeatEnabled());
}

TEST_F(Lifecycle, NewCursorsShowTheirHintsAndTemplatesMakeEveryFormat) {
    Start();
    ASSERT_TRUE(editor.Document().NewCursor());
    EXPECT_EQ(editor.Document().Mode(), FileMode::CUR);
    EXPECT_TRUE(Unmodified());
    editor.Document().SwitchCURMode();  // already a cursor
    EXPECT_TRUE(Unmodified());
    editor.Document().SwitchICOMode();
    EXPECT_FALSE(Unmodified());
    f.presenter.answer = MessageAnswer::No;
    ASSERT_TRUE(editor.Document().NewAnimatedCursor());
    EXPECT_EQ(f.presenter.Keys(), (Keys{"CreateCursor", "SaveUntitled", "CreateANI"}));
    EXPECT_EQ(editor.Document().Mode(), FileMode::ANI);
    EXPECT_EQ(editor.Set().Count(), 1);

    // The folder icon wizard's set becomes the document, after asking to save.
    IconSet folder;
    folder.AddIcon(15, 15, 4);
    folder.AddIcon(47, 47, 32);
    editor.Document().SwitchICOMode();  // a change, so it asks
    f.presenter.answer = MessageAnswer::Cancel;
    EXPECT_FALSE(editor.Document().NewFolderIcon(folder));
    EXPECT_EQ(editor.Set().Count(), 1);
    f.presenter.answer = MessageAnswer::No;
    ASSERT_TRUE(editor.Document().NewFolderIcon(folder));
    ASSERT_EQ(editor.Set().Count(), 2);
    EXPECT_EQ(editor.Set().Info(1).Width(), 48);
    EXPECT_EQ(editor.Document().Mode(), FileMode::ICO);
    EXPECT_TRUE(Unmodified());

    const IconTemplate* classic = editor.Settings().Templates().Find("Windows Classic");
    ASSERT_NE(classic, nullptr);
    ASSERT_TRUE(editor.Document().NewFromTemplate(*classic));
    EXPECT_EQ(editor.Set().Count(), static_cast<int>(classic->entries.size()));
    EXPECT_EQ(editor.Inspector().Panel().state, InspectorState::AllBlank);
}

TEST_F(Lifecycle, APictureConvertsIntoAModifiedUntitledSetOfTheTemplatesFormats) {
    Start();
    const IconTemplate* classic = editor.Settings().Templates().Find("Windows Classic");
    ASSERT_NE(classic, nullptr);
    RgbaBuffer logo(120, 60);
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 120; ++x)
            logo.At(x, y) = Rgba{200, 10, 10, 255};
    f.Draw({3, 3});  // unsaved changes: the question comes first

    f.presenter.answer = MessageAnswer::Cancel;
    EXPECT_FALSE(editor.Document().NewFromPicture(logo, *classic, f.progress));
    EXPECT_EQ(editor.Set().Count(), 1);
    EXPECT_EQ(f.presenter.shown.back().key, "SaveUntitled");
    EXPECT_FALSE(editor.Document().NewFromPicture(RgbaBuffer(), *classic, f.progress));

    f.presenter.answer = MessageAnswer::No;
    ASSERT_TRUE(editor.Document().NewFromPicture(logo, *classic, f.progress));
    ASSERT_EQ(editor.Set().Count(), static_cast<int>(classic->entries.size()));
    for (int i = 0; i < editor.Set().Count(); ++i) {
        EXPECT_EQ(editor.Set().Info(i).Width(), classic->entries[i].Width());
        EXPECT_EQ(editor.Set().Info(i).bitCount, classic->entries[i].bits);
    }
    EXPECT_EQ(editor.CurrentIcon(), 0);
    EXPECT_FALSE(editor.Document().HasFileName() || Unmodified() || editor.UndoEnabled());
}

TEST_F(Lifecycle, ShutdownWritesTheStores) {
    Start();
    editor.View().NormalZoom();
    for (int i = 1; i < 7; ++i)
        editor.View().ZoomIn();
    editor.Settings().SetStartupAction(2);
    editor.Settings().SetUseFont(true);
    editor.Settings().SetSplash(false);
    editor.Settings().SetBlankIcon(3);
    // Clear Messages: a silenced message shows again, and the store is written emptied.
    MessageService& messages = editor.Settings().Messages();
    messages.Store().SetBool("Messages\\CreateCursor", true);
    ASSERT_TRUE(messages.IsSuppressed("CreateCursor"));
    editor.Settings().ClearMessages();
    EXPECT_FALSE(messages.IsSuppressed("CreateCursor"));
    editor.Shutdown();
    XmlStore written;
    written.Load(f.folders.dataFolder / "settings.xml");
    WindowSettings reread;
    LoadStartupSettings(written, reread);
    EXPECT_EQ(std::tuple(reread.useFont, reread.splash, reread.blankIcon),
              std::tuple(true, false, 3));
    XmlStore writtenMessages;
    ASSERT_TRUE(std::filesystem::exists(f.folders.dataFolder / "messages.xml"));
    writtenMessages.Load(f.folders.dataFolder / "messages.xml");
    EXPECT_EQ(writtenMessages.GetValue("Messages\\CreateCursor", "absent"), "absent");
    EXPECT_EQ(std::tuple(written.GetValue("Settings\\Pixelsize", ""),
                         written.GetValue("Settings\\Startup", ""),
                         written.GetValue("Settings\\ExitOK", "")),
              std::tuple("7", "2", "True"));
}

}  // namespace
}  // namespace iw
