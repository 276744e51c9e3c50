// The small translations between Qt and the core: the command line, the file dialogs'
// filters, and the message window's buttons and answers.
#include <QCheckBox>
#include <QDir>
#include <QPushButton>

#include "WindowFixture.h"
#include "ui/adapters/CommandLineText.h"
#include "ui/adapters/MessageWindow.h"

namespace iw::test {
namespace {

TEST(CommandLineText, FilesBecomeAbsoluteAndQuotedAndLogStaysAsGiven) {
    const QString here = QDir::currentPath();
    const std::vector<std::pair<QStringList, QString>> cases = {
        {{"iconwright"}, ""},
        {{"iconwright", "/log"}, "/log"},
        {{"iconwright", "/tmp/a.ico"}, "/tmp/a.ico"},
        {{"iconwright", "/tmp/x/../a b.ico", "/LOG"}, "\"/tmp/a b.ico\" /LOG"},
        {{"iconwright", "rel.cur"}, QDir::cleanPath(here + "/rel.cur")},
        {{"iconwright", "", "/log"}, "/log"},
    };
    for (const auto& [arguments, text] : cases) {
        EXPECT_EQ(ui::EditorCommandLine(arguments), text) << arguments.join(' ').toStdString();
    }
}

TEST(FileFilters, TheProgramsFilterTextBecomesQtsNameFilters) {
    EXPECT_EQ(ui::QtNameFilters("Icon Files (*.ico)|*.ico"), QStringList{"Icon Files (*.ico)"});
    // The name's own list of patterns is replaced by the patterns that follow it.
    EXPECT_EQ(ui::QtNameFilters("All (*.ico, *.cur)|*.ico;*.cur|Any|*"),
              (QStringList{"All (*.ico *.cur)", "Any (*)"}));
    EXPECT_TRUE(ui::QtNameFilters("").isEmpty());
    EXPECT_TRUE(ui::QtNameFilters("No patterns").isEmpty());
}

// Each button of each kind of box gives its own answer; closed without a button, a box
// gives its safe answer.
TEST(MessageWindow, EveryButtonGivesItsAnswerAndClosingTheSafeOne) {
    const std::vector<std::tuple<MessageButtons, const char*, MessageAnswer>> cases = {
        {MessageButtons::Ok, "cmdOK", MessageAnswer::Ok},
        {MessageButtons::OkCancel, "cmdOK", MessageAnswer::Ok},
        {MessageButtons::OkCancel, "cmdCancel", MessageAnswer::Cancel},
        {MessageButtons::YesNo, "cmdYes", MessageAnswer::Yes},
        {MessageButtons::YesNo, "cmdNo", MessageAnswer::No},
        {MessageButtons::YesNoCancel, "cmdYes", MessageAnswer::Yes},
        {MessageButtons::YesNoCancel, "cmdNo", MessageAnswer::No},
        {MessageButtons::YesNoCancel, "cmdCancel", MessageAnswer::Cancel},
    };
    for (const auto& [buttons, name, answer] : cases) {
        SCOPED_TRACE(name);
        MessageBoxRequest request;
        request.text = "?";
        request.title = "Title";
        request.buttons = buttons;
        ui::MessageWindow window(request);
        EXPECT_EQ(window.windowTitle(), QStringLiteral("Title"));
        EXPECT_EQ(window.findChild<QCheckBox*>(QStringLiteral("chkDontShow")), nullptr);
        const int count =
            buttons == MessageButtons::Ok ? 1 : (buttons == MessageButtons::YesNoCancel ? 3 : 2);
        EXPECT_EQ(window.findChildren<QPushButton*>().size(), count);
        auto* push = window.findChild<QPushButton*>(QString::fromLatin1(name));
        ASSERT_NE(push, nullptr);
        QTest::mouseClick(push, Qt::LeftButton);
        EXPECT_EQ(window.Result().answer, answer);
        EXPECT_FALSE(window.Result().suppressInFuture);
        ui::MessageWindow closed(request);
        closed.reject();
        EXPECT_EQ(closed.Result().answer, buttons == MessageButtons::Ok ? MessageAnswer::Ok
                                          : buttons == MessageButtons::YesNo
                                              ? MessageAnswer::No
                                              : MessageAnswer::Cancel);
    }
}

}  // namespace
}  // namespace iw::test
