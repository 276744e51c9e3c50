// frmMessage: the suppress box offered with a message the core lets the user silence, and
// ticking it silences the message from then on (AdaptersTest: no box with the others).
#include <QCheckBox>
#include <QLabel>
#include <QTimer>

#include "WindowFixture.h"
#include "services/core/TextCatalog.h"
#include "ui/adapters/MessageWindow.h"

namespace iw::test {
namespace {

TEST(MessageWindow, TheSuppressBoxTickedSilencesTheMessageFromThenOn) {
    QWidget parent;
    ui::MessagePresenter presenter(&parent);
    XmlStore store;
    MessageService messages(store, presenter);
    QString shown;
    QTimer::singleShot(0, &parent, [&shown] {
        QWidget* window = QApplication::activeModalWidget();
        ASSERT_NE(qobject_cast<ui::MessageWindow*>(window), nullptr);
        shown = Child<QLabel>(*window, "lblMessage")->text();
        auto* box = Child<QCheckBox>(*window, "chkDontShow");
        ASSERT_NE(box, nullptr);  // CreateCursor may be silenced
        box->setChecked(true);
        Click(*window, "cmdOK");
    });
    EXPECT_EQ(messages.Show(texts::CreateCursor, MessageType::Information), MessageAnswer::Ok);
    EXPECT_EQ(shown.toStdString(), GetText(texts::CreateCursor));
    // Ticked: the next time it stays away (no window to answer).
    EXPECT_EQ(messages.Show(texts::CreateCursor, MessageType::Information), MessageAnswer::Ok);
    EXPECT_TRUE(messages.IsSuppressed("CreateCursor"));
}

}  // namespace
}  // namespace iw::test
