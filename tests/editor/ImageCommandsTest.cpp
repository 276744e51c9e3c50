// The Image menu's operations through the editor: one undo step each, the sides of the
// image kept by Undo and Repeat, a selection changed alone, also by the adjustments.
#include <gtest/gtest.h>

#include "EditorFakes.h"
#include "imaging/Adjustments.h"
#include "support/TestImages.h"

namespace iw {
namespace {

using test::PatternColor;

IconSet PatternRect(int width, int height, int bits) {
    return test::SetOf(test::MakeImage(width, height, bits, PatternColor));
}

struct ImageOps : ::testing::Test {
    void Open(const IconSet& set) {
        ASSERT_TRUE(f.Open(set));
        original = f.editor.CurrentImage().Clone();
    }
    const IconImage& Image() const { return f.editor.CurrentImage(); }
    // Every cell of the image equals the image as opened, sides included (the alpha plane
    // counts in 32-bit images only).
    bool AsOpened() const {
        const bool alpha = original.info.bitCount == 32;
        if (Image().info.Width() != original.info.Width() ||
            Image().info.Height() != original.info.Height())
            return false;
        for (int x = 0; x < original.info.Width(); ++x) {
            for (int y = 0; y < original.info.Height(); ++y) {
                if (Image().Color(x, y) != original.Color(x, y) ||
                    (alpha && Image().Alpha(x, y) != original.Alpha(x, y)))
                    return false;
            }
        }
        return true;
    }
    bool Run(ImageOperation operation) { return f.editor.Operations().Run(operation); }

    test::EditorFixture f;
    IconImage original;
};

TEST_F(ImageOps, TurnsAndFlipsComeBackToTheImageAndEachIsOneUndoStep) {
    struct Case {
        ImageOperation operation;
        int times;  // how many make the identity
    };
    const Case cases[] = {{ImageOperation::FlipHorizontal, 2},
                          {ImageOperation::FlipVertical, 2},
                          {ImageOperation::Rotate180, 2},
                          {ImageOperation::Rotate90, 4},
                          {ImageOperation::Rotate270, 4}};
    for (const int bits : {32, 24}) {
        for (const Case& c : cases) {
            SCOPED_TRACE(static_cast<int>(c.operation));
            Open(PatternRect(5, 3, bits));
            for (int i = 0; i < c.times; ++i) {
                ASSERT_TRUE(Run(c.operation));
                EXPECT_EQ(AsOpened(), i == c.times - 1) << i;
            }
            EXPECT_EQ(f.editor.History().UndoCount(), c.times - 1);
            EXPECT_FALSE(f.editor.Document().Unmodified());
            for (int i = 0; i < c.times; ++i)
                ASSERT_TRUE(f.editor.Undo());
            EXPECT_TRUE(AsOpened());
            EXPECT_TRUE(f.editor.Document().Unmodified());
        }
    }
}

TEST_F(ImageOps, UndoAndRepeatOfAQuarterTurnAndATrimRestoreSidesAndPixels) {
    Open(PatternRect(6, 3, 32));
    ASSERT_TRUE(Run(ImageOperation::Rotate90));
    EXPECT_EQ(std::pair(Image().info.Width(), Image().info.Height()), std::pair(3, 6));
    EXPECT_EQ(Image().Color(2, 0), PatternColor(0, 0));  // the top-left went to the top-right
    f.observer.events.clear();
    ASSERT_TRUE(f.editor.Undo());
    EXPECT_TRUE(AsOpened());
    EXPECT_EQ(f.observer.events["set"], 1);  // the list shows the new sides
    ASSERT_TRUE(f.editor.Repeat());
    EXPECT_EQ(Image().info.Width(), 3);
    EXPECT_EQ(Image().Color(2, 0), PatternColor(0, 0));

    // Trimming: a transparent border goes, and comes back with Undo.
    IconSet bordered = PatternRect(6, 3, 32);
    for (int y = 0; y < 3; ++y)
        bordered.Image(0).Alpha(0, y) = bordered.Image(0).Alpha(5, y) = 0;
    Open(bordered);
    ASSERT_TRUE(Run(ImageOperation::Trim));
    EXPECT_EQ(Image().info.Width(), 4);
    EXPECT_EQ(Image().Color(0, 1), PatternColor(1, 1));
    ASSERT_TRUE(f.editor.Undo());
    EXPECT_TRUE(AsOpened());
}

TEST_F(ImageOps, AnOperationOnTheSelectionChangesOnlyItAndUndoesWhole) {
    Open(PatternRect(6, 6, 32));
    f.editor.Tools().SelectTool(ToolId::Select);
    f.Stroke({{1, 1}, {3, 2}});  // lifts x 1..3, y 1..2
    ASSERT_NE(f.editor.Canvas().FloatingSelection(), nullptr);
    const CellRect rect = f.editor.Canvas().FloatingSelection()->Rect();
    EXPECT_EQ(f.editor.Operations().Target(), rect);
    ASSERT_TRUE(Run(ImageOperation::Invert));
    ASSERT_NE(f.editor.Canvas().FloatingSelection(), nullptr);  // still floating
    EXPECT_EQ(f.editor.Canvas().FloatingSelection()->Rect(), rect);
    ASSERT_TRUE(f.editor.Canvas().KeyPress({CanvasKey::Enter, {}}));  // dropped
    for (int x = 0; x < 6; ++x) {
        for (int y = 0; y < 6; ++y) {
            const PackedColor was = PatternColor(x, y);
            const PackedColor expected = rect.Contains({x, y}) ? (was ^ 0xFFFFFF) : was;
            EXPECT_EQ(Image().Color(x, y), expected) << x << "," << y;
        }
    }
    while (f.editor.Undo()) {
    }
    EXPECT_TRUE(AsOpened());

    // A quarter turn of a 3 x 2 selection floats 2 x 3 at the same place; the image keeps
    // its sides.
    f.Stroke({{1, 1}, {3, 2}});
    ASSERT_TRUE(Run(ImageOperation::Rotate90));
    EXPECT_EQ(f.editor.Canvas().FloatingSelection()->Rect(), (CellRect{1, 1, 2, 3}));
    EXPECT_EQ(Image().info.Width(), 6);
    ASSERT_TRUE(f.editor.Undo());
    EXPECT_TRUE(AsOpened());
}

TEST_F(ImageOps, OperationsThatNeedAColourRefuseAMarkerAndLongOnesShowTheirStatus) {
    Open(PatternRect(4, 4, 32));
    f.editor.Tools().SetForeColor(TransparentColor);
    for (const auto operation :
         {ImageOperation::MakeTransparent, ImageOperation::Colorize, ImageOperation::TwoTone}) {
        EXPECT_FALSE(Run(operation));
    }
    EXPECT_FALSE(f.editor.UndoEnabled());
    f.editor.Tools().SetForeColor(PatternColor(2, 2));
    ASSERT_TRUE(Run(ImageOperation::MakeTransparent));
    EXPECT_EQ(Image().Alpha(2, 2), 0);
    EXPECT_EQ(Image().Alpha(2, 1), 255);
    f.progress.statuses.clear();
    ASSERT_TRUE(Run(ImageOperation::DropShadow));
    EXPECT_EQ(f.progress.statuses, (std::vector<std::string>{"Adding Dropshadow...", ""}));
}

TEST_F(ImageOps, AdjustmentsTakeOneUndoStepAndOnASelectionLeaveTheRestAlone) {
    Open(PatternRect(4, 4, 32));
    f.observer.events.clear();
    std::unique_ptr<ColorAdjustments> whole = f.editor.AdjustColors();
    ASSERT_NE(whole, nullptr);
    whole->SetBrightness(100);
    whole->Ok();
    IconImage brighter = original.Clone();
    DoBrightness(brighter, 100, AdjustChannel::All);
    EXPECT_TRUE(test::SamePixels(Image(), brighter));
    EXPECT_EQ(std::pair(f.observer.events["image"], f.observer.events["inspector"]),
              std::pair(1, 1));
    EXPECT_FALSE(f.editor.Document().Unmodified());
    ASSERT_TRUE(f.editor.Undo());
    EXPECT_TRUE(AsOpened());

    f.editor.Tools().SelectTool(ToolId::Select);
    f.Stroke({{0, 0}, {1, 1}});
    std::unique_ptr<ColorAdjustments> adjustments = f.editor.AdjustColors();
    adjustments->SetBrightness(0);  // every channel down by 250
    adjustments->Ok();
    ASSERT_TRUE(f.editor.Canvas().KeyPress({CanvasKey::Enter, {}}));
    EXPECT_EQ(Image().Color(1, 1), PackColor(0, 0, 0));
    EXPECT_EQ(Image().Color(2, 2), PatternColor(2, 2));
    ASSERT_TRUE(f.editor.Undo());
    EXPECT_TRUE(AsOpened());
}

}  // namespace
}  // namespace iw
