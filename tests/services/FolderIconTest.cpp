// Folder icons: the "desktop.ini" and ".directory" edits, and setting, reading and removing
// an icon in a scratch folder.
#include <gtest/gtest.h>

#include "DesktopTestSupport.h"
#include "services/desktop/FolderIcons.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

namespace fs = std::filesystem;
using test::ReadText;
using test::RecordingRunner;
using test::WriteText;

TEST(DesktopIni, OtherSectionsAndKeysStayAndEachKeyHasOneLine) {
    const std::string text =
        "[ViewState]\r\nMode=\r\n[.ShellClassInfo]\r\nInfoTip=Mine\r\niconfile=old.ico\r\n"
        "IconFile=older.ico\r\n[Other]\nIconIndex=9\n";
    const std::string once = SetDesktopIniIcon(text, "C:\\Icons\\a.ico", 3);
    EXPECT_EQ(once,
              "[ViewState]\r\nMode=\r\n[.ShellClassInfo]\r\nIconIndex=3\r\nInfoTip=Mine\r\n"
              "IconFile=C:\\Icons\\a.ico\r\n[Other]\r\nIconIndex=9\r\n");
    EXPECT_EQ(SetDesktopIniIcon(once, "C:\\Icons\\a.ico", 3), once);
    const auto icon = ReadDesktopIniIcon(once);
    ASSERT_TRUE(icon);
    EXPECT_EQ(icon->iconFile, "C:\\Icons\\a.ico");
    EXPECT_EQ(icon->iconIndex, "3");
    EXPECT_EQ(RemoveDesktopIniIcon(once),
              "[ViewState]\r\nMode=\r\n[.ShellClassInfo]\r\nInfoTip=Mine\r\n[Other]\r\n"
              "IconIndex=9\r\n");
}

TEST(DesktopIni, AFileWithoutTheSectionGetsItAtTheEndAndLosesItAgain) {
    EXPECT_EQ(SetDesktopIniIcon("", "folder.ico", 0),
              "[.ShellClassInfo]\r\nIconFile=folder.ico\r\nIconIndex=0\r\n");
    const std::string other = "[Other]\r\nKey=1\r\n";
    const std::string set = SetDesktopIniIcon(other, "folder.ico", 0);
    EXPECT_EQ(set, other + "[.ShellClassInfo]\r\nIconFile=folder.ico\r\nIconIndex=0\r\n");
    EXPECT_EQ(RemoveDesktopIniIcon(set), other);
    EXPECT_TRUE(NothingLeft(RemoveDesktopIniIcon(SetDesktopIniIcon("\r\n", "a.ico", 0))));
    EXPECT_FALSE(ReadDesktopIniIcon("[Other]\r\nIconFile=x.ico\r\n"));
}

TEST(DesktopIni, AnyTextEndsUpWithOurIconOnceAndGivesItBack) {
    const std::vector<std::string> fragments = {"[.ShellClassInfo]\r\n",
                                                "[.shellclassinfo]",
                                                "IconFile=old.ico\r\n",
                                                " iconindex = 4\n",
                                                "IconResource=x,1\r\n",
                                                "[Other]\n",
                                                "IconFile",
                                                "IconIndex="};
    for (const std::string& text : test::RandomIniTexts(7, fragments)) {
        const std::string set = SetDesktopIniIcon(text, "C:\\a b\\c.ico", 5);
        const auto icon = ReadDesktopIniIcon(set);
        ASSERT_TRUE(icon) << testing::PrintToString(text);
        EXPECT_EQ(icon->iconFile, "C:\\a b\\c.ico");
        EXPECT_EQ(icon->iconIndex, "5");
        EXPECT_EQ(SetDesktopIniIcon(set, "C:\\a b\\c.ico", 5), set);
        EXPECT_FALSE(ReadDesktopIniIcon(RemoveDesktopIniIcon(set))) << testing::PrintToString(text);
    }
}

TEST(DirectoryFile, IconIsSetInTheDesktopEntryAndTakenOutAlone) {
    const std::string dolphin = "[Dolphin]\nViewMode=1\n";
    const std::string set = SetDirectoryIcon(dolphin, "/icons/a.ico");
    EXPECT_EQ(set, dolphin + "\n[Desktop Entry]\nIcon=/icons/a.ico\n");
    EXPECT_EQ(SetDirectoryIcon(set, "/icons/a.ico"), set);
    EXPECT_EQ(ReadDirectoryIcon(set), "/icons/a.ico");
    EXPECT_EQ(RemoveDirectoryIcon(set), dolphin);
    EXPECT_EQ(RemoveDirectoryIcon("[Desktop Entry]\nIcon=a\nIcon[de]=b\n"),
              "[Desktop Entry]\nIcon[de]=b\n");
}

TEST(FileUri, EscapesEveryByteButTheUnreservedAndSlashes) {
    EXPECT_EQ(FileUri("/home/a b/x%y/Ä.ico"), "file:///home/a%20b/x%25y/%C3%84.ico");
}

struct FolderFixture {
    test::TempDir root;
    fs::path folder = root / "my folder";
    fs::path icon = test::TestDataPath("interop/magick-32bpp-16-256.ico");
    test::MessageFixture messages;
    RecordingRunner runner;
    FolderFixture() { fs::create_directories(folder); }
};

TEST(FolderIcons, OnLinuxTheIconGoesToDesktopIniDirectoryAndGio) {
    FolderFixture f;
    FolderIcons icons(platform::DesktopShell::Freedesktop, f.runner.Runner());
    EXPECT_EQ(icons.CurrentIconText(f.folder), "[no icon]");
    WriteText(f.folder / ".directory", "[Dolphin]\nViewMode=1\n");
    const FolderIconRequest request{f.folder, f.icon, 0, false};
    ASSERT_EQ(icons.SetIcon(request, f.messages.service).status, FolderIconStatus::Done);
    EXPECT_EQ(ReadText(f.folder / "desktop.ini"),
              "[.ShellClassInfo]\r\nIconFile=" + f.icon.string() + "\r\nIconIndex=0\r\n");
    EXPECT_EQ(ReadText(f.folder / ".directory"),
              "[Dolphin]\nViewMode=1\n\n[Desktop Entry]\nIcon=" + f.icon.string() + "\n");
    ASSERT_EQ(f.runner.calls.size(), 1u);
    EXPECT_EQ(f.runner.calls[0],
              (std::vector<std::string>{"gio", "set", f.folder.string(), "metadata::custom-icon",
                                        FileUri(f.icon)}));
    EXPECT_EQ(icons.CurrentIconText(f.folder), f.icon.string());

    ASSERT_TRUE(icons.RemoveIcon(f.folder));
    EXPECT_FALSE(fs::exists(f.folder / "desktop.ini"));
    EXPECT_EQ(ReadText(f.folder / ".directory"), "[Dolphin]\nViewMode=1\n");
    EXPECT_EQ(f.runner.calls.back(),
              (std::vector<std::string>{"gio", "set", "-t", "unset", f.folder.string(),
                                        "metadata::custom-icon"}));
    EXPECT_EQ(icons.CurrentIconText(f.folder), "[no icon]");
}

TEST(FolderIcons, TheCopyOptionCopiesTheIconAndRemovalDeletesTheCopy) {
    FolderFixture f;
    FolderIcons icons(platform::DesktopShell::Freedesktop, f.runner.Runner());
    WriteText(f.folder / "desktop.ini", "[Other]\r\nKey=1\r\n");
    const FolderIconRequest request{f.folder, f.icon, 0, true};
    for (int run = 0; run < 2; ++run)
        ASSERT_EQ(icons.SetIcon(request, f.messages.service).status, FolderIconStatus::Done);
    EXPECT_EQ(test::ReadFileBytes(f.folder / "folder.ico"), test::ReadFileBytes(f.icon));
    EXPECT_EQ(ReadText(f.folder / "desktop.ini"),
              "[Other]\r\nKey=1\r\n[.ShellClassInfo]\r\nIconFile=folder.ico\r\nIconIndex=0\r\n");
    EXPECT_EQ(ReadText(f.folder / ".directory"),
              "[Desktop Entry]\nIcon=" + (f.folder / "folder.ico").string() + "\n");
    // The folder's own copy can be set again.
    ASSERT_EQ(
        icons.SetIcon({f.folder, f.folder / "folder.ico", 0, true}, f.messages.service).status,
        FolderIconStatus::Done);

    ASSERT_TRUE(icons.RemoveIcon(f.folder));
    EXPECT_EQ(ReadText(f.folder / "desktop.ini"), "[Other]\r\nKey=1\r\n");
    EXPECT_FALSE(fs::exists(f.folder / "folder.ico"));
    EXPECT_FALSE(fs::exists(f.folder / ".directory"));
}

TEST(FolderIcons, AMissingFolderOrAnUnreadableIconIsRefusedWithItsMessage) {
    FolderFixture f;
    FolderIcons icons(platform::DesktopShell::Freedesktop, f.runner.Runner());
    WriteText(f.root / "notes.ico", "not an icon at all");
    struct Case {
        fs::path folder, icon;
        FolderIconStatus status;
        const char* key;
    };
    const Case cases[] = {
        {f.root / "nowhere", f.icon, FolderIconStatus::NoFolder, "SelectFolder"},
        {"", f.icon, FolderIconStatus::NoFolder, "SelectFolder"},
        {f.folder, f.root / "notes.ico", FolderIconStatus::InvalidIcon, "SelectIcon"},
        {f.folder, f.root / "missing.ico", FolderIconStatus::InvalidIcon, "SelectIcon"},
        {f.folder, f.folder, FolderIconStatus::InvalidIcon, "SelectIcon"},
    };
    for (const Case& c : cases) {
        f.messages.presenter.shown.clear();
        EXPECT_EQ(icons.SetIcon({c.folder, c.icon, 0, true}, f.messages.service).status, c.status);
        ASSERT_EQ(f.messages.presenter.shown.size(), 1u);
        EXPECT_EQ(f.messages.presenter.shown[0].key, c.key);
    }
    EXPECT_TRUE(fs::is_empty(f.folder));
    EXPECT_TRUE(f.runner.calls.empty());
}

TEST(FolderIcons, OnWindowsOnlyDesktopIniIsWritten) {
    FolderFixture f;
    FolderIcons icons(platform::DesktopShell::Windows, f.runner.Runner());
    ASSERT_EQ(icons.SetIcon({f.folder, f.icon, 2, false}, f.messages.service).status,
              FolderIconStatus::Done);
    EXPECT_EQ(ReadText(f.folder / "desktop.ini"),
              "[.ShellClassInfo]\r\nIconFile=" + f.icon.string() + "\r\nIconIndex=2\r\n");
    EXPECT_FALSE(fs::exists(f.folder / ".directory"));
    EXPECT_TRUE(f.runner.calls.empty());
}

}  // namespace
}  // namespace iw
