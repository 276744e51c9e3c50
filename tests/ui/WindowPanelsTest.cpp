// The panels that show the core's state: the inspector with its fix, the palette strip and
// the colour swatches, the status bar's pixel text.
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

#include "WindowFixture.h"
#include "ui/widgets/IconListView.h"
#include "ui/widgets/PaletteStrip.h"

namespace iw::test {
namespace {

using WindowPanels = WindowTest;

// A new icon lacks the default template's formats: the panel says so, its button adds
// them, and the list and the panel follow each fix.
TEST_F(WindowPanels, TheInspectorsFixRunsAndThePaletteAndSwitchSetTheColours) {
    Start();
    auto* text = Find<QLabel>("lblInspector");
    auto* fix = Find<QPushButton>("cmdFix");
    EXPECT_EQ(text->text(), QStringLiteral("Your icon is missing required formats."));
    EXPECT_TRUE(fix->isVisible());
    EXPECT_EQ(fix->text(), QStringLiteral("Add Icons"));
    EXPECT_TRUE(Find<QLabel>("imgExec")->isVisible());
    EXPECT_FALSE(Find<QLabel>("imgCheck")->isVisible());

    ChooseFromPalette(PackColor(255, 0, 0));
    QTest::keyClick(window.get(), Qt::Key_P);
    Stroke({{5, 5}});
    QTest::mouseClick(fix, Qt::LeftButton);
    const int formats = static_cast<int>(editor().Inspector().RequiredFormats().size());
    EXPECT_EQ(editor().Set().Count(), formats);
    EXPECT_EQ(window->IconList()->model()->rowCount(), formats);
    EXPECT_EQ(fix->text(), QStringLiteral("Copy Image"));

    QTest::mouseClick(fix, Qt::LeftButton);
    EXPECT_FALSE(fix->isVisible());
    EXPECT_TRUE(Find<QLabel>("imgCheck")->isVisible());
    EXPECT_FALSE(Find<QLabel>("imgExec")->isVisible());

    // A right click on the palette sets the background; the switch swaps the two.
    auto* palette = Find<ui::PaletteStrip>("picPalette");
    ASSERT_GE(palette->Colors().size(), 2u);  // the markers lead: cell 1 inverts
    QTest::mouseClick(palette, Qt::RightButton, Qt::NoModifier, palette->CellRect(1).center());
    EXPECT_EQ(editor().Tools().State().BackColor, InverseColor);
    const PackedColor fore = editor().Tools().State().ForeColor;
    QTest::mouseClick(Find<QToolButton>("picSwitchColors"), Qt::LeftButton);
    EXPECT_EQ(editor().Tools().State().ForeColor, InverseColor);
    EXPECT_EQ(editor().Tools().State().BackColor, fore);
    EXPECT_TRUE(Find<QWidget>("picForeColor")->toolTip().contains(QStringLiteral("Inverted")));
}

TEST_F(WindowPanels, TheStatusBarNamesThePixelUnderTheMouse) {
    Start(TestDataPath("interop/magick-8bpp-48.ico").string());
    auto* pixel = Find<QLabel>("lblPixel");
    QTest::mouseMove(window->Canvas(), CellCentre({24, 10}));
    EXPECT_FALSE(pixel->text().isEmpty());
    EXPECT_EQ(pixel->text().toStdString(), editor().Canvas().StatusTextAt({24, 10}));
}

}  // namespace
}  // namespace iw::test
