// The windows around the set's images driven as a user would: the icon list's menu with
// frmAttributes (add, remove, move), the mode menu, the start-up dialog's new icon of any
// size, and frmGroups on a real library.
#include <QMenu>
#include <QPointer>
#include <QRadioButton>
#include <QTreeWidget>
#include <functional>

#include "WindowFixture.h"
#include "document/io/ProgramIcons.h"
#include "imaging/ColorMapping.h"
#include "ui/widgets/IconListView.h"

namespace iw::test {
namespace {

// Fills frmAttributes and presses OK.
void FillAttributes(QWidget& dialog, const char* width, const char* height, int bits) {
    Retype(dialog, "txtWidth", QString::fromLatin1(width));
    Retype(dialog, "txtHeight", QString::fromLatin1(height));
    for (QRadioButton* option : dialog.findChildren<QRadioButton*>(QStringLiteral("optDepth"))) {
        if (option->property("tag").toInt() == bits) QTest::mouseClick(option, Qt::LeftButton);
    }
    Click(dialog, "cmdOK");
}

// Each image's width, height and depth, in order.
std::string SizesOf(const IconSet& set) {
    std::string sizes;
    for (int i = 0; i < set.Count(); ++i) {
        const IconInfo& info = set.Info(i);
        sizes += std::to_string(info.Width()) + "x" + std::to_string(info.Height()) + "x" +
                 std::to_string(info.bitCount) + " ";
    }
    return sizes;
}

struct ImageListWindows : WindowTest {
    ui::IconListView* List() { return Find<ui::IconListView>("picIcons"); }

    // A right click on row `row` of the icon list, then `act` on its menu once it pops up.
    void ListMenu(int row, std::function<void(QMenu*)> act) {
        int done = 0;
        WhenShown("mnuIconList", [act, &done](QWidget& menu) {
            act(qobject_cast<QMenu*>(&menu));
            ++done;
        });
        ui::IconListView* list = List();
        const QPoint at = list->visualRect(list->model()->index(row, 0)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, list->viewport()->mapToGlobal(at));
        QApplication::sendEvent(list->viewport(), &event);
        EXPECT_EQ(done, 1);
    }
    static void Choose(QMenu* menu, const char* action) {
        QAction* item = menu->findChild<QAction*>(QString::fromLatin1(action));
        ASSERT_NE(item, nullptr) << action;
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                          menu->actionGeometry(item).center());
    }
    std::string Sizes() { return SizesOf(editor().Set()); }
};

// frmAttributes behind the start-up tile; the icon list's menu adding, moving and removing
// images; then frmAttributes behind Change Attributes (which asks first and converts the edited
// image's pixels to the new depth).
TEST_F(ImageListWindows, TheAttributesWindowAndTheListMenuChangeTheImages) {
    Start();
    WhenShown("frmStartup", [](QWidget& startup) {
        WhenShown("frmAttributes", [](QWidget& dialog) { FillAttributes(dialog, "40", "24", 4); });
        Click(startup, "cmdNewSize");
    });
    window->ShowStartupDialog();  // returns once the tile closed the dialog
    EXPECT_EQ(Sizes(), "40x24x4 ");
    EXPECT_FALSE(window->isWindowModified());

    WhenShown("frmAttributes", [](QWidget& dialog) { FillAttributes(dialog, "16", "16", 8); });
    ListMenu(0, [](QMenu* menu) { Choose(menu, "mnuAddFormat"); });
    EXPECT_EQ(Sizes(), "40x24x4 16x16x8 ");  // in the standard order, and edited
    EXPECT_EQ(List()->model()->rowCount(), 2);
    EXPECT_TRUE(window->isWindowModified());

    // Move Up on the last row, then Move Down from the mode menu on the edited image.
    ListMenu(1, [](QMenu* menu) {
        EXPECT_FALSE(menu->findChild<QAction*>(QStringLiteral("mnuMoveDown"))->isEnabled());
        Choose(menu, "mnuMoveUp");
    });
    EXPECT_EQ(Sizes(), "16x16x8 40x24x4 ");
    Trigger("mnuMoveDown");  // the edited image moved up with the row: Move Down takes it back
    EXPECT_EQ(Sizes(), "40x24x4 16x16x8 ");

    // Remove Icon on the image not edited.
    ListMenu(0, [](QMenu* menu) { Choose(menu, "mnuRemoveIcon"); });
    EXPECT_EQ(Sizes(), "16x16x8 ");
    EXPECT_EQ(List()->model()->rowCount(), 1);

    const PackedColor orange = PackColor(255, 128, 0);
    editor().Tools().SetForeColor(orange);
    Stroke({{2, 2}});
    presenter.answers = {MessageAnswer::Yes};
    WhenShown("frmAttributes", [](QWidget& dialog) { FillAttributes(dialog, "24", "20", 1); });
    Trigger("mnuAttributes");
    EXPECT_EQ(presenter.shown.back().key, "ChangeAttributes");
    EXPECT_EQ(Sizes(), "24x20x1 ");
    EXPECT_EQ(PixelAt({2, 2}), ConvertToMonoColor(orange));
}

struct ProgramGroups : ImageListWindows {
    ProgramGroups() {
        std::filesystem::copy_file(std::filesystem::path(IW_PE_PROGRAMS_DIR) / "programs64.dll",
                                   library);
        files.openPath = library.string();
        presenter.answers = {MessageAnswer::Yes};  // "OpenEXE"
        program = ProgramFile::Open(library.string());
    }
    // The further windows go first; each takes its own menus (top-level widgets) with it.
    ~ProgramGroups() override {
        for (const QPointer<ui::MainWindow>& other : Others())
            delete other.data();
    }
    std::vector<QPointer<ui::MainWindow>> Others() const {
        std::vector<QPointer<ui::MainWindow>> others;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            auto* other = qobject_cast<ui::MainWindow*>(widget);
            if (other && other != window.get()) others.emplace_back(other);
        }
        return others;
    }
    // Opens the library and answers frmGroups with `act`.
    void OpenWith(std::function<void(QWidget&)> act) {
        int done = 0;
        WhenShown("frmGroups", [&done, act](QWidget& dialog) {
            act(dialog);
            ++done;
        });
        Trigger("mnuOpen");
        ASSERT_TRUE(QTest::qWaitFor([&] { return done == 1; }));
    }
    std::ptrdiff_t Asked(const std::string& key) const {
        const std::vector<std::string> keys = presenter.Keys();
        return std::count(keys.begin(), keys.end(), key);
    }
    // The images of a group in a language as the reader gives them.
    std::string GroupSizes(int group, std::optional<std::uint16_t> language = std::nullopt) {
        IconSet set;
        CoreContext context{editor().Settings().Messages(), progress, log};
        EXPECT_TRUE(program->ReadGroup(group, language, set, context));
        return SizesOf(set);
    }

    std::filesystem::path library = temp / "lib.dll";
    std::optional<ProgramFile> program;
    NullProgress progress;
    NullLog log;
};

// Group 1 of the library comes in two languages, each with images of its own: the row of
// the second language opens that one. Open All then gives every further group and language a
// window of its own.
TEST_F(ProgramGroups, TheChosenRowOpensAndOpenAllGivesEveryOtherGroupAWindow) {
    Start();
    ASSERT_TRUE(program);
    const std::vector<std::uint16_t>& languages = program->Groups()[1].languages;
    ASSERT_EQ(languages.size(), 2u);
    ASSERT_NE(GroupSizes(1, languages[0]), GroupSizes(1, languages[1]));
    OpenWith([&](QWidget& dialog) {
        auto* groups = Child<QTreeWidget>(dialog, "lstGroups");
        EXPECT_EQ(groups->currentItem(), groups->topLevelItem(0));  // the group shown
        QTreeWidgetItem* second = groups->topLevelItem(2);
        EXPECT_EQ(second->text(1), QString::number(languages[1]));
        groups->setCurrentItem(second);
        Click(dialog, "cmdOpen");
    });
    EXPECT_EQ(Sizes(), GroupSizes(1, languages[1]));
    EXPECT_EQ(editor().Document().ProgramPath(), library.string());
    EXPECT_EQ(Asked("OpenEXE"), 1);
    EXPECT_EQ(List()->model()->rowCount(), editor().Set().Count());

    presenter.answers = {MessageAnswer::Yes};  // "OpenEXE" again
    OpenWith([](QWidget& dialog) { Click(dialog, "cmdOpenAll"); });
    EXPECT_EQ(Sizes(), GroupSizes(0));
    std::vector<std::string> others;
    for (const QPointer<ui::MainWindow>& other : Others())
        others.push_back(SizesOf(other->GetEditor().Set()));
    std::vector<std::string> expected;  // every group in every language but the first
    for (int group = 0; group < static_cast<int>(program->Groups().size()); ++group) {
        for (const std::uint16_t language : program->Groups()[group].languages) {
            if (group > 0 || language != program->Groups()[0].language)
                expected.push_back(GroupSizes(group, language));
        }
    }
    std::sort(others.begin(), others.end());
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(others, expected);
    EXPECT_EQ(Asked("OpenEXE"), 2);  // once for each Open, never in the further windows
}

}  // namespace
}  // namespace iw::test
