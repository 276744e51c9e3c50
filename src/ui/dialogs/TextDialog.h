#pragma once
// frmText: the Text tool's window. The user types the text, chooses the font ("Select
// Font"), its size and antialiasing; OK renders it in the foreground colour with the
// current alpha, and the main window hands the picture to the editor to float.

#include <QDialog>

#include "ui/adapters/TextRenderer.h"

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;

namespace iw::ui {

class TextDialog final : public QDialog {
    Q_OBJECT

  public:
    // `look` gives the colour and alpha and the font, size and antialiasing to start with.
    explicit TextDialog(const TextLook& look, QWidget* parent = nullptr);

    // The font, size and antialiasing as chosen (for the next time the window opens).
    TextLook Look() const;
    // The text as OK renders it (empty for a blank text).
    RgbaPicture Rendered() const;

  private:
    void ChooseFont();
    void Refresh();

    TextLook look_;
    QPlainTextEdit* text_ = nullptr;
    QLabel* fontName_ = nullptr;
    QSpinBox* size_ = nullptr;
    QCheckBox* antialias_ = nullptr;
    QLabel* preview_ = nullptr;
    QPushButton* ok_ = nullptr;
};

}  // namespace iw::ui
