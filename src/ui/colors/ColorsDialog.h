#pragma once
// frmColors: the colour picker. A saturation / value field and a hue strip painted here,
// the red, green, blue (and, for the foreground, alpha) boxes, the colour as the long
// integer and as hex, and the old and new swatches (a click on the old one goes back to
// it). Every entry goes to the core's ColorPicker; OK leaves the choice in Picker().

#include <QDialog>
#include <array>

#include "editor/ColorPicker.h"

class QGridLayout;
class QLineEdit;

namespace iw::ui {

class ColorSwatch;
class HsvField;
class HueStrip;

class ColorsDialog final : public QDialog {
    Q_OBJECT

  public:
    // `withAlpha`: the alpha box is offered (the foreground colour has an alpha).
    ColorsDialog(PackedColor start, int alpha, bool withAlpha, QWidget* parent = nullptr);

    const ColorPicker& Picker() const { return picker_; }

  private:
    struct Box {
        Channel channel;
        QLineEdit* edit;
    };
    QLineEdit* AddEntry(QGridLayout* grid, int row, const char* name, const char* label,
                        const char* caption);
    void Refresh();
    // A box's text was finished: the picker takes it or the box shows the value again.
    void Entered(QLineEdit* edit, bool (ColorPicker::*take)(std::string_view));

    ColorPicker picker_;
    bool withAlpha_;
    HsvField* field_ = nullptr;
    HueStrip* hue_ = nullptr;
    ColorSwatch* old_ = nullptr;
    ColorSwatch* new_ = nullptr;
    std::array<Box, 4> boxes_{};
    QLineEdit* long_ = nullptr;
    QLineEdit* hex_ = nullptr;
};

}  // namespace iw::ui
