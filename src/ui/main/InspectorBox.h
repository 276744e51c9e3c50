#pragma once
// picInspector: the inspector panel. Shows the core's panel (lblInspector, cmdFix, imgCheck,
// imgExec) and runs the fix; greyed while the inspector does not look at the set (cursors,
// animated cursors, sets of more than 25 images).

#include <QFrame>

#include "editor/Editor.h"

class QLabel;
class QPushButton;

namespace iw::ui {

class InspectorBox final : public QFrame {
    Q_OBJECT

  public:
    explicit InspectorBox(Editor& editor, QWidget* parent = nullptr);
    void InspectorChanged();

  private:
    Editor& editor_;
    QLabel* check_;
    QLabel* exec_;
    QLabel* text_;
    QPushButton* fix_;
};

}  // namespace iw::ui
