// The desktop windows driven through their widgets: the file types window's boxes and OK,
// the folder icon wizard setting a folder's icon and composing a new one, and the favicon
// wizard's Save (with its overwrite question) and Copy.
#include <QCheckBox>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <set>

#include "WindowFixture.h"
#include "document/io/IconFileReader.h"
#include "services/core/TextCatalog.h"
#include "services/desktop/AssociationCheck.h"
#include "support/PeBuilder.h"
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

template <typename T = QWidget>
T* Child(QWidget& parent, const char* name) {
    T* found = parent.findChild<T*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

void Click(QWidget& parent, const char* button) {
    QTest::mouseClick(Child<QPushButton>(parent, button), Qt::LeftButton);
}

std::vector<std::string> ShownKeys(const ScriptedPresenter& presenter) {
    std::vector<std::string> keys;
    for (const MessageBoxRequest& shown : presenter.shown)
        keys.push_back(shown.key);
    return keys;
}

using DesktopWindows = WindowTest;

TEST_F(DesktopWindows, FileTypesOkStoresTheBoxesAndRegistersOnlyCheckedTypesNotYetDefault) {
    Start();
    XmlStore& settings = editor().Settings().Store();
    settings.SetBool("Settings\\CheckANI", false);
    FakeAssociations associations;
    associations.defaults = {"ico"};
    ui::FileTypeDialog dialog(editor(), associations, window.get());
    auto* ico = Child<QCheckBox>(dialog, "chkICO");
    auto* cur = Child<QCheckBox>(dialog, "chkCUR");
    auto* ani = Child<QCheckBox>(dialog, "chkANI");
    EXPECT_TRUE(ico->isChecked());
    EXPECT_TRUE(cur->isChecked());
    EXPECT_FALSE(ani->isChecked());

    QTest::mouseClick(cur, Qt::LeftButton);
    QTest::mouseClick(ani, Qt::LeftButton);
    Click(dialog, "cmdOK");
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_TRUE(settings.GetBool("Settings\\CheckICO", false));
    EXPECT_FALSE(settings.GetBool("Settings\\CheckCUR", true));
    EXPECT_TRUE(settings.GetBool("Settings\\CheckANI", false));
    // "ico" is the program's already; "cur" is unchecked.
    EXPECT_EQ(associations.registered, std::vector<std::string_view>{"ani"});

    ui::FileTypeDialog again(editor(), associations, window.get());
    QTest::mouseClick(Child<QCheckBox>(again, "chkICO"), Qt::LeftButton);
    Click(again, "cmdCancel");
    EXPECT_TRUE(settings.GetBool("Settings\\CheckICO", false));
    EXPECT_EQ(associations.registered.size(), 1u);
}

struct FolderWizardTest : WindowTest {
    FolderWizardTest()
        : icons(platform::DesktopShell::Windows,
                [](const std::string&, const std::vector<std::string>&) {
                    return platform::ProgramRun{};
                }) {}
    FolderIcons icons;
};

TEST_F(FolderWizardTest, SettingAFolderIconAsksForTheFolderThenWritesItsFilesOnce) {
    Start();
    const std::filesystem::path folder = temp / "Pictures";
    std::filesystem::create_directories(folder);
    WriteFileBytes(folder / "desktop.ini", {'[', 'O', ']', '\r', '\n', 'k', '=', '1', '\r', '\n'});
    const std::filesystem::path icon = TestDataPath("interop/icotool-8bpp-48.ico");

    ui::FolderWizard wizard(editor(), icons, window.get());
    Click(wizard, "cmdNext");  // "Set the icon of a folder" is the first choice
    ASSERT_EQ(wizard.CurrentPage(), ui::FolderWizard::SetPage);
    Child<QLineEdit>(wizard, "txtIcon")->setText(QString::fromStdString(icon.string()));
    Click(wizard, "cmdFinish");
    EXPECT_EQ(ShownKeys(presenter), std::vector<std::string>{"SelectFolder"});
    EXPECT_EQ(ReadFileBytes(folder / "desktop.ini").size(), 10u);

    QTest::keyClicks(Child<QLineEdit>(wizard, "txtFolder"),
                     QString::fromStdString(folder.string()));
    EXPECT_EQ(Child<QLabel>(wizard, "lblCurrentIcon")->text(), QStringLiteral("[no icon]"));
    QTest::mouseClick(Child<QCheckBox>(wizard, "chkCopy"), Qt::LeftButton);
    Click(wizard, "cmdFinish");
    Click(wizard, "cmdFinish");  // a second run changes nothing
    EXPECT_EQ(wizard.result(), QDialog::Accepted);
    EXPECT_EQ(ReadFileBytes(folder / "folder.ico"), ReadFileBytes(icon));
    const std::vector<std::uint8_t> ini = ReadFileBytes(folder / "desktop.ini");
    EXPECT_EQ(std::string(ini.begin(), ini.end()),
              "[O]\r\nk=1\r\n[.ShellClassInfo]\r\nIconFile=folder.ico\r\nIconIndex=0\r\n");
    EXPECT_EQ(Child<QLabel>(wizard, "lblCurrentIcon")->text(), QStringLiteral("folder.ico"));
    EXPECT_EQ(ShownKeys(presenter),
              (std::vector<std::string>{"SelectFolder", "FolderIconSet", "FolderIconSet"}));
}

TEST_F(FolderWizardTest, AProgramWithSeveralIconsOffersTheirIndexesAndTheChosenOneIsWritten) {
    Start();
    std::vector<PeResourceSpec> resources = IconAndCursorGroups("1", "1", 1033);
    resources.push_back({14, 7, "", 1033, BuildGroupDirectory({{8, 8, 32, 1}})});
    const std::filesystem::path library = temp / "icons.dll";
    WriteFileBytes(library, BuildPeImage(BuildResourceSection(resources)));
    const std::filesystem::path folder = temp / "Projects";
    std::filesystem::create_directories(folder);

    ui::FolderWizard wizard(editor(), icons, window.get());
    Click(wizard, "cmdNext");
    auto* index = Child<QSpinBox>(wizard, "txtIndex");
    EXPECT_FALSE(index->isEnabled());
    Child<QLineEdit>(wizard, "txtFolder")->setText(QString::fromStdString(folder.string()));
    Child<QLineEdit>(wizard, "txtIcon")->setText(QString::fromStdString(library.string()));
    ASSERT_TRUE(index->isEnabled());
    EXPECT_EQ(index->maximum(), 1);  // two icon groups; the cursor group is no icon
    QTest::keyClick(index, Qt::Key_Up);
    Click(wizard, "cmdFinish");
    const std::vector<std::uint8_t> ini = ReadFileBytes(folder / "desktop.ini");
    EXPECT_EQ(std::string(ini.begin(), ini.end()),
              "[.ShellClassInfo]\r\nIconFile=" + library.string() + "\r\nIconIndex=1\r\n");
}

TEST_F(FolderWizardTest, ComposingRefusesAFieldOutOfRangeThenMakesTheNewDocument) {
    Start(TestDataPath("interop/magick-32bpp-16-256.ico").string());
    ui::FolderWizard wizard(editor(), icons, window.get());
    QTest::mouseClick(Child<QRadioButton>(wizard, "optCreate"), Qt::LeftButton);
    Click(wizard, "cmdNext");
    ASSERT_EQ(wizard.CurrentPage(), ui::FolderWizard::CreatePage);

    const std::array<std::pair<const char*, const char*>, 3> wrong = {
        {{"txtOffsetX", "49"}, {"txtAngle", "360"}, {"txtDensity", "x"}}};
    for (const auto& [field, text] : wrong) {
        auto* edit = Child<QLineEdit>(wizard, field);
        const QString good = edit->text();
        edit->setText(QString::fromLatin1(text));
        Click(wizard, "cmdFinish");
        edit->setText(good);
    }
    EXPECT_EQ(ShownKeys(presenter),
              (std::vector<std::string>{"Integer48", "Integer359", "Integer256"}));
    EXPECT_EQ(editor().Set().Count(), 7);  // the opened file is still the document

    Child<QLineEdit>(wizard, "txtAngle")->setText(QStringLiteral("30"));
    Click(wizard, "cmdFinish");
    EXPECT_EQ(wizard.result(), QDialog::Accepted);
    EXPECT_EQ(ShownKeys(presenter).back(), "CreateFolderIcon");
    EXPECT_FALSE(editor().Document().HasFileName());
    std::set<std::pair<int, int>> formats;  // (side, bits)
    for (int i = 0; i < editor().Set().Count(); ++i) {
        const auto& info = editor().Set().Image(i).info;
        formats.insert({info.Width(), info.bitCount});
    }
    EXPECT_EQ(
        formats,
        (std::set<std::pair<int, int>>{
            {16, 4}, {16, 8}, {16, 32}, {32, 4}, {32, 8}, {32, 32}, {48, 4}, {48, 8}, {48, 32}}));
}

TEST_F(DesktopWindows, FaviconSaveAsksBeforeOverwritingAndCopyTakesTheMarkupAsShown) {
    Start(TestDataPath("interop/icotool-8bpp-48.ico").string());
    const std::filesystem::path desktop = temp / "Desktop";
    ui::FaviconDialog dialog(editor(), desktop, window.get());
    EXPECT_EQ(Child<QPlainTextEdit>(dialog, "txtCode")->toPlainText(),
              QStringLiteral("<link rel=\"shortcut icon\" href=\"/favicon.ico\"/>"));
    Click(dialog, "cmdCopy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              QStringLiteral("<link rel=\"shortcut icon\" href=\"/favicon.ico\"/>"));

    Click(dialog, "cmdSave");
    ASSERT_EQ(presenter.shown.size(), 1u);
    EXPECT_EQ(presenter.shown[0].text,
              "Your icon has been saved as 'favicon.ico' on your Desktop.");
    const std::filesystem::path favicon = desktop / "favicon.ico";
    const std::vector<std::uint8_t> first = ReadFileBytes(favicon);
    EXPECT_FALSE(first.empty());

    editor().Document().NewDocument();  // a different icon; the answer No keeps the saved one
    presenter.answers = {MessageAnswer::No};
    Click(dialog, "cmdSave");
    ASSERT_EQ(presenter.shown.size(), 2u);
    EXPECT_EQ(presenter.shown[1].text, favicon.string() +
                                           "\nThis file already exists.  Would you like to "
                                           "overwrite it?");
    EXPECT_EQ(ReadFileBytes(favicon), first);

    // With the icons for phones the markup grows by their lines and Save writes them too.
    QTest::mouseClick(Child<QCheckBox>(dialog, "chkTouchIcons"), Qt::LeftButton);
    EXPECT_EQ(Child<QPlainTextEdit>(dialog, "txtCode")->toPlainText().count(QLatin1Char('\n')), 3);
    presenter.answers = {MessageAnswer::Yes};
    Click(dialog, "cmdSave");
    for (const char* png : {"apple-touch-icon.png", "icon-192.png", "icon-512.png"})
        EXPECT_TRUE(std::filesystem::exists(desktop / png)) << png;
}

}  // namespace
}  // namespace iw::test
