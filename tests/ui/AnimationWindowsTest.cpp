// The animated cursor's windows driven as a user would: frames dragged into the sequence
// editor's film strip, along it and out of it, then OK stores the sequence.
#include <QPushButton>
#include <QRadioButton>

#include "WindowFixture.h"
#include "document/io/AnimatedCursor.h"
#include "ui/animation/FrameStrip.h"
#include "ui/animation/SequenceDialog.h"

namespace iw::test {
namespace {

struct AnimationWindows : WindowTest {
    // Three 16 x 16 frames of their own colours and rates 5, 10 and 15, opened.
    void OpenThreeFrames() {
        IconSet set;
        set.mode = FileMode::ANI;
        for (int i = 0; i < 3; ++i) {
            const int frame = set.AddIcon(15, 15, 32);
            set.Info(frame).rate = static_cast<std::int16_t>(5 * (i + 1));
            for (int x = 0; x < 16; ++x) {
                for (int y = 0; y < 16; ++y) {
                    set.Image(frame).Color(x, y) = PackColor(80 * i, 40, 200 - 80 * i);
                    set.Image(frame).Alpha(x, y) = 255;
                }
            }
        }
        MessageFixture messages;
        RecordingProgress progress;
        RecordingLog log;
        CoreContext context{messages.service, progress, log};
        const std::string path = (temp / "three.ani").string();
        ASSERT_TRUE(WriteAnimatedCursor(path, set, context));
        Start(path);
        ASSERT_EQ(editor().Set().Count(), 3);
    }
    // Presses on a cell of `from` and lets go over `to` at `where` (its own coordinates).
    void Drag(ui::FrameStrip* from, int cell, QWidget* to, QPoint where) {
        const QPoint start = from->CellRect(cell).center();
        const QPoint end = from->mapFromGlobal(to->mapToGlobal(where));
        QTest::mousePress(from, Qt::LeftButton, Qt::NoModifier, start);
        QTest::mouseMove(from, (start + end) / 2);
        QTest::mouseMove(from, end);
        QTest::mouseRelease(from, Qt::LeftButton, Qt::NoModifier, end);
    }
    // The left edge of a film strip cell: a drop there goes before it.
    static QPoint Before(ui::FrameStrip* film, int cell) {
        return film->CellRect(cell).center() - QPoint(film->CellRect(cell).width() / 3, 0);
    }
};

TEST_F(AnimationWindows, SequenceEditorOkStoresTheFilmStripAsTheSequence) {
    OpenThreeFrames();
    EXPECT_TRUE(presenter.shown.empty());
    Trigger("mnuSequenceEditor");
    auto* dialog = Find<ui::SequenceDialog>("frmSequence");
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog));
    ui::FrameStrip* frames = dialog->Frames();
    ui::FrameStrip* film = dialog->Film();
    EXPECT_EQ(film->Frames(), (std::vector<int>{0, 1, 2}));

    Drag(frames, 2, film, Before(film, 0));  // the third frame to the front
    EXPECT_EQ(film->Frames(), (std::vector<int>{2, 0, 1, 2}));
    Drag(film, 3, frames, frames->CellRect(0).center());  // the last step out
    EXPECT_EQ(film->Frames(), (std::vector<int>{2, 0, 1}));
    Drag(film, 1, film, film->CellRect(2).center() + QPoint(film->CellRect(2).width() / 3, 0));
    EXPECT_EQ(film->Frames(), (std::vector<int>{2, 1, 0}));
    EXPECT_FALSE(window->isWindowModified());

    // On the option's indicator: the button is wider than what takes a click.
    auto* useSequence = dialog->findChild<QRadioButton*>(QStringLiteral("optSequence"));
    QTest::mouseClick(useSequence, Qt::LeftButton, {}, QPoint(8, useSequence->height() / 2));
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(editor().Set().properties.sequence, "2,1,0,");
    EXPECT_TRUE(editor().Set().animation.sequenceInUse);
    EXPECT_EQ(editor().Set().animation.ratesText, "15|10|5");
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_TRUE(presenter.shown.empty());
}

}  // namespace
}  // namespace iw::test
