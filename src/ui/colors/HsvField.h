#pragma once
// The colour picker's two painted surfaces: the saturation / value field at one hue
// (picField: saturation left to right, value bottom to top) and the hue strip beside it
// (picHue: 0 degrees at the top). Both follow the mouse while a button is held.

#include <QImage>
#include <QWidget>

#include "imaging/ColorModel.h"

namespace iw::ui {

class HsvField final : public QWidget {
    Q_OBJECT

  public:
    explicit HsvField(QWidget* parent = nullptr);
    void SetHsv(const Hsv& hsv);
    QSize sizeHint() const override { return {256, 256}; }

  signals:
    void Picked(double saturation, double value);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override { Pick(event); }
    void mouseMoveEvent(QMouseEvent* event) override { Pick(event); }

  private:
    void Pick(QMouseEvent* event);

    Hsv hsv_;
    QImage field_;  // 256 x 256 at fieldHue_
    double fieldHue_ = -1;
};

class HueStrip final : public QWidget {
    Q_OBJECT

  public:
    explicit HueStrip(QWidget* parent = nullptr);
    void SetHue(double hue);
    QSize sizeHint() const override { return {24, 256}; }

  signals:
    void Picked(double hue);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override { Pick(event); }
    void mouseMoveEvent(QMouseEvent* event) override { Pick(event); }

  private:
    void Pick(QMouseEvent* event);

    double hue_ = 0;
    QImage strip_;
};

}  // namespace iw::ui
