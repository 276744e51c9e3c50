#include "ui/animation/SequenceDialog.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QUrl>
#include <QVBoxLayout>
#include <numeric>

#include "ui/UiText.h"
#include "ui/adapters/HelpLocation.h"
#include "ui/animation/AnimationTexts.h"
#include "ui/animation/FrameStrip.h"
#include "ui/dialogs/OkCancelButtons.h"

namespace iw::ui {
namespace {

namespace at = animation_texts;

// A strip in a scroll area that scrolls sideways only, as tall as the strip. A short strip
// is stretched to the area's width, so the film runs on to the edge.
QScrollArea* StripArea(FrameStrip* strip, QWidget* parent) {
    auto* area = new QScrollArea(parent);
    area->setWidget(strip);
    area->setWidgetResizable(true);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    const int bar = area->horizontalScrollBar()->sizeHint().height();
    area->setFixedHeight(strip->sizeHint().height() + bar + 2 * area->frameWidth());
    area->setMinimumWidth(480);
    return area;
}

}  // namespace

SequenceDialog::SequenceDialog(Editor& editor, QWidget* parent)
    : QDialog(parent), editor_(editor), sequence_(editor.Animation().EditSequence()) {
    setObjectName(QStr(at::kSequence));
    setWindowTitle(Tr(at::SequenceCaption));

    frames_ = new FrameStrip(editor.Set(), FrameStrip::Look::Frames, this);
    frames_->setObjectName(QStringLiteral("picFrames"));
    std::vector<int> all(static_cast<std::size_t>(sequence_.FrameCount()));
    std::iota(all.begin(), all.end(), 0);
    frames_->SetFrames(std::move(all));
    film_ = new FrameStrip(editor.Set(), FrameStrip::Look::Film, this);
    film_->setObjectName(QStringLiteral("picSequence"));
    film_->setCursor(Qt::OpenHandCursor);
    frames_->setCursor(Qt::OpenHandCursor);

    auto* framesLabel = new QLabel(Tr(at::FramesLabel), this);
    framesLabel->setObjectName(QStr(at::FramesLabel.key));
    QScrollArea* framesArea = StripArea(frames_, this);
    framesLabel->setBuddy(frames_);
    auto* filmLabel = new QLabel(Tr(at::SequenceLabel), this);
    filmLabel->setObjectName(QStr(at::SequenceLabel.key));
    filmArea_ = StripArea(film_, this);
    filmLabel->setBuddy(film_);
    auto* hint = new QLabel(Tr(at::SequenceHint), this);
    hint->setObjectName(QStr(at::SequenceHint.key));
    hint->setWordWrap(true);

    order_ = new QRadioButton(Tr(at::PlayInOrder), this);
    order_->setObjectName(QStr(at::PlayInOrder.key));
    useSequence_ = new QRadioButton(Tr(at::PlaySequence), this);
    useSequence_->setObjectName(QStr(at::PlaySequence.key));
    (sequence_.UseSequence() ? useSequence_ : order_)->setChecked(true);
    connect(useSequence_, &QRadioButton::toggled, this,
            [this](bool on) { sequence_.SetUseSequence(on); });

    QDialogButtonBox* buttons = OkCancelButtons(*this);
    QPushButton* help = buttons->addButton(Tr(at::Help), QDialogButtonBox::HelpRole);
    help->setObjectName(QStr(at::Help.key));
    // Without the user guide beside the program there is nothing to open.
    const QString page = HelpPage(QStringLiteral("Animated Cursors.htm"));
    help->setEnabled(!page.isEmpty());
    connect(help, &QPushButton::clicked, this,
            [page] { QDesktopServices::openUrl(QUrl::fromLocalFile(page)); });

    connect(frames_, &FrameStrip::DragStarted, this, [this](int cell) {
        draggedFrame_ = frames_->Frames()[static_cast<std::size_t>(cell)];
    });
    connect(film_, &FrameStrip::DragStarted, this, [this](int cell) { draggedStep_ = cell; });
    connect(frames_, &FrameStrip::AddPressed, this, [this](int cell) {
        const int end = static_cast<int>(sequence_.Steps().size());
        if (!sequence_.Insert(frames_->Frames()[static_cast<std::size_t>(cell)], end)) return;
        ShowSteps();
        film_->SetCurrent(end);
    });
    connect(film_, &FrameStrip::RemovePressed, this, [this](int step) {
        if (sequence_.Remove(step)) ShowSteps();
    });
    connect(film_, &FrameStrip::MovePressed, this, [this](int step, int gap) {
        if (!sequence_.Move(step, gap)) return;
        ShowSteps();
        film_->SetCurrent(gap > step ? gap - 1 : gap);
    });
    connect(frames_, &FrameStrip::DragMoved, this, &SequenceDialog::DragMoved);
    connect(film_, &FrameStrip::DragMoved, this, &SequenceDialog::DragMoved);
    connect(frames_, &FrameStrip::DragReleased, this, &SequenceDialog::DroppedFrame);
    connect(film_, &FrameStrip::DragReleased, this, &SequenceDialog::DroppedStep);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(framesLabel);
    layout->addWidget(framesArea);
    layout->addSpacing(6);
    layout->addWidget(filmLabel);
    layout->addWidget(filmArea_);
    layout->addWidget(hint);
    layout->addSpacing(6);
    layout->addWidget(order_);
    layout->addWidget(useSequence_);
    layout->addSpacing(6);
    layout->addWidget(buttons);
    ShowSteps();
}

int SequenceDialog::FilmGapAt(QPoint global) const {
    if (!filmArea_->viewport()->rect().contains(filmArea_->viewport()->mapFromGlobal(global)))
        return -1;
    return film_->GapAt(film_->mapFromGlobal(global));
}

void SequenceDialog::DragMoved(QPoint global) {
    const int gap = FilmGapAt(global);
    film_->ShowGap(gap);
    // Near either end of a long film strip it scrolls on.
    if (gap >= 0) {
        const QPoint point = film_->mapFromGlobal(global);
        filmArea_->ensureVisible(point.x(), point.y(), 40, 0);
    }
    // Out of the film strip, a step is taken away.
    const bool removing = draggedStep_ >= 0 && gap < 0;
    const Qt::CursorShape shape =
        removing ? Qt::ForbiddenCursor : (gap >= 0 ? Qt::DragMoveCursor : Qt::ClosedHandCursor);
    (draggedStep_ >= 0 ? film_ : frames_)->setCursor(shape);
}

void SequenceDialog::DroppedFrame(QPoint global) {
    const int gap = FilmGapAt(global);
    if (draggedFrame_ >= 0 && gap >= 0 && sequence_.Insert(draggedFrame_, gap)) ShowSteps();
    draggedFrame_ = -1;
    frames_->setCursor(Qt::OpenHandCursor);
    film_->ShowGap(-1);
}

void SequenceDialog::DroppedStep(QPoint global) {
    const int gap = FilmGapAt(global);
    const bool changed =
        gap >= 0 ? sequence_.Move(draggedStep_, gap) : sequence_.Remove(draggedStep_);
    if (changed) ShowSteps();
    draggedStep_ = -1;
    film_->setCursor(Qt::OpenHandCursor);
    film_->ShowGap(-1);
}

void SequenceDialog::ShowSteps() {
    film_->SetFrames(sequence_.Steps());
}

void SequenceDialog::accept() {
    const std::optional<SequenceChoice> choice = sequence_.Ok();
    if (!choice) return;  // the core has said why; the window stays
    editor_.Animation().ApplySequence(*choice);
    QDialog::accept();
}

}  // namespace iw::ui
