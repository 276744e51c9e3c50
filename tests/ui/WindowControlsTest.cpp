// The tool bar, the option panels, the colour boxes and the zoom of the main window,
// driven through their widgets.
#include <QLabel>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>
#include <QWheelEvent>

#include "WindowFixture.h"
#include "ui/widgets/CanvasArea.h"

namespace iw::test {
namespace {

using WindowControls = WindowTest;

// Each tool's key selects it and shows its option panel and no other (Text opens its window:
// WindowEditTest); a pen shape button sets the option by its tag and stays chosen; a channel
// box and the alpha slider reach the fore colour; the View menu's items the window settings.
TEST_F(WindowControls, ToolKeysOptionButtonsChannelBoxesAndTheViewMenuReachTheirState) {
    Start();
    const std::vector<std::tuple<Qt::Key, ToolId, const char*>> cases = {
        {Qt::Key_S, ToolId::Select, "fraSelection"},  {Qt::Key_F, ToolId::Fill, "fraNothing"},
        {Qt::Key_A, ToolId::Airbrush, "fraSpray"},    {Qt::Key_K, ToolId::PickColor, "fraNothing"},
        {Qt::Key_P, ToolId::Pencil, "fraPencil"},     {Qt::Key_L, ToolId::Line, "fraLine"},
        {Qt::Key_G, ToolId::Gradient, "fraGradient"}, {Qt::Key_E, ToolId::Ellipse, "fraShape"},
        {Qt::Key_R, ToolId::Rectangle, "fraShape"},
    };
    const QStringList panels = {"fraSelection", "fraPencil", "fraLine",   "fraSpray",
                                "fraGradient",  "fraShape",  "fraNothing"};
    for (const auto& [key, tool, panel] : cases) {
        SCOPED_TRACE(panel);
        QTest::keyClick(window.get(), key);
        EXPECT_EQ(editor().Tools().State().CurrentTool, tool);
        for (const QString& name : panels)
            EXPECT_EQ(Find<QWidget>(name.toLatin1().constData())->isVisible(), name == panel)
                << name.toStdString();
    }

    QTest::keyClick(window.get(), Qt::Key_P);
    QToolButton* large = nullptr;
    for (QToolButton* button : window->findChildren<QToolButton*>(QStringLiteral("picPen"))) {
        if (button->property("tag").toString() == QStringLiteral("LCircle")) large = button;
    }
    ASSERT_NE(large, nullptr);
    QTest::mouseClick(large, Qt::LeftButton);
    QTest::mouseClick(large, Qt::LeftButton);  // clicking the chosen one again keeps it
    EXPECT_EQ(editor().Tools().State().BrushShape, "LCircle");
    EXPECT_TRUE(large->isChecked());

    for (const auto& [box, text] : {std::pair{"txtRed", "12"}, std::pair{"txtAlpha", "40"}}) {
        Retype(*window, box, QString::fromLatin1(text));
        QTest::keyClick(Find(box), Qt::Key_Return);
    }
    EXPECT_EQ(RedOf(editor().Tools().State().ForeColor), 12);
    EXPECT_EQ(editor().Tools().State().CurrentAlpha, 40);
    EXPECT_EQ(Find<QSlider>("sldAlpha")->value(), 40);

    // The View menu's window settings: the inspector shown or hidden, the preview's background.
    QWidget* inspector = Find<QWidget>("picInspector");
    ASSERT_TRUE(inspector->isVisible());
    Trigger("mnuInspector");
    EXPECT_FALSE(inspector->isVisible());
    EXPECT_FALSE(editor().Settings().Window().showInspector);
    EXPECT_FALSE(Find<QAction>("mnuInspector")->isChecked());
    Trigger("mnuPreviewWhite");
    EXPECT_EQ(editor().Settings().Window().previewBackground, PreviewBackground::White);
    EXPECT_TRUE(Find<QAction>("mnuPreviewWhite")->isChecked());
    EXPECT_FALSE(Find<QAction>("mnuPreviewGrid")->isChecked());
}

// Ctrl and the wheel zoom about the mouse: the image point under it stays there.
TEST_F(WindowControls, WheelZoomKeepsTheCellUnderTheMouse) {
    Start(TestDataPath("interop/magick-32bpp-16-256.ico").string());
    editor().SelectImage(3);  // 48 x 48
    auto* area = Find<ui::CanvasArea>("picBackground");
    area->resize(400, 300);
    editor().View().NormalZoom();
    for (int i = 0; i < 9; ++i)
        editor().View().ZoomIn();  // 10: larger than the area
    const QPointF mouse(150, 120);
    const auto cellUnder = [&] {
        const QPointF onCanvas = mouse - QPointF(window->Canvas()->pos());
        return onCanvas / editor().View().State().PixelSize;
    };
    const QPointF before = cellUnder();
    QWheelEvent wheel(mouse, area->viewport()->mapToGlobal(mouse), QPoint(), QPoint(0, 240),
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(area->viewport(), &wheel);
    EXPECT_EQ(editor().View().State().PixelSize, 12);
    EXPECT_EQ(Find<QLabel>("lblZoom")->text(), QStringLiteral("Zoom 12:1"));
    EXPECT_NEAR(cellUnder().x(), before.x(), 0.1);
    EXPECT_NEAR(cellUnder().y(), before.y(), 0.1);
    EXPECT_GT(area->horizontalScrollBar()->value(), 0);
}

}  // namespace
}  // namespace iw::test
