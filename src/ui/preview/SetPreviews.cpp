#include "ui/preview/SetPreviews.h"

#include <QPainter>
#include <algorithm>

#include "document/io/PictureImport.h"
#include "ui/widgets/SmallChecker.h"

namespace iw::ui {
namespace {

constexpr int kGap = 12;  // between images and round the strip, logical pixels

// Sizes a desktop draws the icon at: a file manager's large and extra large icons, a task
// bar button, a title bar.
constexpr int kFileManagerSides[] = {96, 48};
constexpr int kTaskBarSide = 32;
constexpr int kTitleBarSide = 16;
constexpr int kTitleTextLeft = 8 + kTitleBarSide + 8;
constexpr int kTitleButtons = 110;  // room for the three window buttons at the right

}  // namespace

SetPictures::SetPictures(const IconSet& iconSet) : set(iconSet) {
    for (int i = 0; i < iconSet.Count(); ++i)
        pictures.push_back(MakePixelPicture(iconSet.Image(i)));
}

SetStrip::SetStrip(const SetPictures& pictures, StripBackground background, QWidget* parent)
    : QWidget(parent), pictures_(pictures), background_(background) {
    static constexpr const char* kNames[] = {"picLight", "picDark", "picChecker"};
    setObjectName(QLatin1String(kNames[static_cast<int>(background)]));
}

QSize SetStrip::sizeHint() const {
    int width = kGap;
    int height = 16;
    for (const PixelPicture& picture : pictures_.pictures) {
        width += picture.Size().width() + kGap;
        height = std::max(height, picture.Size().height());
    }
    return {std::max(width, 2 * kGap + 16), height + 2 * kGap};
}

void SetStrip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    switch (background_) {
        case StripBackground::Light:
            painter.fillRect(rect(), QColor(250, 250, 250));
            break;
        case StripBackground::Dark:
            painter.fillRect(rect(), QColor(32, 33, 36));
            break;
        case StripBackground::Checkered:
            FillChecker(painter, rect(), 8);
            break;
    }
    // Bottoms on one line, as icons stand on a shelf.
    const int base = height() - kGap;
    int x = kGap;
    for (const PixelPicture& picture : pictures_.pictures) {
        const QSize size = picture.Size();
        DrawPictureOver(painter, QRect(QPoint(x, base - size.height()), size), picture);
        x += size.width() + kGap;
    }
}

DesktopScene::DesktopScene(const SetPictures& pictures, DesktopPlace place, QString name,
                           QWidget* parent)
    : QWidget(parent), pictures_(pictures), place_(place), name_(std::move(name)) {
    static constexpr const char* kNames[] = {"picFileManager", "picTaskBar", "picTitleBar"};
    setObjectName(QLatin1String(kNames[static_cast<int>(place)]));
}

QSize DesktopScene::sizeHint() const {
    const int line = fontMetrics().height();
    switch (place_) {
        case DesktopPlace::FileManager:
            return {2 * 120 + 3 * kGap, kFileManagerSides[0] + 2 * line + 3 * kGap};
        case DesktopPlace::TaskBar:
            return {4 * 48, 48};
        case DesktopPlace::TitleBar:
            return {std::max(240, fontMetrics().horizontalAdvance(name_) + kTitleTextLeft +
                                      kTitleButtons),
                    32};
    }
    return {};
}

void DesktopScene::DrawIcon(QPainter& painter, QPoint at, int side) const {
    const int index = BestFitImage(pictures_.set, side);
    if (index < 0) return;
    DrawPictureOver(painter, QRect(at, QSize(side, side)),
                    pictures_.pictures[static_cast<std::size_t>(index)]);
}

void DesktopScene::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    switch (place_) {
        case DesktopPlace::FileManager: {
            // A folder window's content area: each item is its icon with the name under it.
            painter.fillRect(rect(), Qt::white);
            const int cell = (width() - 3 * kGap) / 2;
            int x = kGap;
            for (const int side : kFileManagerSides) {
                const int top = kGap + kFileManagerSides[0] - side;
                DrawIcon(painter, {x + (cell - side) / 2, top}, side);
                painter.setPen(QColor(30, 30, 30));
                painter.drawText(
                    QRect(x, kGap + kFileManagerSides[0] + 4, cell, 2 * fontMetrics().height()),
                    Qt::AlignHCenter | Qt::AlignTop | Qt::TextWrapAnywhere, name_);
                x += cell + kGap;
            }
            break;
        }
        case DesktopPlace::TaskBar: {
            // A dark bar; the program's button is lit, with the running mark under it.
            painter.fillRect(rect(), QColor(28, 30, 36));
            const QRect button(kGap, 0, height(), height());
            painter.fillRect(button, QColor(60, 64, 74));
            painter.fillRect(button.left() + 12, button.bottom() - 2, button.width() - 24, 3,
                             QColor(96, 165, 250));
            DrawIcon(painter,
                     button.topLeft() +
                         QPoint((height() - kTaskBarSide) / 2, (height() - kTaskBarSide) / 2),
                     kTaskBarSide);
            break;
        }
        case DesktopPlace::TitleBar: {
            painter.fillRect(rect(), QColor(222, 226, 232));
            const int top = (height() - kTitleBarSide) / 2;
            DrawIcon(painter, {8, top}, kTitleBarSide);
            painter.setPen(QColor(20, 20, 20));
            painter.drawText(
                QRect(kTitleTextLeft, 0, width() - kTitleTextLeft - kTitleButtons, height()),
                Qt::AlignVCenter | Qt::AlignLeft, name_);
            // The window's buttons, drawn as plain shapes at the right.
            painter.setPen(QPen(QColor(60, 60, 60), 1.5));
            painter.setRenderHint(QPainter::Antialiasing);
            const int mid = height() / 2;
            int x = width() - 24;
            painter.drawLine(x - 5, mid - 5, x + 5, mid + 5);
            painter.drawLine(x - 5, mid + 5, x + 5, mid - 5);
            x -= 30;
            painter.drawRect(QRectF(x - 5, mid - 5, 10, 10));
            x -= 30;
            painter.drawLine(x - 5, mid + 4, x + 5, mid + 4);
            break;
        }
    }
}

}  // namespace iw::ui
