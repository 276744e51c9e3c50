// Cut, copy, paste, delete, select all and placed text: what goes onto the clipboard, what
// comes off it at each depth, the large-paste question, and undo round each.
#include <gtest/gtest.h>

#include "EditorFakes.h"

namespace iw {
namespace {

using test::PatternColor;

class FakeClipboard : public IClipboard {
  public:
    void PutPicture(const RgbaPicture& picture) override { held = picture; }
    std::optional<RgbaPicture> TakePicture() override { return held; }
    bool HasPicture() const override { return held.has_value(); }
    std::optional<RgbaPicture> held;
};

// A picture whose pixel (x, y) is (x, y, 7, alpha).
RgbaPicture Picture(int width, int height, std::uint8_t alpha = 255) {
    RgbaPicture picture{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            picture.rgba.insert(picture.rgba.end(), {std::uint8_t(x), std::uint8_t(y), 7, alpha});
    }
    return picture;
}

struct Clipboard : ::testing::Test {
    void Open(int side, int bits) { ASSERT_TRUE(f.Open(test::PatternSet(side, bits))); }
    PackedColor At(int x, int y) const { return f.editor.CurrentImage().Color(x, y); }
    const IFloatingSelection* Floating() const { return f.editor.Canvas().FloatingSelection(); }
    bool Enter() { return f.editor.Canvas().KeyPress({CanvasKey::Enter, {}}); }

    test::EditorFixture f;
    EditCommands& edit = f.editor.Edit();
    FakeClipboard clipboard;
};

TEST_F(Clipboard, CutCopyAndDeleteTakeTheSelectionOrTheWholeImage) {
    Open(4, 32);
    f.editor.Tools().SelectTool(ToolId::Select);
    f.Stroke({{1, 1}, {2, 1}});
    ASSERT_TRUE(edit.Cut(clipboard));  // the selection goes, its hole stays
    EXPECT_EQ(clipboard.held->rgba, (std::vector<std::uint8_t>{1, 1, 50, 255, 2, 1, 50, 255}));
    EXPECT_EQ(Floating(), nullptr);
    ASSERT_TRUE(edit.Copy(clipboard));  // nothing floats: the whole image
    EXPECT_EQ(clipboard.held->Pixel(3, 2)[0], 3);
    EXPECT_EQ(clipboard.held->Pixel(1, 1)[3], 0);  // the hole as transparent
    ASSERT_TRUE(f.editor.Undo());

    ASSERT_TRUE(edit.SelectAll());
    EXPECT_EQ(Floating()->Rect(), (CellRect{0, 0, 4, 4}));
    EXPECT_TRUE(edit.Delete());
    EXPECT_EQ(Floating(), nullptr);
    EXPECT_EQ(At(2, 1), TransparentColor);
    EXPECT_TRUE(f.editor.Undo());
    EXPECT_EQ(At(2, 1), PatternColor(2, 1));
    EXPECT_TRUE(edit.Delete());  // nothing floats: the whole image is cleared
    EXPECT_EQ(At(3, 3), TransparentColor);
    EXPECT_EQ(f.editor.History().UndoCount(), 0);
}

TEST(ClipboardPaste, APastedPictureTakesTheImagesDepthAndUndoTakesItBack) {
    struct Case {
        int bits;
        std::uint8_t alpha;
        PackedColor color;  // at the picture's pixel (3, 2) after a transparent drop
    };
    const Case cases[] = {
        {32, 90, PackColor(4, 3, 35)},  // laid over the image's opaque pixel
        {24, 127, PatternColor(5, 4)},  // under half covered: the image shows
        {24, 128, PackColor(3, 2, 7)},
        {1, 200, PackColor(0, 0, 0)},
    };
    for (const Case& c : cases) {
        test::EditorFixture f;
        ASSERT_TRUE(f.Open(test::PatternSet(16, c.bits)));
        f.editor.Tools().SetSelectionMode(SelectionMode::Transparent);
        FakeClipboard board;
        board.held = Picture(6, 5, c.alpha);
        ASSERT_TRUE(f.editor.Edit().Paste(board, {2, 2}));
        ASSERT_TRUE(f.editor.Canvas().KeyPress({CanvasKey::Enter, {}}));
        EXPECT_EQ(f.editor.CurrentImage().Color(5, 4), c.color) << c.bits;
        ASSERT_TRUE(f.editor.Undo());
        EXPECT_EQ(f.editor.CurrentImage().Color(5, 4), PatternColor(5, 4)) << c.bits;
    }
}

TEST_F(Clipboard, ALargePictureAsksFirstIsCutTo256AndABrokenOneIsRefused) {
    Open(8, 32);
    clipboard.held = Picture(301, 2);
    f.presenter.answer = MessageAnswer::No;
    EXPECT_FALSE(edit.Paste(clipboard));
    EXPECT_EQ(f.presenter.Keys(), std::vector<std::string>{"PastePicture"});
    EXPECT_EQ(f.editor.History().UndoCount(), -1);
    f.presenter.answer = MessageAnswer::Yes;
    EXPECT_TRUE(edit.Paste(clipboard, {-5, 99}));
    EXPECT_EQ(Floating()->Rect(), (CellRect{0, 7, 256, 2}));  // kept on the image

    for (RgbaPicture broken : {RgbaPicture{2, 2, std::vector<std::uint8_t>(15)},
                               RgbaPicture{0, 5, {}}, RgbaPicture{1 << 30, 1 << 30, {}}}) {
        clipboard.held = broken;
        EXPECT_FALSE(edit.Paste(clipboard));
        EXPECT_FALSE(edit.PlaceText(broken));
    }
}

TEST_F(Clipboard, TextFloatsCentredOrFromTheTopLeftAndSwitchesToSelect) {
    Open(16, 4);
    f.editor.Tools().SelectTool(ToolId::Text);
    ASSERT_TRUE(edit.PlaceText(Picture(5, 4)));
    EXPECT_EQ(Floating()->Rect(), (CellRect{5, 6, 5, 4}));
    f.editor.Tools().SelectTool(ToolId::Text);  // the next text drops the first
    EXPECT_EQ(At(9, 9), PackColor(0, 0, 0));    // (4, 3, 7) at four bits
    ASSERT_TRUE(edit.PlaceText(Picture(40, 3)));
    EXPECT_EQ(Floating()->Rect(), (CellRect{0, 6, 40, 3}));
}

TEST_F(Clipboard, AnImportedPictureFloatsCentredScaledDownToFitAfterTheLargeQuestion) {
    Open(32, 24);
    const RgbaBuffer wide(640, 320);
    test::RecordingProgress progress;
    f.presenter.answer = MessageAnswer::No;
    EXPECT_FALSE(edit.ImportPicture(wide, progress));
    EXPECT_EQ(f.presenter.Keys(), std::vector<std::string>{"ImportPicture"});
    EXPECT_EQ(Floating(), nullptr);

    f.presenter.answer = MessageAnswer::Yes;
    ASSERT_TRUE(edit.ImportPicture(wide, progress));
    EXPECT_EQ(progress.statuses, (std::vector<std::string>{"Importing Image...", ""}));
    EXPECT_EQ(Floating()->Rect(), (CellRect{0, 8, 32, 16}));  // 640 x 320 into 32 x 32
    ASSERT_TRUE(Enter());

    // A small picture keeps its size; no question below 500 x 500.
    ASSERT_TRUE(edit.ImportPicture(RgbaBuffer(5, 3), progress));
    EXPECT_EQ(f.presenter.shown.size(), 2u);
    EXPECT_EQ(Floating()->Rect(), (CellRect{13, 14, 5, 3}));
    EXPECT_FALSE(edit.ImportPicture(RgbaBuffer(), progress));
}

}  // namespace
}  // namespace iw
