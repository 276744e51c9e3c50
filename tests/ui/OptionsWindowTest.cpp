// The options window and the template editor driven through their widgets: a row added in
// frmEditTemplate is saved and comes back in the template and in File > New from Template;
// shipped templates stay as they are; Clear Messages brings a silenced message back.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTreeWidget>

#include "WindowFixture.h"
#include "services/desktop/TemplateFile.h"

namespace iw::test {
namespace {

struct OptionsWindow : WindowTest {
    OptionsWindow() {
        TemplateEntry mine;  // 32 x 32 at 32 bits
        std::filesystem::create_directories(temp / "data" / "Templates");
        WriteTemplateFile(temp / "data" / "Templates" / "Mine.ini", {mine});
    }

    template <typename T>
    static T* In(QWidget& window, const char* name) {
        T* found = window.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    static void Click(QWidget& window, const char* button) {
        QTest::mouseClick(In<QPushButton>(window, button), Qt::LeftButton);
    }
    static void Type(QWidget& window, const char* box, const char* text) {
        auto* edit = In<QLineEdit>(window, box);
        edit->selectAll();
        QTest::keyClicks(edit, QString::fromLatin1(text));
    }
    // Selects a template of the Templates tab by its name.
    static void SelectTemplate(QWidget& options, const char* name) {
        auto* list = In<QTreeWidget>(options, "lstTemplates");
        const auto found = list->findItems(QString::fromLatin1(name), Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        list->setCurrentItem(found[0]);
    }
};

TEST_F(OptionsWindow, ARowAddedInTheTemplateEditorIsSavedAndMakesNewDocuments) {
    Start();
    bool edited = false;
    WhenShown("frmOptions", [&](QWidget& options) {
        // A shipped template is shown, after saying so, with nothing to change it.
        SelectTemplate(options, "Cursor");
        EXPECT_FALSE(In<QPushButton>(options, "cmdDelete")->isEnabled());
        WhenShown("frmEditTemplate", [&](QWidget& editor) {
            EXPECT_FALSE(In<QPushButton>(editor, "cmdAdd")->isEnabled());
            EXPECT_FALSE(In<QPushButton>(editor, "cmdSave")->isEnabled());
            EXPECT_FALSE(In<QLabel>(editor, "lblLocked")->isHidden());
            Click(editor, "cmdCancel");
        });
        Click(options, "cmdEdit");
        EXPECT_EQ(presenter.shown.back().text, "This template cannot be edited.");

        SelectTemplate(options, "Mine");
        WhenShown("frmEditTemplate", [&](QWidget& editor) {
            Type(editor, "txtWidth", "300");  // refused, told
            Click(editor, "cmdAdd");
            EXPECT_EQ(presenter.shown.back().text, "Please enter an integer between 1 and 256.");
            Type(editor, "txtWidth", "24");
            Type(editor, "txtHeight", "20");
            In<QComboBox>(editor, "cboColors")->setCurrentIndex(2);  // 256 Colors
            Click(editor, "cmdAdd");
            auto* rows = In<QTreeWidget>(editor, "lstFormats");
            EXPECT_EQ(rows->topLevelItemCount(), 2);
            EXPECT_EQ(rows->topLevelItem(1)->text(0), QStringLiteral("24 x 20"));
            EXPECT_EQ(rows->topLevelItem(1)->text(1), QStringLiteral("256 Colors"));
            Click(editor, "cmdMoveUp");
            Click(editor, "cmdSave");
            edited = true;
        });
        Click(options, "cmdEdit");
        // The list was read again: the template now has two formats.
        auto* list = In<QTreeWidget>(options, "lstTemplates");
        ASSERT_NE(list->currentItem(), nullptr);
        EXPECT_EQ(list->currentItem()->text(0), QStringLiteral("Mine"));
        EXPECT_EQ(list->currentItem()->text(1), QStringLiteral("2"));
        Click(options, "cmdOK");
    });
    Trigger("mnuOptions");
    ASSERT_TRUE(edited);
    const IconTemplate* mine = editor().Settings().Templates().Find("Mine");
    ASSERT_NE(mine, nullptr);
    ASSERT_EQ(mine->entries.size(), 2u);
    EXPECT_EQ(mine->entries[0].Width(), 24);
    EXPECT_EQ(mine->entries[0].Height(), 20);
    EXPECT_EQ(mine->entries[0].bits, 8);
    EXPECT_EQ(ReadTemplateFile(mine->path), mine->entries);

    // File > New from Template: the list as it is now; ask-to-save first, as New does.
    auto* menu = Find<QMenu>("mnuNewTemplate");
    emit menu->aboutToShow();
    QAction* chosen = nullptr;
    for (QAction* action : menu->actions()) {
        if (action->property("tag").toString() == QStringLiteral("Mine")) chosen = action;
    }
    ASSERT_NE(chosen, nullptr);
    ChooseFromPalette(PackColor(255, 0, 0));
    QTest::keyClick(window.get(), Qt::Key_P);
    Stroke({{1, 1}});
    presenter.answers = {MessageAnswer::Cancel};
    chosen->trigger();
    EXPECT_EQ(presenter.shown.back().key, "SaveUntitled");
    EXPECT_EQ(editor().Set().Count(), 1);
    presenter.answers = {MessageAnswer::No};
    chosen->trigger();
    ASSERT_EQ(editor().Set().Count(), 2);
    EXPECT_EQ(editor().Set().Info(0).Width(), 24);
    EXPECT_EQ(editor().Set().Info(1).Width(), 32);
}

TEST_F(OptionsWindow, ClearMessagesActsAtOnceAndTheGeneralChoicesOnOK) {
    Start();
    editor().Settings().Messages().Store().SetBool("Messages\\CreateCursor", true);
    const std::size_t before = presenter.shown.size();
    ASSERT_TRUE(editor().Document().NewCursor());
    ASSERT_EQ(presenter.shown.size(), before);  // silenced

    // The General choices wait for OK; clearing the messages does not.
    const auto chooseGeneral = [](QWidget& options) {
        In<QComboBox>(options, "cboBlankIcon")->setCurrentIndex(2);
        In<QCheckBox>(options, "chkSplash")->setChecked(false);
    };
    WhenShown("frmOptions", [&](QWidget& options) {
        chooseGeneral(options);
        Click(options, "cmdClearMessages");
        EXPECT_FALSE(In<QPushButton>(options, "cmdClearMessages")->isEnabled());
        Click(options, "cmdCancel");
    });
    Trigger("mnuOptions");
    EXPECT_EQ(editor().Settings().Window().blankIcon, 0);
    EXPECT_TRUE(editor().Settings().Window().splash);
    ASSERT_TRUE(editor().Document().NewCursor());
    ASSERT_EQ(presenter.shown.size(), before + 1);
    EXPECT_EQ(presenter.shown.back().key, "CreateCursor");

    WhenShown("frmOptions", [&](QWidget& options) {
        chooseGeneral(options);
        Click(options, "cmdOK");
    });
    Trigger("mnuOptions");
    EXPECT_EQ(editor().Settings().Window().blankIcon, 2);
    EXPECT_FALSE(editor().Settings().Window().splash);
}

}  // namespace
}  // namespace iw::test
