// mimeapps.list editing and lookup, and the freedesktop associations in a scratch home.
#include <gtest/gtest.h>

#include "DesktopTestSupport.h"
#include "services/desktop/AppIdentity.h"
#include "services/desktop/FreedesktopAssociations.h"
#include "services/desktop/IniText.h"
#include "services/desktop/MimeApps.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

namespace fs = std::filesystem;
using test::ReadText;
using test::RecordingRunner;
using test::WriteText;
constexpr std::string_view kIco = "image/vnd.microsoft.icon";

TEST(MimeAppsEdit, OursComesFirstOnOneLineAndEverythingElseStays) {
    const std::string text =
        "# my defaults\n"
        "[Default Applications]\n"
        "text/plain=vim.desktop;\n"
        "image/vnd.microsoft.icon = eog.desktop;gimp.desktop\n"
        "\n"
        "[Added Associations]\n"
        "image/png=eog.desktop;\n"
        "[Default Applications]\n"
        "image/vnd.microsoft.icon=com.quorvale.Iconwright.desktop;krita.desktop;\n"
        "[Removed Associations]\n"
        "image/vnd.microsoft.icon=com.quorvale.Iconwright.desktop;\n"
        "image/x-win-bitmap=com.quorvale.Iconwright.desktop;foo.desktop;\n";
    const std::string once = SetDefaultApplication(text, kIco, "com.quorvale.Iconwright.desktop");
    EXPECT_EQ(once,
              "# my defaults\n"
              "[Default Applications]\n"
              "text/plain=vim.desktop;\n"
              "image/vnd.microsoft.icon=com.quorvale.Iconwright.desktop;eog.desktop;gimp.desktop;"
              "krita.desktop;\n"
              "\n"
              "[Added Associations]\n"
              "image/png=eog.desktop;\n"
              "[Default Applications]\n"
              "[Removed Associations]\n"
              "image/x-win-bitmap=com.quorvale.Iconwright.desktop;foo.desktop;\n");
    EXPECT_EQ(SetDefaultApplication(once, kIco, "com.quorvale.Iconwright.desktop"), once);
}

TEST(MimeAppsEdit, NewFilesGroupsAndDesktopListsWithoutTheType) {
    EXPECT_EQ(SetDefaultApplication("", kIco, "a.desktop"),
              "[Default Applications]\nimage/vnd.microsoft.icon=a.desktop;\n");
    EXPECT_EQ(
        SetDefaultApplication("[Added Associations]\r\nx/y=b.desktop\r\n\r\n", kIco, "a.desktop"),
        "[Added Associations]\nx/y=b.desktop\n\n[Default Applications]\n"
        "image/vnd.microsoft.icon=a.desktop;\n");
    // A desktop's own list is changed only where it names a default of the type already.
    const std::string kde = "[Default Applications]\r\ntext/plain=kate.desktop\r\n";
    EXPECT_EQ(SetDefaultApplication(kde, kIco, "a.desktop", true), kde);
    // Line ends alone are no reason to rewrite.
    const std::string done = "[Default Applications]\r\nimage/vnd.microsoft.icon=a.desktop;";
    EXPECT_EQ(SetDefaultApplication(done, kIco, "a.desktop"), done);
}

TEST(MimeAppsEdit, AnyTextGetsOneLineWithOursFirstAndKeepsItsOtherTypes) {
    const std::vector<std::string> fragments = {"[Default Applications]\n",
                                                "[Removed Associations]\r\n",
                                                "[Added Associations]\n",
                                                "image/vnd.microsoft.icon=",
                                                "image/vnd.microsoft.icon = b.desktop;a.desktop\n",
                                                "a.desktop;",
                                                "text/plain=c.desktop\n",
                                                ";;"};
    for (const std::string& text : test::RandomIniTexts(11, fragments)) {
        const std::string set = SetDefaultApplication(text, kIco, "a.desktop");
        EXPECT_EQ(SetDefaultApplication(set, kIco, "a.desktop"), set);
        const IniText list(set, IniText::Names::CaseSensitive);
        int lines = 0;
        for (std::size_t group : list.FindGroups("Default Applications")) {
            if (const auto value = list.Value(group, kIco)) {
                ++lines;
                EXPECT_EQ(DesktopIdList(*value).front(), "a.desktop");
            }
        }
        EXPECT_EQ(lines, 1) << testing::PrintToString(text);
        const IniText before(text, IniText::Names::CaseSensitive);
        EXPECT_EQ(list.Value(list.FindGroup("Default Applications"), "text/plain"),
                  before.Value(before.FindGroup("Default Applications"), "text/plain"));
    }
}

// A scratch home and system with every level of lists.
struct Desktop {
    test::TempDir root;
    XdgDirs dirs;
    Desktop() {
        dirs.configHome = root / "config";
        dirs.configDirs = {root / "etc1", root / "etc2"};
        dirs.dataHome = root / "data";
        dirs.dataDirs = {root / "usr1", root / "usr2"};
        dirs.desktops = {"kde", "plasma"};
    }
    void Install(const fs::path& share, const std::string& id, const std::string& extra = "") {
        WriteText(share / "applications" / id, "[Desktop Entry]\nType=Application\n" + extra);
    }
    void Default(const fs::path& list, const std::string& ids) {
        WriteText(list, "[Default Applications]\nimage/vnd.microsoft.icon=" + ids + "\n");
    }
};

// Lists are read level by level (config home, config dirs, data home, data dirs), the
// desktops' own lists before the plain one at each level.
TEST(MimeAppsLookup, TheFirstInstalledApplicationOfTheFirstListThatNamesOneWins) {
    Desktop d;
    for (const char* id : {"a.desktop", "c.desktop", "d.desktop"})
        d.Install(d.dirs.dataDirs[1], id);
    d.Install(d.dirs.dataDirs[1], "b.desktop", "TryExec=sh\n");  // found on the PATH
    d.Install(d.dirs.dataHome, "hidden.desktop", "Hidden=true\n");
    d.Install(d.dirs.dataDirs[0], "gone.desktop", "TryExec=/no/such/program\n");
    d.Install(d.dirs.dataDirs[0], "unknown.desktop", "TryExec=iw-no-such-program\n");
    WriteText(d.dirs.dataDirs[0] / "applications/vendor/e.desktop", "[Desktop Entry]\n");
    d.Default(d.dirs.dataDirs[0] / "applications/mimeapps.list", "d.desktop");
    EXPECT_EQ(DefaultApplication(d.dirs, kIco), "d.desktop");
    d.Default(d.dirs.configDirs[1] / "mimeapps.list", "c.desktop");
    EXPECT_EQ(DefaultApplication(d.dirs, kIco), "c.desktop");
    d.Default(d.dirs.configHome / "mimeapps.list", "missing.desktop;hidden.desktop;b.desktop");
    EXPECT_EQ(DefaultApplication(d.dirs, kIco), "b.desktop");
    d.Default(d.dirs.configHome / "plasma-mimeapps.list",
              "gone.desktop;unknown.desktop;vendor-e.desktop");
    EXPECT_EQ(DefaultApplication(d.dirs, kIco), "vendor-e.desktop");
    d.Default(d.dirs.configHome / "kde-mimeapps.list", "a.desktop");
    EXPECT_EQ(DefaultApplication(d.dirs, kIco), "a.desktop");
    d.dirs.desktops.clear();
    EXPECT_EQ(DefaultApplication(d.dirs, kIco), "b.desktop");
}

TEST(DesktopEntry, ExecArgumentsAreQuotedAndEscaped) {
    const std::pair<std::string, std::string> cases[] = {
        {"/opt/iw/iconwright", "/opt/iw/iconwright"},
        {"/home/a b/iconwright", "\"/home/a b/iconwright\""},
        {"/x/100%/iw", "/x/100%%/iw"},
        {"/x/$HOME/\"q\"", "\"/x/\\\\$HOME/\\\\\"q\\\\\"\""},
        {"/x\\y", "\"/x\\\\\\\\y\""},
    };
    for (const auto& [argument, written] : cases)
        EXPECT_EQ(ExecArgument(argument), written) << argument;
    EXPECT_EQ(UnescapeDesktopString(EscapeDesktopString("a\\b\nc\td")), "a\\b\nc\td");
}

TEST(FreedesktopAssociations, AProgramOutsideAnInstallationGetsItsOwnEntry) {
    Desktop d;
    d.dirs.desktops = {"kde"};
    const fs::path program = d.root / "build dir/iconwright";
    WriteText(program, "#!/bin/sh\n");
    fs::permissions(program, fs::perms::owner_all);
    d.Default(d.dirs.configHome / "kde-mimeapps.list", "other.desktop;");
    d.Install(d.dirs.dataDirs[0], "other.desktop");
    RecordingRunner runner;
    FreedesktopAssociations associations(d.dirs, program, runner.Runner());
    const FileType& icon = *FindFileType("ico");
    EXPECT_FALSE(associations.IsDefault(icon));
    ASSERT_TRUE(associations.Register(icon));
    EXPECT_TRUE(associations.IsDefault(icon));
    const fs::path entry = d.dirs.dataHome / "applications" / DesktopId();
    const std::string text = ReadText(entry);
    EXPECT_NE(text.find("\nExec=\"" + program.string() + "\" %F\n"), std::string::npos);
    EXPECT_EQ(ReadText(d.dirs.configHome / "kde-mimeapps.list"),
              "[Default Applications]\nimage/vnd.microsoft.icon=com.quorvale.Iconwright.desktop;"
              "other.desktop;\n");
    ASSERT_EQ(runner.calls.size(), 1u);
    EXPECT_EQ(runner.calls[0][0], "update-desktop-database");

    // A second run finds everything in place and writes nothing.
    const auto listTime = fs::last_write_time(d.dirs.configHome / "mimeapps.list");
    const auto entryTime = fs::last_write_time(entry);
    ASSERT_TRUE(associations.Register(icon));
    EXPECT_EQ(fs::last_write_time(d.dirs.configHome / "mimeapps.list"), listTime);
    EXPECT_EQ(fs::last_write_time(entry), entryTime);
    EXPECT_EQ(runner.calls.size(), 1u);

    // Without the program the entry is not taken as installed.
    fs::remove(program);
    EXPECT_FALSE(associations.IsDefault(icon));
}

TEST(FreedesktopAssociations, AnInstalledProgramUsesTheInstalledEntry) {
    Desktop d;
    const fs::path prefix = d.dirs.dataDirs[0].parent_path() / "prefix";
    d.dirs.dataDirs.insert(d.dirs.dataDirs.begin(), prefix / "share");
    d.Install(prefix / "share", DesktopId());
    const fs::path userEntry = d.dirs.dataHome / "applications" / DesktopId();
    RecordingRunner runner;
    FreedesktopAssociations associations(d.dirs, prefix / "bin/iconwright", runner.Runner());
    // A user entry the program wrote for a build tree would hide the installed one: it goes.
    WriteText(userEntry, "[Desktop Entry]\nExec=/old/iconwright %F\nX-Iconwright-Generated=true\n");
    ASSERT_TRUE(associations.Register(*FindFileType("cur")));
    EXPECT_FALSE(fs::exists(userEntry));
    EXPECT_TRUE(associations.IsDefault(*FindFileType("cur")));
    // The user's own entry of that id stays.
    WriteText(userEntry, "[Desktop Entry]\nExec=iconwright --mine %F\n");
    ASSERT_TRUE(associations.Register(*FindFileType("cur")));
    EXPECT_EQ(ReadText(userEntry), "[Desktop Entry]\nExec=iconwright --mine %F\n");
}

}  // namespace
}  // namespace iw
