// The colour picker, the picture import and the conversion wizard, driven through their
// widgets; the core's state is checked afterwards.
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "WindowFixture.h"

namespace iw::test {
namespace {

using ColorAndPictureWindows = WindowTest;

// Runs `answer` on the modal dialog called `name` as soon as it shows.
void WhenModal(const char* name, std::function<void(QDialog&)> answer) {
    QTimer::singleShot(0, [name, answer = std::move(answer)] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        ASSERT_EQ(dialog->objectName(), QLatin1String(name));
        answer(*dialog);
    });
}

void Type(QDialog& dialog, const char* box, const QString& text) {
    auto* edit = dialog.findChild<QLineEdit*>(QLatin1String(box));
    ASSERT_NE(edit, nullptr) << box;
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

void Click(QDialog& dialog, const char* button) {
    auto* found = dialog.findChild<QPushButton*>(QLatin1String(button));
    ASSERT_NE(found, nullptr) << button;
    QTest::mouseClick(found, Qt::LeftButton);
}

TEST_F(ColorAndPictureWindows, ColorPickerSetsTheForeColourFromTypedValues) {
    Start();
    WhenModal("frmColors", [](QDialog& dialog) {
        Type(dialog, "txtRed", "12");
        Type(dialog, "txtGreen", "300");  // refused: green stays
        Type(dialog, "txtBlue", "200");
        Type(dialog, "txtAlpha", "99");
        EXPECT_EQ(dialog.findChild<QLineEdit*>("txtLong")->text(),
                  QString::number(12 + GreenOf(0) * 256 + 200 * 65536));
        EXPECT_EQ(dialog.findChild<QLineEdit*>("txtGreen")->text(), "0");
        Click(dialog, "cmdOK");
    });
    editor().Tools().SetForeColor(0);
    QTest::mouseDClick(Find<QWidget>("picForeColor"), Qt::LeftButton);
    EXPECT_EQ(editor().Tools().State().ForeColor, PackColor(12, 0, 200));
    EXPECT_EQ(editor().Tools().State().CurrentAlpha, 99);

    // The background's picker offers no alpha, and Cancel keeps the colour.
    const PackedColor back = editor().Tools().State().BackColor;
    WhenModal("frmColors", [](QDialog& dialog) {
        EXPECT_FALSE(dialog.findChild<QLineEdit*>("txtAlpha")->isVisible());
        Type(dialog, "txtHex", "#00FF00");
        Click(dialog, "cmdCancel");
    });
    QTest::mouseDClick(Find<QWidget>("picBackcolor"), Qt::LeftButton);
    EXPECT_EQ(editor().Tools().State().BackColor, back);
}

}  // namespace
}  // namespace iw::test
