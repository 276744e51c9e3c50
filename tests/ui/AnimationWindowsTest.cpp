// The animated cursor's windows driven as a user would: frames dragged into the sequence
// editor's film strip, along it and out of it, then OK stores the sequence; rates typed into
// the properties in either unit; the preview stepped through the sequence.
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "WindowFixture.h"
#include "document/io/AnimatedCursor.h"
#include "support/TestImages.h"
#include "ui/animation/FrameStrip.h"
#include "ui/animation/FrameView.h"
#include "ui/animation/PropertiesDialog.h"
#include "ui/animation/SequenceDialog.h"

namespace iw::test {
namespace {

struct AnimationWindows : WindowTest {
    // 16 x 16 frames of their own colours and these rates, opened.
    void OpenFrames(const std::vector<int>& rates, const std::string& sequence = "") {
        IconSet set;
        set.mode = FileMode::ANI;
        set.properties.sequence = sequence;
        set.animation.sequenceInUse = !sequence.empty();
        for (int i = 0; i < static_cast<int>(rates.size()); ++i) {
            const PackedColor color = PackColor(80 * i, 40, 200 - 80 * i);
            set.InsertIcon(i, MakeImage(16, 16, 32, [color](int, int) { return color; }));
            set.Info(i).rate = static_cast<std::int16_t>(rates[static_cast<std::size_t>(i)]);
        }
        CoreFixture core;
        const std::string path = (temp / "frames.ani").string();
        ASSERT_TRUE(WriteAnimatedCursor(path, set, core.context));
        Start(path);
        ASSERT_EQ(editor().Set().Count(), static_cast<int>(rates.size()));
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
};

TEST_F(AnimationWindows, SequenceEditorOkStoresTheFilmStripAsTheSequence) {
    OpenFrames({5, 10, 15});
    Trigger("mnuSequenceEditor");
    auto* dialog = Find<ui::SequenceDialog>("frmSequence");
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog));
    ui::FrameStrip* frames = dialog->Frames();
    ui::FrameStrip* film = dialog->Film();
    EXPECT_EQ(film->Frames(), (std::vector<int>{0, 1, 2}));

    // The third frame to the front: dropped on the left edge of the first cell.
    Drag(frames, 2, film, film->CellRect(0).center() - QPoint(film->CellRect(0).width() / 3, 0));
    EXPECT_EQ(film->Frames(), (std::vector<int>{2, 0, 1, 2}));
    Drag(film, 3, frames, frames->CellRect(0).center());  // the last step out
    EXPECT_EQ(film->Frames(), (std::vector<int>{2, 0, 1}));
    Drag(film, 1, film, film->CellRect(2).center() + QPoint(film->CellRect(2).width() / 3, 0));
    EXPECT_EQ(film->Frames(), (std::vector<int>{2, 1, 0}));
    EXPECT_FALSE(window->isWindowModified());

    // On the option's indicator: the button is wider than what takes a click.
    auto* useSequence = dialog->findChild<QRadioButton*>(QStringLiteral("optSequence"));
    QTest::mouseClick(useSequence, Qt::LeftButton, {}, QPoint(8, useSequence->height() / 2));
    Click(*dialog, "cmdOK");
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(editor().Set().properties.sequence, "2,1,0,");
    EXPECT_TRUE(editor().Set().animation.sequenceInUse);
    EXPECT_TRUE(window->isWindowModified());
}

TEST_F(AnimationWindows, PropertiesStoreTheNameAndRatesTypedInEitherUnit) {
    OpenFrames({6, 6, 12, 6});
    Trigger("mnuProperties");
    auto* dialog = Find<ui::PropertiesDialog>("frmANIProperties");
    ASSERT_NE(dialog, nullptr);
    std::map<int, QLineEdit*> rate;  // by the frame's number from 1
    for (QLineEdit* box : dialog->findChildren<QLineEdit*>(QStringLiteral("txtRate")))
        rate[box->property("tag").toInt()] = box;
    ASSERT_EQ(rate.size(), 4u);
    const auto retype = [](QWidget* box, const char* text) {
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(box, QString::fromLatin1(text));
    };
    Retype(*dialog, "txtName", QStringLiteral("Busy"));
    retype(rate[4], "9");  // frame 4 goes its own way; frames 1 and 2 follow the default
    Retype(*dialog, "txtDefaultRate", QStringLiteral("30"));
    QTest::keyClick(Child(*dialog, "cboUnit"), Qt::Key_Down);
    EXPECT_EQ(rate[2]->text(), "0.5");
    retype(rate[3], "1.25");
    Click(*dialog, "cmdOK");
    EXPECT_EQ(dialog->result(), QDialog::Accepted);  // no rate refused
    const IconSet& set = editor().Set();
    EXPECT_EQ(set.properties.name, "Busy");
    std::vector<int> rates;
    for (int i = 0; i < set.Count(); ++i)
        rates.push_back(set.Info(i).rate);
    EXPECT_EQ(rates, (std::vector<int>{30, 30, 75, 9}));
    EXPECT_TRUE(window->isWindowModified());
}

TEST_F(AnimationWindows, PreviewStepsThroughTheSequenceAndPausesToStep) {
    OpenFrames({5, 5, 5}, "2,0,2,1,");
    presenter.shown.clear();  // the notice of the sequence
    Trigger("mnuPreviewANI");
    QWidget* dialog = Find("frmPreviewANI");
    ASSERT_NE(dialog, nullptr);
    auto* zoomed = Child<ui::FrameView>(*dialog, "picZoomed");
    auto* play = Child<QPushButton>(*dialog, "cmdPlay");
    const auto click = [dialog](const char* name) { Click(*dialog, name); };
    EXPECT_EQ(play->text(), "&Pause");
    click("cmdPlay");  // paused before its timer could move it on
    EXPECT_EQ(play->text(), "&Play");
    std::vector<int> shown{zoomed->Frame()};
    for (const char* button : {"cmdStep", "cmdStep", "cmdStep", "cmdStepBack"}) {
        click(button);
        shown.push_back(zoomed->Frame());
    }
    EXPECT_EQ(shown, (std::vector<int>{2, 0, 2, 1, 2}));
    EXPECT_EQ(Child<ui::FrameView>(*dialog, "picActual")->Frame(), 2);
    click("cmdPlay");
    EXPECT_EQ(play->text(), "&Pause");
}

}  // namespace
}  // namespace iw::test
