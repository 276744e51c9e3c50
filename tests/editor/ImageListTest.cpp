// The image list's commands: adding, removing, moving and changing images, the questions
// they ask, the image being edited and the undo stacks afterwards, and depth changes that
// the real writer and reader take back unchanged.
#include <gtest/gtest.h>

#include "EditorFakes.h"
#include "editor/DepthConversion.h"
#include "editor/IconFormats.h"
#include "imaging/ColorMapping.h"

namespace iw {
namespace {

using test::PatternColor;

TEST(DepthConversion, APixelKeepsWhatItsNewDepthCanHold) {
    const PackedColor orange = PackColor(200, 100, 7);
    // (colour, alpha, new depth) -> what the pixel becomes.
    const std::tuple<PackedColor, int, int, DepthPixel> cases[] = {
        {orange, 300, 32, {orange, 255}},
        {TransparentColor, 200, 32, {TransparentColor, 0}},
        {InverseColor, 255, 4, {InverseColor, 0}},
        {orange, 127, 24, {TransparentColor, 0}},
        {orange, 128, 8, {orange, 255}},
        {orange, 255, 4, {PackColor(255, 255, 0), 255}},
        {PackColor(128, 128, 127), 255, 1, {PackColor(255, 255, 255), 255}},
    };
    for (const auto& [color, alpha, bits, expected] : cases)
        EXPECT_EQ(PixelForDepth(color, alpha, bits), expected) << color << "/" << bits;
}

TEST(FrameSequence, RenumberingFollowsMovedAndRemovedFrames) {
    EXPECT_EQ(RenumberSequence("2,0,1,", {1, 2, 0}), "0,1,2,");
    EXPECT_EQ(RenumberSequence("0,1,2,1,", {0, -1, 1}), "0,1,");
    EXPECT_EQ(RenumberSequence("x,5,-1,,0", {0}), "0,");
}

struct ImageList : ::testing::Test {
    // Three images 32, 16 and 16 x 16 at 32, 32 and 8 bits, image 1 drawn on and current.
    void OpenThree(const std::string& name = "three.ico") {
        IconSet set = test::PatternSet(32, 32);
        set.AddIcon(15, 15, 32);
        set.AddIcon(15, 15, 8);
        for (int i = 0; i < 3; ++i)
            set.Info(i).rate = static_cast<std::int16_t>(10 + i);
        set.properties.sequence = "2,1,0,1,";
        ASSERT_TRUE(f.Open(set, name));
        f.editor.SelectImage(1);
        f.editor.Tools().SelectTool(ToolId::Pencil);
        f.Stroke({{3, 3}});
        f.observer.events.clear();
        f.presenter.answer = MessageAnswer::Yes;
    }
    std::vector<int> Sides() const {
        std::vector<int> sides;
        for (int i = 0; i < f.editor.Set().Count(); ++i)
            sides.push_back(f.editor.Set().Info(i).Width());
        return sides;
    }
    std::vector<std::string> Keys() const { return f.presenter.Keys(); }

    test::EditorFixture f;
    ImageListCommands& images = f.editor.Images();
};

TEST_F(ImageList, AnAddedFormatIsBlankTakesItsPlaceAndBecomesCurrent) {
    OpenThree();
    ASSERT_TRUE(images.AddFormat({24, 24, 32, false}));
    EXPECT_EQ(Sides(), (std::vector<int>{32, 24, 16, 16}));
    EXPECT_EQ(f.editor.CurrentIcon(), 1);
    EXPECT_TRUE(IsBlank(f.editor.CurrentImage()));
    EXPECT_FALSE(f.editor.UndoEnabled());
    for (const char* event : {"set", "current", "inspector"})
        EXPECT_GT(f.observer.events[event], 0) << event;

    f.presenter.answer = MessageAnswer::No;
    for (const ImageAttributes& refused :
         {ImageAttributes{16, 16, 8}, {0, 16, 8}, {16, 16, 16}, {16, 257, 8}})
        EXPECT_FALSE(images.AddFormat(refused));
    EXPECT_EQ(Keys(), (std::vector<std::string>{"AddDuplicateIcon"}));
    f.presenter.answer = MessageAnswer::Yes;
    while (f.editor.Set().Count() < IconSet::kMaxImages)
        ASSERT_TRUE(images.AddFormat({16, 16, 8, false}));
    EXPECT_FALSE(images.AddFormat({48, 48, 32, false}));
    EXPECT_EQ(Keys().back(), "IconLimit");
}

TEST_F(ImageList, FramesAddedMovedAndRemovedKeepTheEditedImageItsUndoAndTheSequence) {
    OpenThree("three.ani");
    EXPECT_TRUE(images.MoveUp(1));
    EXPECT_EQ(Sides(), (std::vector<int>{16, 32, 16}));
    EXPECT_EQ(f.editor.CurrentIcon(), 0);
    EXPECT_EQ(f.editor.Set().properties.sequence, "2,0,1,0,");
    EXPECT_FALSE(images.MoveUp(0));
    EXPECT_FALSE(images.MoveDown(2));
    EXPECT_TRUE(images.MoveDown(1));  // another image moves: the current one stays put
    EXPECT_TRUE(images.Remove(1));
    EXPECT_EQ(f.editor.CurrentIcon(), 0);
    EXPECT_TRUE(f.editor.UndoEnabled());
    EXPECT_EQ(f.editor.Set().properties.sequence, "0,1,0,");

    ASSERT_TRUE(images.AddFormat({48, 48, 32, false}));  // a frame goes last
    EXPECT_EQ(Sides(), (std::vector<int>{16, 32, 48}));
    EXPECT_EQ(f.editor.CurrentIcon(), 2);
    EXPECT_EQ(f.editor.Set().Info(2).rate, 11);  // the first frame's
    EXPECT_TRUE(images.Remove(2));               // the edited image itself
    EXPECT_EQ(f.editor.CurrentIcon(), 1);
    EXPECT_FALSE(f.editor.UndoEnabled());
    EXPECT_TRUE(images.Remove(0));
    EXPECT_FALSE(images.CanRemove());
    EXPECT_FALSE(images.Remove(0));  // never the last image
    EXPECT_EQ(Sides(), (std::vector<int>{32}));
    EXPECT_TRUE(f.presenter.shown.empty());
}

TEST_F(ImageList, ChangingAttributesAsksFirstAndInAnAnimatedCursorChangesEveryFrame) {
    OpenThree();
    f.presenter.answer = MessageAnswer::No;
    EXPECT_FALSE(images.ChangeAttributes(0, {20, 40, 4, false}));
    EXPECT_FALSE(images.ChangeAttributes(0, *images.Attributes(0)));  // nothing to change
    f.presenter.answer = MessageAnswer::Yes;
    ASSERT_TRUE(images.ChangeAttributes(0, {20, 40, 4, false}));
    EXPECT_TRUE(f.editor.UndoEnabled());  // not the edited image
    const IconImage& changed = f.editor.Set().Image(0);
    EXPECT_EQ(changed.Color(19, 31), ConvertTo16Color(PatternColor(19, 31)));
    EXPECT_EQ(changed.Color(19, 32), TransparentColor);  // padded below
    EXPECT_EQ(changed.Color(20, 5), 0);                  // cropped at the right: cleared
    EXPECT_EQ(images.SideEntry(" 256 "), 256);
    EXPECT_EQ(images.SideEntry("0"), std::nullopt);  // "Please enter an integer between..."
    EXPECT_EQ(Keys(),
              (std::vector<std::string>{"ChangeAttributes", "ChangeAttributes", "Integer256"}));

    OpenThree("three.ani");
    f.presenter.shown.clear();
    ASSERT_TRUE(images.ChangeAttributes(2, {16, 16, 24, true}));
    EXPECT_EQ(Keys(), (std::vector<std::string>{"AttributesANI", "ChangeAttributes"}));
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(AttributesOf(f.editor.Set().Info(i)), (ImageAttributes{16, 16, 24, true}));
    EXPECT_FALSE(f.editor.UndoEnabled());
}

// Every depth change through the real writer and reader: what the image holds after the
// change is what the saved file gives back.
TEST(ImageListOnFiles, AChangedDepthIsWhatTheWriterWritesAndTheReaderReadsBack) {
    const ImageAttributes targets[] = {
        {12, 12, 1, false},  {12, 12, 4, false}, {12, 12, 8, false},
        {14, 14, 24, false}, {12, 12, 32, true},
    };
    for (const ImageAttributes& target : targets) {
        test::BasicEditorFixture<FileDocumentStore> f;
        IconSet set = test::PatternSet(12, 32);
        for (int x = 0; x < 12; ++x)
            set.Image(0).Alpha(x, 0) = 100;  // the top row under half covered
        set.Image(0).Color(5, 5) = TransparentColor;
        const std::string path = f.WriteIcon("depth.ico", set);
        ASSERT_TRUE(f.editor.Document().OpenDocument(path));
        f.presenter.answer = MessageAnswer::Yes;
        ASSERT_TRUE(f.editor.Images().ChangeAttributes(0, target)) << target.bits;
        IconImage expected = f.editor.CurrentImage().Clone();
        ASSERT_TRUE(f.editor.Document().Save());
        ASSERT_TRUE(f.editor.Document().OpenDocument(path));
        const IconImage& back = f.editor.CurrentImage();
        ASSERT_EQ(AttributesOf(back.info), target);
        for (int x = 0; x < target.width; ++x) {
            for (int y = 0; y < target.height; ++y) {
                // A fully transparent pixel's colour is not kept by every format.
                ASSERT_EQ(ShownAlpha(back, x, y), ShownAlpha(expected, x, y));
                if (ShownAlpha(back, x, y) == 0) continue;
                ASSERT_EQ(back.Color(x, y), expected.Color(x, y))
                    << target.bits << ": " << x << "," << y;
            }
        }
        EXPECT_EQ(back.Color(4, 0), target.bits == 32 ? PatternColor(4, 0) : TransparentColor);
    }
}

}  // namespace
}  // namespace iw
