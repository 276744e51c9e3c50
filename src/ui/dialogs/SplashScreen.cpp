#include "ui/dialogs/SplashScreen.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include "ui/UiText.h"

namespace iw::ui {
namespace {

constexpr std::string_view kWindow = "frmSplash";

QPixmap SplashPicture(qreal ratio) {
    const QSize size(420, 180);
    QPixmap pixmap(size * ratio);
    pixmap.setDevicePixelRatio(ratio);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient ground(0, 0, 0, size.height());
    ground.setColorAt(0, QColor(247, 249, 252));
    ground.setColorAt(1, QColor(223, 231, 243));
    painter.fillRect(QRect(QPoint(0, 0), size), ground);
    painter.setPen(QColor(160, 172, 190));
    painter.drawRect(QRect(QPoint(0, 0), size).adjusted(0, 0, -1, -1));
    painter.drawPixmap(28, 34, UiIcon("iconwright").pixmap(QSize(112, 112), ratio));
    QFont title = QGuiApplication::font();
    title.setPointSizeF(title.pointSizeF() * 1.9);
    title.setBold(true);
    painter.setFont(title);
    painter.setPen(QColor(43, 52, 64));
    painter.drawText(QRect(160, 50, 250, 44), Qt::AlignLeft | Qt::AlignVCenter,
                     Caption(kWindow, "lblProduct", "Iconwright"));
    QFont line = QGuiApplication::font();
    painter.setFont(line);
    painter.setPen(QColor(90, 100, 116));
    painter.drawText(QRect(162, 94, 250, 24), Qt::AlignLeft | Qt::AlignVCenter,
                     Caption(kWindow, "lblCompany", "Quorvale"));
    painter.drawText(QRect(162, 118, 250, 24), Qt::AlignLeft | Qt::AlignVCenter,
                     Caption(kWindow, "lblLoading", "Starting..."));
    return pixmap;
}

}  // namespace

SplashScreen::SplashScreen()
    : QSplashScreen(SplashPicture(QGuiApplication::primaryScreen()
                                      ? QGuiApplication::primaryScreen()->devicePixelRatio()
                                      : 1.0)) {
    setObjectName(QString::fromUtf8(kWindow.data(), kWindow.size()));
}

}  // namespace iw::ui
