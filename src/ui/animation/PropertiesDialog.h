#pragma once
// frmANIProperties: an animated cursor's name (txtName) and artist (txtArtist), the unit
// rates are shown in (cboUnit: jiffies or seconds), the default rate (txtDefaultRate) and
// each frame's rate (txtRate, one a frame, tagged with the frame's number from 1). Every
// edit goes to the core's AnimationProperties, which keeps the boxes' texts; OK stores what
// it gives, or puts the cursor in the box whose rate is not one.

#include <QDialog>
#include <vector>

#include "editor/AnimationProperties.h"
#include "editor/Editor.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QScrollArea;

namespace iw::ui {

class PropertiesDialog final : public QDialog {
    Q_OBJECT

  public:
    PropertiesDialog(Editor& editor, QWidget* parent = nullptr);

    // OK: stores what the core gives and closes, or stays after the core's message.
    void accept() override;

  private:
    struct FrameRow {
        QLineEdit* rate = nullptr;
        QLabel* unit = nullptr;
        QLabel* follows = nullptr;
    };
    QWidget* MakeFrameRows(const IconSet& set);
    // Shows the core's rate texts in every box but the one being typed in.
    void ShowRates(const QLineEdit* typing = nullptr);

    Editor& editor_;
    AnimationProperties properties_;
    QLineEdit* name_ = nullptr;
    QLineEdit* artist_ = nullptr;
    QComboBox* unit_ = nullptr;
    QLineEdit* defaultRate_ = nullptr;
    QLabel* defaultUnit_ = nullptr;
    QScrollArea* frames_ = nullptr;
    std::vector<FrameRow> rows_;
};

}  // namespace iw::ui
