// The Image menu's windows driven through their widgets: the adjustments window's Cancel
// and OK as undo steps, the resize window's entries and OK, and every operation of the
// menu recording one undo step.
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QSlider>

#include "WindowFixture.h"
#include "support/TestImages.h"

namespace iw::test {
namespace {

struct ImageWindows : WindowTest {
    void SetUp() override {
        Start(TestDataPath("interop/magick-32bpp-16-256.ico").string());
        before = editor().CurrentImage().Clone();
    }
    // The open window of that name (one that closed is gone once its deletion has run).
    QDialog* Dialog(const char* name) {
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return window->findChild<QDialog*>(QString::fromLatin1(name));
    }
    // The sides and both planes as they were when the file was opened.
    bool AsOpened() {
        const IconImage& now = editor().CurrentImage();
        return now.info.Width() == before.info.Width() &&
               now.info.Height() == before.info.Height() && test::SamePixels(now, before);
    }

    IconImage before;
};

// Adjustments: Cancel restores every pixel without an undo step, OK leaves one. Resize: typed
// pixels with and without kept proportions, then OK and Undo. Then every operation of the menu.
TEST_F(ImageWindows, AdjustmentsResizeAndEveryOperationOfTheMenuAreOneUndoStepEach) {
    ASSERT_FALSE(editor().CurrentImage().OriginalPng().empty());  // a PNG entry, kept as read
    for (const bool ok : {false, true}) {
        Trigger("mnuAdjustColors");
        QDialog* dialog = Dialog("frmBrightness");
        ASSERT_NE(dialog, nullptr);
        auto* brightness = Child<QSlider>(*dialog, "sldBrightness");
        brightness->setFocus();
        QTest::keyClick(brightness, Qt::Key_PageUp);
        EXPECT_EQ(brightness->value(), 60);
        Click(*dialog, "optRed");
        EXPECT_FALSE(AsOpened());  // the image follows the sliders at once
        Click(*dialog, ok ? "cmdOK" : "cmdCancel");
        EXPECT_EQ(Dialog("frmBrightness"), nullptr);
        EXPECT_EQ(AsOpened(), !ok);
        EXPECT_EQ(editor().History().UndoCount(), ok ? 0 : -1);
        EXPECT_EQ(window->isWindowModified(), ok);
        EXPECT_EQ(editor().CurrentImage().OriginalPng().empty(), ok);
    }
    Trigger("mnuUndo");
    ASSERT_TRUE(AsOpened());

    Trigger("mnuResize");
    QDialog* dialog = Dialog("frmResize");
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(Child<QLabel>(*dialog, "lblCurrent")->text(),
              QStringLiteral("Current Size: 256 x 256"));
    Click(*dialog, "optPixels");
    // The vertical entry follows while proportions are kept, and not once they are not.
    Retype(*dialog, "txtH", QStringLiteral("48"));
    EXPECT_EQ(Child<QLineEdit>(*dialog, "txtV")->text(), QStringLiteral("48"));
    Click(*dialog, "chkProportions");
    Retype(*dialog, "txtV", QStringLiteral("24"));
    EXPECT_EQ(Child<QLabel>(*dialog, "lblNew")->text(), QStringLiteral("New Size: 48 x 24"));
    Click(*dialog, "cmdOK");  // the vertical entry counts though it was not left
    EXPECT_EQ(Dialog("frmResize"), nullptr);
    EXPECT_EQ(editor().CurrentImage().info.Width(), 48);
    EXPECT_EQ(editor().CurrentImage().info.Height(), 24);
    EXPECT_EQ(window->Canvas()->width(), 48 * editor().View().State().PixelSize);
    Trigger("mnuUndo");
    EXPECT_TRUE(AsOpened());

    // Every operation of the menu records one undo step.
    for (const char* name :
         {"mnuFlipHorizontal", "mnuFlipVertical", "mnuRotate90", "mnuRotate180", "mnuRotate270",
          "mnuTrim", "mnuGreyscale", "mnuInvert", "mnuMakeTransparent", "mnuColorize", "mnuTwoTone",
          "mnuBlur", "mnuSharpen", "mnuSmoothAlpha", "mnuDropShadow"}) {
        const int undoCount = editor().History().UndoCount();
        Trigger(name);
        EXPECT_EQ(editor().History().UndoCount(), undoCount + 1) << name;
    }
    EXPECT_FALSE(editor().Document().Unmodified());
}

}  // namespace
}  // namespace iw::test
