// The Edit menu and the Select and Text tools driven through the main window:
// a selection lifted, moved and dropped, text placed, pictures pasted from the system
// clipboard and copied to it, and Undo back.
#include <QClipboard>
#include <QMimeData>
#include <QToolButton>

#include "WindowFixture.h"

namespace iw::test {
namespace {

const PackedColor kRed = PackColor(255, 0, 0);
const PackedColor kBlue = PackColor(0, 0, 255);

struct WindowEdit : WindowTest {
    const IFloatingSelection* Floating() { return editor().Canvas().FloatingSelection(); }
    // Cells of the image that hold `color` at full alpha.
    int CountOf(PackedColor color) {
        const IconImage& image = editor().CurrentImage();
        int count = 0;
        for (int x = 0; x < image.info.Width(); ++x) {
            for (int y = 0; y < image.info.Height(); ++y)
                count += image.Color(x, y) == color && image.Alpha(x, y) > 0;
        }
        return count;
    }
};

TEST_F(WindowEdit, TheSelectionTextAndAPastedPictureFloatAndDrop) {
    Start();
    ASSERT_EQ(editor().CurrentImage().info.bitCount, 32);
    ChooseFromPalette(kRed);
    QTest::keyClick(window.get(), Qt::Key_P);  // the small square pencil
    Stroke({{2, 2}});
    ASSERT_EQ(PixelAt({2, 2}), kRed);

    QTest::keyClick(window.get(), Qt::Key_S);
    QTest::mouseClick(Find<QToolButton>("picTransparent"), Qt::LeftButton);
    ASSERT_EQ(editor().Tools().State().Selection, SelectionMode::Transparent);
    Stroke({{1, 1}, {2, 2}, {3, 3}});
    ASSERT_NE(Floating(), nullptr);
    EXPECT_EQ(Floating()->Rect(), (CellRect{1, 1, 3, 3}));
    EXPECT_EQ(PixelAt({2, 2}), TransparentColor);  // the hole it leaves

    Stroke({{2, 2}, {4, 3}, {5, 5}});  // grabbed inside: moved by (3, 3)
    QTest::keyClick(window->Canvas(), Qt::Key_Right);
    QTest::keyClick(window->Canvas(), Qt::Key_Up);
    EXPECT_EQ(Floating()->Origin(), (Point{5, 3}));

    QTest::keyClick(window->Canvas(), Qt::Key_Return);
    EXPECT_EQ(Floating(), nullptr);
    EXPECT_EQ(PixelAt({6, 4}), kRed);

    // The Text tool's window: its text floats in the fore colour, dropped as one undo step.
    ChooseFromPalette(kBlue);
    WhenShown("frmText", [](QWidget& dialog) {
        EXPECT_FALSE(Child(dialog, "cmdOK")->isEnabled());  // no text yet
        QTest::keyClicks(Child(dialog, "txtText"), "Hi");
        Click(dialog, "cmdOK");
    });
    QTest::mouseClick(Find("tbrToolsText"), Qt::LeftButton);
    ASSERT_NE(Floating(), nullptr);
    EXPECT_EQ(editor().Tools().State().CurrentTool, ToolId::Select);
    EXPECT_TRUE(Find<QWidget>("fraSelection")->isVisible());
    EXPECT_EQ(CountOf(kBlue), 0);

    QTest::keyClick(window->Canvas(), Qt::Key_Return);
    EXPECT_GT(CountOf(kBlue), 4);
    Trigger("mnuUndo");
    EXPECT_EQ(CountOf(kBlue), 0);

    // A picture from another program is pasted, and a copy keeps its alpha.
    QApplication::clipboard()->clear();
    EXPECT_FALSE(Find<QAction>("mnuPaste")->isEnabled());
    QImage picture(5, 3, QImage::Format_ARGB32);
    picture.fill(QColor(0, 0, 255, 128));
    picture.setPixelColor(4, 2, QColor(255, 0, 0));
    QApplication::clipboard()->setImage(picture);
    ASSERT_TRUE(Find<QAction>("mnuPaste")->isEnabled());

    Trigger("mnuPaste");
    ASSERT_NE(Floating(), nullptr);
    EXPECT_EQ(Floating()->Pixels().Alpha(0, 0), 128);
    EXPECT_EQ(Floating()->Pixels().Color(4, 2), kRed);

    // Copy puts a PNG that keeps the alpha, and an ordinary image.
    QApplication::clipboard()->clear();
    Trigger("mnuCopy");
    const QMimeData* data = QApplication::clipboard()->mimeData();
    ASSERT_TRUE(data && data->hasFormat(QStringLiteral("image/png")));
    EXPECT_TRUE(data->hasImage());
    const QImage png = QImage::fromData(data->data(QStringLiteral("image/png")), "PNG");
    ASSERT_EQ(png.size(), QSize(5, 3));
    EXPECT_EQ(png.pixelColor(0, 0), QColor(0, 0, 255, 128));

    // Dropped, the pasted pixels stay; Undo takes the paste back.
    QTest::keyClick(window->Canvas(), Qt::Key_Escape);
    EXPECT_EQ(PixelAt({4, 2}), kRed);
    Trigger("mnuUndo");
    EXPECT_NE(PixelAt({4, 2}), kRed);
}

}  // namespace
}  // namespace iw::test
