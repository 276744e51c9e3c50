// Undo and Repeat: twenty levels, the corner copies, and Repeat kept after new changes.
#include <gtest/gtest.h>

#include "editor/UndoHistory.h"
#include "support/TestImages.h"

namespace iw {
namespace {

// One "change": record, then stamp the change's number into a pixel and the alpha plane.
void Change(UndoHistory& history, IconImage& image, int number) {
    history.AddUndo(image);
    image.Color(0, 0) = number;
    image.Alpha(1, 1) = number;
}

TEST(UndoHistory, TwentyOneChangesThenTwentyUndosRestoreTheFirstChange) {
    UndoHistory history;
    IconImage image = test::MakeImage(16, 16, 32);
    EXPECT_FALSE(history.UndoEnabled());
    EXPECT_FALSE(history.Undo(image));
    for (int n = 1; n <= 21; ++n)
        Change(history, image, n);
    EXPECT_EQ(history.UndoCount(), 19);
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(history.UndoEnabled()) << i;
        ASSERT_TRUE(history.Undo(image));
        EXPECT_EQ(image.Color(0, 0), 20 - i);
        EXPECT_EQ(image.Alpha(1, 1), 20 - i);
    }
    EXPECT_FALSE(history.UndoEnabled());  // a twenty-first undo is not offered
    EXPECT_FALSE(history.Undo(image));
    EXPECT_EQ(image.Color(0, 0), 1);
    EXPECT_EQ(history.RedoCount(), 19);
}

TEST(UndoHistory, RepeatWalksForwardAgain) {
    UndoHistory history;
    IconImage image = test::MakeImage(8, 8, 32);
    EXPECT_FALSE(history.Repeat(image));
    for (int n = 1; n <= 3; ++n)
        Change(history, image, n);
    history.Undo(image);
    history.Undo(image);
    EXPECT_TRUE(history.Repeat(image));
    EXPECT_EQ(image.Color(0, 0), 2);
    EXPECT_TRUE(history.Repeat(image));
    EXPECT_EQ(image.Color(0, 0), 3);
    EXPECT_FALSE(history.RepeatEnabled());
    EXPECT_TRUE(history.Undo(image));  // Repeat put the image back on the undo stack
    EXPECT_EQ(image.Color(0, 0), 2);
}

TEST(UndoHistory, DrawingAfterUndoKeepsRepeatWithTheUndoneImage) {
    UndoHistory history;
    IconImage image = test::MakeImage(8, 8, 32);
    Change(history, image, 1);
    Change(history, image, 2);
    history.Undo(image);  // back to 1; redo level 0 holds 2
    Change(history, image, 7);
    EXPECT_TRUE(history.RepeatEnabled());
    EXPECT_TRUE(history.Repeat(image));
    EXPECT_EQ(image.Color(0, 0), 2);
    EXPECT_TRUE(history.Undo(image));
    EXPECT_EQ(image.Color(0, 0), 7);
    // A reset empties both stacks by their counts.
    history.ResetUndosRepeats();
    EXPECT_FALSE(history.Undo(image));
    EXPECT_FALSE(history.Repeat(image));
    EXPECT_EQ(image.Color(0, 0), 7);
}

TEST(UndoHistory, CopiesOnlyTheImagesCorner) {
    UndoHistory history;
    IconImage image = test::MakeImage(16, 16, 32);
    image.Color(15, 15) = 1;
    image.Color(16, 0) = 99;  // a store cell outside the image
    history.AddUndo(image);
    EXPECT_EQ(history.UndoPixels(0).Color(16, 0), 0);  // not copied into the snapshot
    image.Color(15, 15) = 2;
    image.Color(16, 0) = 100;
    ASSERT_TRUE(history.Undo(image));
    EXPECT_EQ(image.Color(15, 15), 1);
    EXPECT_EQ(image.Color(16, 0), 100);  // untouched by the undo
    EXPECT_EQ(history.RedoPixels(0).Color(15, 15), 2);
    EXPECT_EQ(history.RedoPixels(0).Color(16, 0), 0);
}

}  // namespace
}  // namespace iw
