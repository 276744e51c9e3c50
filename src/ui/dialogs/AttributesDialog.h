#pragma once
// frmAttributes: an image's attributes for Add Format, Change Attributes and a new icon of
// any size (the start-up dialog): width and
// height (1..256, checked by the core as they are confirmed), the depth, and whether the
// image is stored compressed (PNG). The caller runs the command with Chosen().

#include <QDialog>
#include <vector>

#include "editor/ImageListCommands.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QRadioButton;

namespace iw::ui {

class AttributesDialog final : public QDialog {
    Q_OBJECT

  public:
    enum class Purpose { AddFormat, ChangeAttributes, NewIcon };

    AttributesDialog(ImageListCommands& images, Purpose purpose, const ImageAttributes& start,
                     QWidget* parent = nullptr);

    // What OK confirmed.
    const ImageAttributes& Chosen() const { return chosen_; }

  protected:
    void accept() override;

  private:
    void SizePicked(int row);

    ImageListCommands& images_;
    ImageAttributes chosen_;
    QComboBox* sizes_;
    QLineEdit* width_;
    QLineEdit* height_;
    std::vector<QRadioButton*> depths_;
    QCheckBox* compressed_;
};

}  // namespace iw::ui
