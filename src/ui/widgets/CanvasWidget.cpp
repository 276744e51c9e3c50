#include "ui/widgets/CanvasWidget.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimerEvent>
#include <cmath>

#include "ui/UiText.h"
#include "ui/widgets/CanvasPainter.h"
#include "ui/widgets/ToolCursors.h"

namespace iw::ui {
namespace {

std::optional<MouseButton> ButtonOf(Qt::MouseButton button) {
    if (button == Qt::LeftButton) return MouseButton::Left;
    if (button == Qt::RightButton) return MouseButton::Right;
    return std::nullopt;
}

KeyModifiers ModifiersOf(Qt::KeyboardModifiers modifiers) {
    return {modifiers.testFlag(Qt::ShiftModifier), modifiers.testFlag(Qt::ControlModifier),
            modifiers.testFlag(Qt::AltModifier)};
}

std::optional<CanvasKey> CanvasKeyOf(int key) {
    switch (key) {
        case Qt::Key_Left:
            return CanvasKey::Left;
        case Qt::Key_Right:
            return CanvasKey::Right;
        case Qt::Key_Up:
            return CanvasKey::Up;
        case Qt::Key_Down:
            return CanvasKey::Down;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return CanvasKey::Enter;
        case Qt::Key_Escape:
            return CanvasKey::Escape;
        case Qt::Key_Delete:
            return CanvasKey::Delete;
        default:
            return std::nullopt;
    }
}

constexpr int kMarchInterval = 120;  // milliseconds a step of the dashes

QRect QRectOf(const CellRect& cells) {
    return {cells.x, cells.y, cells.width, cells.height};
}

}  // namespace

CanvasWidget::CanvasWidget(Editor& editor, CurrentPicture& picture, QWidget* parent)
    : QWidget(parent), editor_(editor), picture_(picture) {
    setObjectName(QStringLiteral("picIcon"));
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void CanvasWidget::ViewChanged() {
    const ViewportSize size = editor_.View().CanvasSize();
    setFixedSize(std::max(size.width, 1), std::max(size.height, 1));
    update();
}

void CanvasWidget::ToolChanged() {
    toolCursor_.reset();
    setCursor(CurrentToolCursor());
}

void CanvasWidget::SelectionChanged() {
    if (Outlined().empty()) {
        march_.stop();
    } else if (!march_.isActive()) {
        march_.start(kMarchInterval, this);
    }
    update();
    if (hover_) Hover(*hover_);
}

void CanvasWidget::HotspotChanged() {
    update();
    setCursor(editor_.Hotspot().Setting() ? QCursor(Qt::CrossCursor) : CurrentToolCursor());
    if (hover_) Hover(*hover_);
}

std::vector<QRect> CanvasWidget::Outlined() const {
    std::vector<QRect> outlined;
    if (const IFloatingSelection* selection = editor_.Canvas().FloatingSelection())
        outlined.push_back(QRectOf(selection->Rect()));
    if (const std::optional<CellRect> band = editor_.Canvas().RubberBand())
        outlined.push_back(QRectOf(*band));
    return outlined;
}

void CanvasWidget::timerEvent(QTimerEvent* event) {
    if (event->timerId() != march_.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    const std::vector<QRect> outlined = Outlined();
    if (outlined.empty()) {
        march_.stop();
        return;
    }
    ++dashOffset_;
    QRegion dirty;
    for (const QRect& cells : outlined)
        dirty += OutlineRegion(cells, editor_.View().State().PixelSize);
    update(dirty);
}

const QCursor& CanvasWidget::CurrentToolCursor() {
    const qreal ratio = devicePixelRatioF();
    if (!toolCursor_ || ratio != cursorRatio_) {
        toolCursor_ = ToolCursor(editor_.Tools().State().CurrentTool, ratio);
        cursorRatio_ = ratio;
    }
    return *toolCursor_;
}

void CanvasWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    CanvasScene scene;
    scene.picture = &picture_.Get();
    const ViewState& view = editor_.View().State();
    scene.pixelSize = view.PixelSize;
    scene.showGrid = view.ShowGrid;
    const IconSet& set = editor_.Set();
    if (set.mode != FileMode::ICO)
        scene.hotspot = QPoint(set.properties.hotspotX, set.properties.hotspotY);
    PixelPicture floating;
    if (const IFloatingSelection* selection = editor_.Canvas().FloatingSelection()) {
        const IconImage& pixels = selection->Pixels();
        floating = MakePixelPicture(pixels, pixels.info.Width(), pixels.info.Height());
        scene.floating = &floating;
        scene.floatingOrigin = QPoint(selection->Origin().x, selection->Origin().y);
    }
    if (const std::optional<CellRect> band = editor_.Canvas().RubberBand())
        scene.band = QRectOf(*band);
    scene.dashOffset = dashOffset_;
    for (const QRect& exposed : event->region())
        PaintCanvas(painter, exposed, scene);
    emit Painted();
}

Point CanvasWidget::CellAt(const QPointF& position) const {
    return editor_.View().CanvasToImage(static_cast<int>(std::floor(position.x())),
                                        static_cast<int>(std::floor(position.y())));
}

void CanvasWidget::mousePressEvent(QMouseEvent* event) {
    const std::optional<MouseButton> button = ButtonOf(event->button());
    if (!button || pressed_) return;
    pressed_ = event->button();
    editor_.Canvas().PointerPress(CellAt(event->position()), *button,
                                  ModifiersOf(event->modifiers()));
}

void CanvasWidget::mouseMoveEvent(QMouseEvent* event) {
    const Point cell = CellAt(event->position());
    if (pressed_) editor_.Canvas().PointerMove(cell, ModifiersOf(event->modifiers()));
    Hover(cell);
}

void CanvasWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (!pressed_ || event->button() != *pressed_) return;
    pressed_.reset();
    const Point cell = CellAt(event->position());
    editor_.Canvas().PointerRelease(cell, ModifiersOf(event->modifiers()));
    Hover(cell);
    emit StrokeEnded();
}

void CanvasWidget::Hover(Point cell) {
    hover_ = cell;
    emit StatusTextChanged(QStr(editor_.Canvas().StatusTextAt(cell)));
    if (editor_.Hotspot().Setting()) {
        setCursor(Qt::CrossCursor);
    } else if (editor_.Canvas().CursorAt(cell) == CursorHint::Move) {
        setCursor(Qt::SizeAllCursor);
    } else {
        setCursor(CurrentToolCursor());
    }
}

void CanvasWidget::leaveEvent(QEvent* event) {
    hover_.reset();
    emit StatusTextChanged(QString());
    QWidget::leaveEvent(event);
}

void CanvasWidget::keyPressEvent(QKeyEvent* event) {
    const std::optional<CanvasKey> key = CanvasKeyOf(event->key());
    if (key && editor_.Canvas().KeyPress({*key, ModifiersOf(event->modifiers())})) {
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

}  // namespace iw::ui
