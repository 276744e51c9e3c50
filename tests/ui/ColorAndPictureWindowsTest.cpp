// The colour picker, the picture import and the conversion wizard, driven through their
// widgets; the core's state is checked afterwards.
#include <QImage>
#include <QLineEdit>
#include <QListWidget>

#include "WindowFixture.h"
#include "ui/main/PictureCommands.h"

namespace iw::test {
namespace {

// The picture commands' file dialogs, answered with preset paths.
class ScriptedPictureFiles final : public ui::IPictureFiles {
  public:
    std::optional<std::string> ChoosePicture() override { return picture; }
    std::optional<std::string> ChoosePngPath(const std::string& suggested) override {
        suggestedName = suggested;
        return pngPath;
    }
    std::optional<std::string> ChooseFolder() override { return folder; }
    std::optional<std::string> picture, pngPath, folder;
    std::string suggestedName;
};

struct ColorAndPictureWindows : WindowTest {
    void Start() {
        WindowTest::Start();
        Find<ui::PictureCommands>("PictureCommands")->SetFiles(&pictureFiles);
    }
    // A PNG of two halves, red on the left and blue on the right.
    std::string WritePicture(int width, int height) {
        QImage image(width, height, QImage::Format_ARGB32);
        image.fill(Qt::blue);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width / 2; ++x)
                image.setPixelColor(x, y, Qt::red);
        const std::string path = (temp / "picture.png").string();
        EXPECT_TRUE(image.save(QString::fromStdString(path)));
        return path;
    }
    ScriptedPictureFiles pictureFiles;
};

void Type(QWidget& dialog, const char* box, const QString& text) {
    Retype(dialog, box, text);
    QTest::keyClick(Child(dialog, box), Qt::Key_Return);
}

TEST_F(ColorAndPictureWindows, ColorPickerSetsTheForeColourFromTypedValues) {
    Start();
    WhenShown("frmColors", [](QWidget& dialog) {
        Type(dialog, "txtRed", "12");
        Type(dialog, "txtBlue", "200");
        Type(dialog, "txtAlpha", "99");
        EXPECT_EQ(Child<QLineEdit>(dialog, "txtLong")->text(), QString::number(12 + 200 * 65536));
        Click(dialog, "cmdOK");
    });
    editor().Tools().SetForeColor(0);
    QTest::mouseDClick(Find<QWidget>("picForeColor"), Qt::LeftButton);
    EXPECT_EQ(editor().Tools().State().ForeColor, PackColor(12, 0, 200));
    EXPECT_EQ(editor().Tools().State().CurrentAlpha, 99);

    // The background's picker offers no alpha, and Cancel keeps the colour.
    const PackedColor back = editor().Tools().State().BackColor;
    WhenShown("frmColors", [](QWidget& dialog) {
        EXPECT_FALSE(Child(dialog, "txtAlpha")->isVisible());
        Type(dialog, "txtHex", "#00FF00");
        Click(dialog, "cmdCancel");
    });
    QTest::mouseDClick(Find<QWidget>("picBackcolor"), Qt::LeftButton);
    EXPECT_EQ(editor().Tools().State().BackColor, back);
}

TEST_F(ColorAndPictureWindows, ImportFloatsThePictureAndExportWritesOneOrEveryImage) {
    Start();
    pictureFiles.picture = WritePicture(64, 32);
    Trigger("mnuImportImage");
    const IFloatingSelection* floating = editor().Canvas().FloatingSelection();
    ASSERT_NE(floating, nullptr);
    EXPECT_EQ(floating->Rect(), (CellRect{0, 8, 32, 16}));
    EXPECT_EQ(floating->Pixels().Color(28, 8), PackColor(0, 0, 255));
    editor().Canvas().DropFloatingSelection();

    pictureFiles.pngPath = (temp / "one.png").string();
    Trigger("mnuExportImage");
    EXPECT_EQ(pictureFiles.suggestedName, "untitled-32x32.png");
    const QImage written(QString::fromStdString(*pictureFiles.pngPath));
    ASSERT_EQ(written.size(), QSize(32, 32));
    EXPECT_EQ(written.pixelColor(3, 10), QColor(Qt::red));  // the import, dropped in

    std::filesystem::create_directories(temp / "all");
    pictureFiles.folder = (temp / "all").string();
    Trigger("mnuExportAll");
    EXPECT_TRUE(std::filesystem::exists(temp / "all" / "untitled-0.png"));
}

TEST_F(ColorAndPictureWindows, TheConversionWizardMakesANewSetOfTheChosenTemplate) {
    Start();
    const std::string picture = WritePicture(300, 150);
    WhenShown("frmConvert", [&](QWidget& dialog) {
        EXPECT_FALSE(Child(dialog, "cmdNext")->isEnabled());  // no path yet
        Type(dialog, "txtPicture", QString::fromStdString(picture));
        Click(dialog, "cmdNext");
        EXPECT_TRUE(Child(dialog, "cmdFinish")->isEnabled());
        auto* list = Child<QListWidget>(dialog, "lstTemplates");
        const auto found = list->findItems("Windows Classic", Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        list->setCurrentItem(found.front());
        Click(dialog, "cmdFinish");
    });
    Trigger("mnuConvert");
    const IconTemplate* classic = editor().Settings().Templates().Find("Windows Classic");
    ASSERT_NE(classic, nullptr);
    ASSERT_EQ(editor().Set().Count(), static_cast<int>(classic->entries.size()));
    EXPECT_EQ(editor().Set().Image(0).Color(5, 24), PackColor(255, 0, 0));  // the picture's
}

}  // namespace
}  // namespace iw::test
