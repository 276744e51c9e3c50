// Placeholders, the message routine with its suppression rules, the overwrite question and
// the per-user data folder.
#include <gtest/gtest.h>
#include <string>

#include <cstdlib>
#include <utility>
#include <vector>

#include "services/core/CompressionNotice.h"
#include "services/core/DataFolder.h"
#include "services/core/OverwriteQuestion.h"
#include "services/core/TextCatalog.h"
#include "support/TestSupport.h"

namespace iw {
namespace {

TEST(TextLookup, PlaceholdersAreReplacedEverywhereButNotRescanned) {
    EXPECT_EQ(ReplacePlaceholder("%d and %d", "%d", "7"), "7 and 7");
    EXPECT_EQ(ReplacePlaceholder("%f", "%f", "%f%f"), "%f%f");
    EXPECT_EQ(ReplacePlaceholder("none", "%f", "x"), "none");
}

TEST(MessageRoutine, ShowsTheTextWithTheProgramsTitle) {
    test::MessageFixture f;
    f.presenter.answer = MessageAnswer::No;
    EXPECT_EQ(
        f.service.Show(texts::SaveUntitled, MessageType::Exclamation, MessageButtons::YesNoCancel),
        MessageAnswer::No);
    ASSERT_EQ(f.presenter.shown.size(), 1u);
    const MessageBoxRequest& r = f.presenter.shown[0];
    EXPECT_EQ(std::tuple(r.key, r.text, r.title, r.buttons, r.iconIndex),
              std::tuple("SaveUntitled", "Save changes to untitled?", "Quorvale Iconwright",
                         MessageButtons::YesNoCancel, MessageIconIndex(MessageType::Exclamation)));
}

TEST(MessageRoutine, SuppressedMessagesStayQuietUnlessForced) {
    test::MessageFixture f;
    f.presenter.suppressNext = true;
    f.service.Show(texts::CreateANI, MessageType::Information);
    EXPECT_EQ(f.store.GetValue("Messages\\CreateANI", ""), "True");
    f.presenter.suppressNext = false;
    f.service.Show(texts::CreateANI, MessageType::Information);
    // A suppressed question answers with its default button.
    EXPECT_EQ(f.service.ShowMessage("CreateANI", "?", "t", MessageType::Question, false,
                                    MessageButtons::YesNo),
              MessageAnswer::Yes);
    EXPECT_EQ(f.presenter.shown.size(), 1u);
    f.service.ShowMessage("CreateANI", "forced", "t", MessageType::Information, true);
    EXPECT_EQ(f.presenter.shown.size(), 2u);
    f.store.SetValue("Messages\\SeqANI", "-1");  // "-1" is a stored True as well
    f.service.Show(texts::SeqANI, MessageType::Information);
    EXPECT_EQ(f.presenter.shown.size(), 2u);
    // Clearing the messages shows every suppressed message again.
    f.service.ClearSuppressions();
    f.service.Show(texts::CreateANI, MessageType::Information);
    f.service.Show(texts::SeqANI, MessageType::Information);
    EXPECT_EQ(f.presenter.shown.size(), 4u);
}

// The question comes only for a file that exists, even when suppressed; only Yes replaces.
TEST(OverwriteQuestion, AsksOnlyForAnExistingFileAndOnlyYesReplaces) {
    test::TempDir dir;
    test::MessageFixture f;
    f.presenter.answer = MessageAnswer::No;
    EXPECT_TRUE(ConfirmOverwrite(f.service, dir / "new.png"));
    test::WriteFileBytes(dir / "old.png", {1});
    f.store.SetBool("Messages\\OverwriteConfirmation", true);
    EXPECT_FALSE(ConfirmOverwrite(f.service, dir / "old.png"));
    f.presenter.answer = MessageAnswer::Yes;
    EXPECT_TRUE(ConfirmOverwrite(f.service, dir / "old.png"));
    EXPECT_EQ(f.presenter.Keys(),
              (std::vector<std::string>{"OverwriteConfirmation", "OverwriteConfirmation"}));
    EXPECT_EQ(f.presenter.shown[0].buttons, MessageButtons::YesNo);
}

// Hints and offers carry the "do not show again" box; questions whose silent answer would
// save, overwrite or delete never do, and a tick sent for them anyway is not stored.
TEST(MessageRoutine, OnlyHintsAndOffersCanBeSuppressed) {
    const std::vector<std::pair<TextId, bool>> cases = {
        {texts::CreateANI, true},     {texts::Bad16Icons, true},
        {texts::ICOFileType, true},   {texts::SaveFilename, false},
        {texts::SaveUntitled, false}, {texts::OverwriteFile, false},
        {texts::OpenEXE, false},      {texts::ChangeAttributes, false},
    };
    for (const auto& [id, suppressible] : cases) {
        SCOPED_TRACE(std::string(id.key));
        test::MessageFixture f;
        f.presenter.suppressNext = true;
        f.service.Show(id, MessageType::Question, MessageButtons::YesNoCancel);
        ASSERT_EQ(f.presenter.shown.size(), 1u);
        EXPECT_EQ(f.presenter.shown[0].suppressible, suppressible);
        // Asked again: silent only when the box was allowed.
        f.service.Show(id, MessageType::Question, MessageButtons::YesNoCancel);
        EXPECT_EQ(f.presenter.shown.size(), suppressible ? 1u : 2u);
    }
}

TEST(CompressionNotice, ShownOnlyWithoutZlib) {
    test::MessageFixture f;
    EXPECT_FALSE(ReportMissingCompressionLibrary(f.service, true));
    EXPECT_TRUE(f.presenter.shown.empty());
    EXPECT_TRUE(ReportMissingCompressionLibrary(f.service, false));
    ASSERT_EQ(f.presenter.shown.size(), 1u);
    EXPECT_EQ(f.presenter.shown[0].type, MessageType::Critical);
    EXPECT_FALSE(f.presenter.shown[0].suppressible);
}

TEST(DataFolder, FollowsXdgDataHomeThenHomeAndIsMadeOnDemand) {
    const char* home = std::getenv("HOME");
    const std::string savedHome = home ? home : "";
    test::TempDir dir;
    setenv("XDG_DATA_HOME", dir.Path().c_str(), 1);
    EXPECT_EQ(UserDataFolder(), dir.Path() / "Quorvale" / "Iconwright");
    EXPECT_FALSE(std::filesystem::exists(UserDataFolder()));
    EXPECT_EQ(EnsureUserDataFolder(), dir.Path() / "Quorvale" / "Iconwright");
    EXPECT_TRUE(std::filesystem::is_directory(UserDataFolder()));
    setenv("XDG_DATA_HOME", "relative/path", 1);  // ignored, as the XDG rules say
    setenv("HOME", dir.Path().c_str(), 1);
    EXPECT_EQ(UserDataFolder(), dir.Path() / ".local" / "share" / "Quorvale" / "Iconwright");
    unsetenv("XDG_DATA_HOME");
    EXPECT_EQ(UserDataFolder(), dir.Path() / ".local" / "share" / "Quorvale" / "Iconwright");
    setenv("HOME", savedHome.c_str(), 1);
}

}  // namespace
}  // namespace iw
