// Cut, copy, paste, delete, select all and placed text: what goes onto the clipboard, what
// comes off it at each depth, the large-paste question, and undo round each.
#include <gtest/gtest.h>

#include "EditorFakes.h"
#include "editor/DepthConversion.h"

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
        for (int x = 0; x < width; ++x) {
            picture.rgba.insert(picture.rgba.end(), {static_cast<std::uint8_t>(x),
                                                     static_cast<std::uint8_t>(y), 7, alpha});
        }
    }
    return picture;
}

struct Clipboard : ::testing::Test {
    void Open(int side, int bits) { ASSERT_TRUE(f.Open(test::PatternSet(side, bits))); }
    const IconImage& Image() const { return f.editor.CurrentImage(); }
    const IFloatingSelection* Floating() const { return f.editor.Canvas().FloatingSelection(); }

    test::EditorFixture f;
    EditCommands& edit = f.editor.Edit();
    FakeClipboard clipboard;
};

TEST_F(Clipboard, CopyAndCutTakeTheSelectionOrTheWholeImage) {
    Open(4, 32);
    f.editor.Tools().SelectTool(ToolId::Select);
    f.Stroke({{1, 1}, {2, 1}});
    ASSERT_TRUE(edit.Copy(clipboard));
    ASSERT_EQ(clipboard.held->width, 2);
    ASSERT_EQ(clipboard.held->height, 1);
    EXPECT_EQ(clipboard.held->rgba, (std::vector<std::uint8_t>{1, 1, 50, 255, 2, 1, 50, 255}));
    ASSERT_TRUE(edit.Cut(clipboard));  // the selection goes, its hole stays
    EXPECT_EQ(Floating(), nullptr);
    EXPECT_EQ(Image().Color(2, 1), TransparentColor);

    ASSERT_TRUE(edit.Cut(clipboard));  // nothing floats: the whole image
    EXPECT_EQ(clipboard.held->width, 4);
    EXPECT_EQ(clipboard.held->Pixel(3, 2)[0], 3);
    EXPECT_EQ(clipboard.held->Pixel(1, 1)[3], 0);  // the hole was copied as transparent
    EXPECT_EQ(Image().Color(3, 2), TransparentColor);
    EXPECT_EQ(Image().Alpha(3, 2), 0);
    ASSERT_TRUE(f.editor.Undo());
    EXPECT_EQ(Image().Color(3, 2), PatternColor(3, 2));
    ASSERT_TRUE(f.editor.Undo());
    EXPECT_EQ(Image().Color(2, 1), PatternColor(2, 1));
}

TEST_F(Clipboard, SelectAllFloatsTheImageAndDeleteClearsIt) {
    Open(4, 24);
    ASSERT_TRUE(edit.SelectAll());
    EXPECT_EQ(f.editor.Tools().State().CurrentTool, ToolId::Select);
    ASSERT_NE(Floating(), nullptr);
    EXPECT_EQ(Floating()->Rect(), (CellRect{0, 0, 4, 4}));
    EXPECT_TRUE(f.editor.Canvas().KeyPress({CanvasKey::Right, {}}));
    EXPECT_TRUE(edit.Delete());
    EXPECT_EQ(Floating(), nullptr);
    EXPECT_EQ(Image().Color(1, 0), TransparentColor);
    EXPECT_TRUE(f.editor.Undo());
    EXPECT_EQ(Image().Color(1, 0), PatternColor(1, 0));
    EXPECT_TRUE(edit.Delete());
    EXPECT_EQ(Image().Color(3, 3), TransparentColor);
    EXPECT_EQ(f.editor.History().UndoCount(), 0);
    EXPECT_FALSE(f.editor.Document().Unmodified());
}

TEST_F(Clipboard, APastedPictureTakesTheImagesDepthAndFloatsWhereTheWindowSays) {
    struct Case {
        int bits;
        std::uint8_t alpha;
        PackedColor color;  // of picture pixel (200, 100) after the drop
        int shownAlpha;
    };
    const Case cases[] = {
        {32, 90, PackColor(73, 37, 35), 255},  // laid over the image's opaque pixel
        {24, 127, PatternColor(3, 2), 255},    // under half covered: the image shows
        {24, 128, PackColor(200, 100, 7), 255}, {8, 200, PackColor(200, 100, 7), 255},
        {4, 200, PackColor(255, 255, 0), 255},  {1, 200, PackColor(0, 0, 0), 255},
    };
    for (const Case& c : cases) {
        test::EditorFixture g;
        ASSERT_TRUE(g.Open(test::PatternSet(16, c.bits)));
        g.editor.Tools().SetSelectionMode(SelectionMode::Transparent);
        FakeClipboard board;
        RgbaPicture picture = Picture(260, 120, c.alpha);
        EXPECT_FALSE(g.editor.Edit().CanPaste(board));
        board.held = picture;
        ASSERT_TRUE(g.editor.Edit().CanPaste(board));
        ASSERT_TRUE(g.editor.Edit().Paste(board, {-197, 102}));
        EXPECT_TRUE(g.presenter.shown.empty());  // 260 x 120 is not large
        const IFloatingSelection* floating = g.editor.Canvas().FloatingSelection();
        ASSERT_NE(floating, nullptr);
        EXPECT_EQ(floating->Rect(), (CellRect{0, 15, 256, 120}));  // cut to 256, on the image
        EXPECT_EQ(g.editor.Tools().State().CurrentTool, ToolId::Select);
        EXPECT_EQ(g.editor.History().UndoCount(), 0);
        g.editor.Canvas().PointerPress({100, 100}, MouseButton::Left);  // drag it into view
        g.editor.Canvas().PointerMove({-97, -13});
        g.editor.Canvas().PointerRelease({-97, -13});
        ASSERT_TRUE(g.editor.Canvas().KeyPress({CanvasKey::Enter, {}}));
        const IconImage& image = g.editor.CurrentImage();
        EXPECT_EQ(image.Color(3, 2), c.color) << c.bits;
        EXPECT_EQ(ShownAlpha(image, 3, 2), c.shownAlpha) << c.bits;
        ASSERT_TRUE(g.editor.Undo());
        EXPECT_EQ(image.Color(3, 2), PatternColor(3, 2)) << c.bits;
    }
}

TEST_F(Clipboard, ALargePictureAsksFirstAndABrokenOneIsRefused) {
    Open(8, 32);
    clipboard.held = Picture(301, 2);
    f.presenter.answer = MessageAnswer::No;
    EXPECT_FALSE(edit.Paste(clipboard));
    ASSERT_EQ(f.presenter.shown.size(), 1u);
    EXPECT_EQ(f.presenter.shown[0].key, "PastePicture");
    EXPECT_EQ(Floating(), nullptr);
    EXPECT_EQ(f.editor.History().UndoCount(), -1);
    f.presenter.answer = MessageAnswer::Yes;
    EXPECT_TRUE(edit.Paste(clipboard));
    EXPECT_EQ(Floating()->Rect(), (CellRect{0, 0, 256, 2}));

    for (RgbaPicture broken :
         {RgbaPicture{2, 2, std::vector<std::uint8_t>(15)}, RgbaPicture{0, 5, {}},
          RgbaPicture{-1, -4, {1, 2, 3, 4}}, RgbaPicture{1 << 30, 1 << 30, {}}}) {
        clipboard.held = broken;
        EXPECT_FALSE(edit.Paste(clipboard));
        EXPECT_FALSE(edit.PlaceText(broken));
    }
}

TEST_F(Clipboard, TextFloatsCentredOrFromTheTopLeftAndSwitchesToSelect) {
    Open(16, 1);
    f.editor.Tools().SelectTool(ToolId::Text);
    ASSERT_TRUE(edit.PlaceText(Picture(5, 4)));
    EXPECT_EQ(f.editor.Tools().State().CurrentTool, ToolId::Select);
    EXPECT_EQ(f.editor.Tools().Panel(), OptionPanel::Selection);
    ASSERT_NE(Floating(), nullptr);
    EXPECT_EQ(Floating()->Rect(), (CellRect{5, 6, 5, 4}));
    EXPECT_EQ(Floating()->Pixels().Color(4, 3), PackColor(0, 0, 0));  // black or white only

    f.editor.Tools().SelectTool(ToolId::Text);  // the next text drops the first
    EXPECT_EQ(Floating(), nullptr);
    ASSERT_TRUE(edit.PlaceText(Picture(40, 3)));
    EXPECT_EQ(Floating()->Rect(), (CellRect{0, 6, 40, 3}));
    EXPECT_EQ(Image().Color(5, 6), PackColor(0, 0, 0));
}

}  // namespace
}  // namespace iw
