// The desktop windows driven through their widgets: the file types window's boxes and OK.
#include <QCheckBox>
#include <QPushButton>
#include <set>

#include "WindowFixture.h"
#include "services/desktop/AssociationCheck.h"
#include "ui/desktop/FileTypeDialog.h"

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

}  // namespace
}  // namespace iw::test
