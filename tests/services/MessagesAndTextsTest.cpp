#include <gtest/gtest.h>

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

TEST(TextLookup, ReturnsTheDefaultWhateverTheSectionAndKey) {
    EXPECT_EQ(GetText("NoSuchKey", "NoSuchSection", "fallback"), "fallback");
    EXPECT_EQ(GetText(texts::LoadingIcon), "Loading icon");
    EXPECT_EQ(GetText(texts::ColorPalette256), "Creating color palette for 256 color icon ");
}

TEST(TextLookup, PlaceholdersAreReplacedEverywhereButNotRescanned) {
    EXPECT_EQ(ReplacePlaceholder(GetText(texts::SaveFilename), "%f", "C:\\a.ico"),
              "Save changes to C:\\a.ico?");
    EXPECT_EQ(ReplacePlaceholder(GetText(texts::OverwriteFile), "%f", "/x/y.cur"),
              "The file /x/y.cur already exists.  OK to overwrite?");
    EXPECT_EQ(ReplacePlaceholder("%d and %d", "%d", "7"), "7 and 7");
    EXPECT_EQ(ReplacePlaceholder("%f", "%f", "%f%f"), "%f%f");
    EXPECT_EQ(ReplacePlaceholder("none", "%f", "x"), "none");
}

TEST(MessageRoutine, ShowsWithTitleTypeAndIconIndex) {
    test::MessageFixture f;
    f.presenter.answer = MessageAnswer::No;
    EXPECT_EQ(
        f.service.Show(texts::SaveUntitled, MessageType::Exclamation, MessageButtons::YesNoCancel),
        MessageAnswer::No);
    ASSERT_EQ(f.presenter.shown.size(), 1u);
    const MessageBoxRequest& r = f.presenter.shown[0];
    EXPECT_EQ(r.key, "SaveUntitled");
    EXPECT_EQ(r.text, "Save changes to untitled?");
    EXPECT_EQ(r.title, "Quorvale Iconwright");
    EXPECT_EQ(r.buttons, MessageButtons::YesNoCancel);
    EXPECT_EQ(MessageIconIndex(MessageType::Exclamation), 1);
    EXPECT_EQ(MessageIconIndex(MessageType::Critical), 3);
    EXPECT_EQ(MessageIconIndex(MessageType::Information), 4);
    EXPECT_EQ(MessageIconIndex(MessageType::Question), 2);
    EXPECT_EQ(r.iconIndex, 1);
}

// The question comes only for a file that exists; only Yes allows replacing it.
TEST(OverwriteQuestion, AsksOnlyForAnExistingFileAndOnlyYesReplaces) {
    test::TempDir dir;
    test::MessageFixture f;
    f.presenter.answer = MessageAnswer::No;
    EXPECT_TRUE(ConfirmOverwrite(f.service, dir / "new.png"));
    EXPECT_TRUE(f.presenter.shown.empty());
    test::WriteFileBytes(dir / "old.png", {1});
    f.store.SetBool("Messages\\OverwriteConfirmation", true);  // asked all the same
    EXPECT_FALSE(ConfirmOverwrite(f.service, dir / "old.png"));
    f.presenter.answer = MessageAnswer::Yes;
    EXPECT_TRUE(ConfirmOverwrite(f.service, dir / "old.png"));
    ASSERT_EQ(f.presenter.shown.size(), 2u);
    const MessageBoxRequest& r = f.presenter.shown[0];
    EXPECT_EQ(r.key, "OverwriteConfirmation");
    EXPECT_EQ(r.text, "Overwrite existing file?");
    EXPECT_EQ(r.title, "Overwrite Confirmation");
    EXPECT_EQ(r.type, MessageType::Question);
    EXPECT_EQ(r.buttons, MessageButtons::YesNo);
}

TEST(MessageRoutine, SuppressedMessagesStayQuietUnlessForced) {
    test::MessageFixture f;
    f.presenter.suppressNext = true;
    f.service.Show(texts::CreateANI, MessageType::Information);
    EXPECT_EQ(f.store.GetValue("Messages\\CreateANI", ""), "True");
    f.presenter.suppressNext = false;

    f.service.Show(texts::CreateANI, MessageType::Information);
    EXPECT_EQ(f.presenter.shown.size(), 1u);
    // A suppressed question answers with its default button.
    EXPECT_EQ(f.service.ShowMessage("CreateANI", "?", "t", MessageType::Question, false,
                                    MessageButtons::YesNo),
              MessageAnswer::Yes);
    EXPECT_EQ(f.presenter.shown.size(), 1u);

    f.service.ShowMessage("CreateANI", "forced", "t", MessageType::Information, true);
    EXPECT_EQ(f.presenter.shown.size(), 2u);

    // "-1" is a stored True as well.
    f.store.SetValue("Messages\\SeqANI", "-1");
    f.service.Show(texts::SeqANI, MessageType::Information);
    EXPECT_EQ(f.presenter.shown.size(), 2u);

    // Clearing the messages shows every suppressed message again.
    f.service.ClearSuppressions();
    f.service.Show(texts::CreateANI, MessageType::Information);
    f.service.Show(texts::SeqANI, MessageType::Information);
    EXPECT_EQ(f.presenter.shown.size(), 4u);
}

// Hints and offers carry the "do not show again" box; questions whose silent answer would
// save, overwrite or delete never do, and a tick sent for them anyway is not stored.
TEST(MessageRoutine, OnlyHintsAndOffersCanBeSuppressed) {
    const std::vector<std::pair<TextId, bool>> cases = {
        {texts::CreateCursor, true},   {texts::CreateANI, true},
        {texts::Bad16Icons, true},     {texts::SeqANI, true},
        {texts::ANIInfo, true},        {texts::CreateFolderIcon, true},
        {texts::ICOFileType, true},    {texts::CURFileType, true},
        {texts::ANIFileType, true},    {texts::UpdateText, true},
        {texts::SaveFilename, false},  {texts::SaveUntitled, false},
        {texts::OverwriteFile, false}, {texts::CorruptFile, false},
        {texts::OpenEXE, false},       {texts::ChangeAttributes, false},
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

TEST(CompressionNotice, OnlyWithoutZlibAndWordedAsTheProgramHasIt) {
    test::MessageFixture f;
    EXPECT_FALSE(ReportMissingCompressionLibrary(f.service, true));
    EXPECT_TRUE(f.presenter.shown.empty());
    EXPECT_TRUE(ReportMissingCompressionLibrary(f.service, false));
    ASSERT_EQ(f.presenter.shown.size(), 1u);
    const MessageBoxRequest& r = f.presenter.shown[0];
    EXPECT_EQ(r.type, MessageType::Critical);
    EXPECT_EQ(r.title, "Quorvale Iconwright");
    EXPECT_EQ(r.buttons, MessageButtons::Ok);
    EXPECT_FALSE(r.suppressible);
    EXPECT_EQ(r.text,
              "A required file, zlib1.dll, is missing.  This file is needed in order to work with "
              "compressed icons efficiently.  Iconwright will continue, however, compressed icons "
              "created will not have as high a compression ratio.\n\nPlease reinstall Iconwright.");
}

class DataFolderTest : public ::testing::Test {
  protected:
    void SetUp() override {
        for (const char* name : {"XDG_DATA_HOME", "HOME"}) {
            const char* v = std::getenv(name);
            saved_.emplace_back(name, v ? std::optional<std::string>(v) : std::nullopt);
        }
    }
    void TearDown() override {
        for (auto& [name, value] : saved_) {
            if (value) {
                setenv(name.c_str(), value->c_str(), 1);
            } else {
                unsetenv(name.c_str());
            }
        }
    }
    std::vector<std::pair<std::string, std::optional<std::string>>> saved_;
};

TEST_F(DataFolderTest, FollowsXdgDataHomeThenHomeAndIsMadeOnDemand) {
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
}

}  // namespace
}  // namespace iw
