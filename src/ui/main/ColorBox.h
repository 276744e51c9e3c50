#pragma once
// The colour area under the tools: picForeColor and picBackcolor (a double-click opens the
// colour picker frmColors), picSwitchColors, and the red, green, blue and alpha sliders
// with their boxes.

#include <QWidget>
#include <array>

#include "editor/Editor.h"

class QLineEdit;
class QSlider;

namespace iw::ui {

class ColorSwatch;

class ColorBox final : public QWidget {
    Q_OBJECT

  public:
    explicit ColorBox(Editor& editor, QWidget* parent = nullptr);
    // The colours or the alpha changed: swatches, sliders and boxes follow.
    void ColorsChanged();

  private:
    struct ChannelControls {
        Channel channel;
        QSlider* slider;
        QLineEdit* box;
    };

    void ChooseForeColor();
    void ChooseBackColor();
    void SliderMoved(Channel channel, int value);
    void EntryFinished(const ChannelControls& controls);

    Editor& editor_;
    ColorSwatch* fore_;
    ColorSwatch* back_;
    std::array<ChannelControls, 4> channels_{};
    bool updating_ = false;  // the controls are being set from the editor
};

}  // namespace iw::ui
