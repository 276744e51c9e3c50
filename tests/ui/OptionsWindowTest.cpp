// The options window and the template editor driven through their widgets: a row added in
// frmEditTemplate is saved and comes back in the template and in File > New from Template;
// Clear Messages brings a silenced message back at once; the General choices wait for OK.
#include <QCheckBox>
#include <QComboBox>
#include <QMenu>
#include <QTreeWidget>

#include "WindowFixture.h"
#include "services/desktop/TemplateFile.h"

namespace iw::test {
namespace {

using OptionsWindow = WindowTest;

// Also on that visit: Clear Messages acts at once, the General choices wait for OK.
TEST_F(OptionsWindow, ARowAddedInTheTemplateEditorIsSavedAndTheGeneralChoicesTakeOk) {
    std::filesystem::create_directories(temp / "data" / "Templates");
    WriteTemplateFile(temp / "data" / "Templates" / "Mine.ini", {TemplateEntry{}});  // 32 x 32
    Start();
    editor().Settings().Messages().Store().SetBool("Messages\\CreateCursor", true);
    bool edited = false;
    WhenShown("frmOptions", [&](QWidget& options) {
        auto* list = Child<QTreeWidget>(options, "lstTemplates");
        const auto found = list->findItems(QStringLiteral("Mine"), Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1);
        list->setCurrentItem(found[0]);
        WhenShown("frmEditTemplate", [&](QWidget& editor) {
            Retype(editor, "txtWidth", QStringLiteral("24"));
            Retype(editor, "txtHeight", QStringLiteral("20"));
            Child<QComboBox>(editor, "cboColors")->setCurrentIndex(2);  // 256 Colors
            Click(editor, "cmdAdd");
            auto* rows = Child<QTreeWidget>(editor, "lstFormats");
            EXPECT_EQ(rows->topLevelItem(1)->text(0), QStringLiteral("24 x 20"));
            Click(editor, "cmdMoveUp");
            Click(editor, "cmdSave");
            edited = true;
        });
        Click(options, "cmdEdit");
        // The list was read again: the template now has two formats.
        ASSERT_NE(list->currentItem(), nullptr);
        EXPECT_EQ(list->currentItem()->text(0), QStringLiteral("Mine"));
        EXPECT_EQ(list->currentItem()->text(1), QStringLiteral("2"));

        Child<QComboBox>(options, "cboBlankIcon")->setCurrentIndex(2);
        Child<QCheckBox>(options, "chkSplash")->setChecked(false);
        Click(options, "cmdClearMessages");
        EXPECT_FALSE(Child(options, "cmdClearMessages")->isEnabled());
        EXPECT_FALSE(editor().Settings().Messages().IsSuppressed("CreateCursor"));
        EXPECT_EQ(editor().Settings().Window().blankIcon, 0);
        Click(options, "cmdOK");
    });
    Trigger("mnuOptions");
    ASSERT_TRUE(edited);
    EXPECT_EQ(editor().Settings().Window().blankIcon, 2);
    EXPECT_FALSE(editor().Settings().Window().splash);
    const IconTemplate* mine = editor().Settings().Templates().Find("Mine");
    ASSERT_NE(mine, nullptr);
    ASSERT_EQ(mine->entries.size(), 2u);
    EXPECT_EQ(
        std::tuple(mine->entries[0].Width(), mine->entries[0].Height(), mine->entries[0].bits),
        std::tuple(24, 20, 8));
    EXPECT_EQ(ReadTemplateFile(mine->path), mine->entries);

    // File > New from Template: the list as it is now.
    auto* menu = Find<QMenu>("mnuNewTemplate");
    emit menu->aboutToShow();
    QAction* chosen = nullptr;
    for (QAction* action : menu->actions()) {
        if (action->property("tag").toString() == QStringLiteral("Mine")) chosen = action;
    }
    ASSERT_NE(chosen, nullptr);
    chosen->trigger();
    EXPECT_EQ(editor().Set().Info(0).Width(), 24);  // the template's first row now
}

}  // namespace
}  // namespace iw::test
