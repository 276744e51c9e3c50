// The desktop windows driven through their widgets: the file types window's boxes and OK,
// the folder icon wizard setting a folder's icon and composing a new one, and the favicon
// wizard's Save (with its overwrite question) and Copy.
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <set>

#include "WindowFixture.h"
#include "services/core/TextCatalog.h"
#include "services/desktop/AssociationCheck.h"
#include "ui/desktop/FaviconDialog.h"
#include "ui/desktop/FileTypeDialog.h"
#include "ui/desktop/FolderWizard.h"

namespace iw::test {
namespace {

// Associations that remember what was registered; `defaults` are the types the program is
// the default editor of already.
class FakeAssociations final : public IFileAssociations {
  public:
    bool Register(const FileType& type) override {
        registered.emplace_back(type.word);
        return true;
    }
    bool IsDefault(const FileType& type) override { return defaults.contains(type.word); }
    std::set<std::string_view> defaults;
    std::vector<std::string_view> registered;
};

using DesktopWindows = WindowTest;

TEST_F(DesktopWindows, FileTypesOkStoresTheBoxesAndRegistersOnlyCheckedTypesNotYetDefault) {
    Start();
    XmlStore& settings = editor().Settings().Store();
    settings.SetBool("Settings\\CheckANI", false);
    FakeAssociations associations;
    associations.defaults = {"ico"};
    ui::FileTypeDialog dialog(editor(), associations, window.get());
    EXPECT_TRUE(Child<QCheckBox>(dialog, "chkCUR")->isChecked());
    EXPECT_FALSE(Child<QCheckBox>(dialog, "chkANI")->isChecked());  // as stored
    Click(dialog, "chkCUR");
    Click(dialog, "chkANI");
    Click(dialog, "cmdOK");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(settings.GetBool("Settings\\CheckICO", false));
    EXPECT_FALSE(settings.GetBool("Settings\\CheckCUR", true));
    EXPECT_TRUE(settings.GetBool("Settings\\CheckANI", false));
    // "ico" is the program's already; "cur" is unchecked.
    EXPECT_EQ(associations.registered, std::vector<std::string_view>{"ani"});
}

// Set: the folder and icon typed in, Finish writes the icon beside desktop.ini. Create: Finish
// makes the composed folder icon the new document.
TEST_F(DesktopWindows, FolderWizardSettingWritesTheFolderIconAndComposingMakesANewDocument) {
    Start();
    FolderIcons icons(platform::DesktopShell::Windows,
                      [](const std::string&, const auto&) { return platform::ProgramRun{}; });
    const std::filesystem::path folder = temp / "Pictures";
    std::filesystem::create_directories(folder);
    const std::filesystem::path icon = TestDataPath("interop/icotool-8bpp-48.ico");
    {
        ui::FolderWizard wizard(editor(), icons, window.get());
        Click(wizard, "cmdNext");  // "Set the icon of a folder" is the first choice
        ASSERT_EQ(wizard.CurrentPage(), ui::FolderWizard::SetPage);
        Child<QLineEdit>(wizard, "txtIcon")->setText(QString::fromStdString(icon.string()));
        QTest::keyClicks(Child<QLineEdit>(wizard, "txtFolder"),
                         QString::fromStdString(folder.string()));
        QTest::mouseClick(Child<QCheckBox>(wizard, "chkCopy"), Qt::LeftButton);
        Click(wizard, "cmdFinish");
        EXPECT_EQ(wizard.result(), QDialog::Accepted);
        EXPECT_EQ(ReadFileBytes(folder / "folder.ico"), ReadFileBytes(icon));
        EXPECT_TRUE(std::filesystem::exists(folder / "desktop.ini"));
        EXPECT_EQ(Child<QLabel>(wizard, "lblCurrentIcon")->text(), QStringLiteral("folder.ico"));
        EXPECT_EQ(presenter.Keys(), std::vector<std::string>{"FolderIconSet"});
    }
    ui::FolderWizard wizard(editor(), icons, window.get());
    QTest::mouseClick(Child<QRadioButton>(wizard, "optCreate"), Qt::LeftButton);
    Click(wizard, "cmdNext");
    ASSERT_EQ(wizard.CurrentPage(), ui::FolderWizard::CreatePage);
    Child<QLineEdit>(wizard, "txtAngle")->setText(QStringLiteral("30"));
    Click(wizard, "cmdFinish");
    EXPECT_EQ(wizard.result(), QDialog::Accepted);
    EXPECT_EQ(editor().Set().Count(), 9);  // three sides at three depths
}

TEST_F(DesktopWindows, FaviconSaveAsksBeforeOverwritingAndCopyTakesTheMarkupAsShown) {
    Start(TestDataPath("interop/icotool-8bpp-48.ico").string());
    const std::filesystem::path desktop = temp / "Desktop";
    ui::FaviconDialog dialog(editor(), desktop, window.get());
    const QString markup = QStringLiteral("<link rel=\"shortcut icon\" href=\"/favicon.ico\"/>");
    EXPECT_EQ(Child<QPlainTextEdit>(dialog, "txtCode")->toPlainText(), markup);
    Click(dialog, "cmdCopy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), markup);

    Click(dialog, "cmdSave");
    EXPECT_EQ(presenter.Keys().size(), 1u);
    EXPECT_FALSE(ReadFileBytes(desktop / "favicon.ico").empty());

    // With the icons for phones the markup grows by their lines and Save (over the first,
    // after asking) writes them too.
    QTest::mouseClick(Child<QCheckBox>(dialog, "chkTouchIcons"), Qt::LeftButton);
    EXPECT_EQ(Child<QPlainTextEdit>(dialog, "txtCode")->toPlainText().count(QLatin1Char('\n')), 3);
    presenter.answers = {MessageAnswer::Yes};
    Click(dialog, "cmdSave");
    EXPECT_EQ(presenter.Keys().size(), 3u);
    for (const char* png : {"apple-touch-icon.png", "icon-192.png", "icon-512.png"})
        EXPECT_TRUE(std::filesystem::exists(desktop / png)) << png;
}

}  // namespace
}  // namespace iw::test
