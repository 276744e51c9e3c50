// frmMessage: the suppress box is offered only when the core allows it, and ticking it
// silences the message from then on.
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include "WindowFixture.h"
#include "services/core/TextCatalog.h"
#include "ui/adapters/MessageWindow.h"

namespace iw::test {
namespace {

// What the test does with the next message window once it is up: tick the box (when
// there is one) and press a button. Records what the window showed.
struct WindowScript {
    bool tick = false;
    const char* button = "cmdOK";
    bool seen = false;
    bool hadBox = false;
    QString text;

    void ArmFor(QWidget* parent) {
        QTimer::singleShot(0, parent, [this] {
            auto* window = qobject_cast<ui::MessageWindow*>(QApplication::activeModalWidget());
            ASSERT_NE(window, nullptr);
            seen = true;
            text = window->findChild<QLabel*>(QStringLiteral("lblMessage"))->text();
            auto* box = window->findChild<QCheckBox*>(QStringLiteral("chkDontShow"));
            hadBox = box != nullptr;
            if (box && tick) box->setChecked(true);
            auto* push = window->findChild<QPushButton*>(QString::fromLatin1(button));
            ASSERT_NE(push, nullptr) << button;
            QTest::mouseClick(push, Qt::LeftButton);
        });
    }
};

TEST(MessageWindow, TheSuppressBoxComesOnlyWithMessagesThatMayBeSilenced) {
    QWidget parent;
    ui::MessagePresenter presenter(&parent);
    XmlStore store;
    MessageService messages(store, presenter);

    WindowScript hint;
    hint.tick = true;
    hint.ArmFor(&parent);
    EXPECT_EQ(messages.Show(texts::CreateCursor, MessageType::Information), MessageAnswer::Ok);
    EXPECT_TRUE(hint.seen);
    EXPECT_TRUE(hint.hadBox);
    EXPECT_EQ(hint.text.toStdString(), GetText(texts::CreateCursor));
    // Ticked: the next time it stays away (no window to answer).
    EXPECT_EQ(messages.Show(texts::CreateCursor, MessageType::Information), MessageAnswer::Ok);
    EXPECT_TRUE(messages.IsSuppressed("CreateCursor"));
}

}  // namespace
}  // namespace iw::test
