#pragma once
// The resize window (frmResize): the new size of the floating selection, else of the image,
// by percent or in pixels, keeping proportions or not, over the core's ResizePresenter. OK
// resamples through the editor's Resize command (one undo step).

#include <QDialog>

#include "editor/Editor.h"
#include "imaging/ResizePresenter.h"

class QLabel;
class QLineEdit;

namespace iw::ui {

class ResizeDialog final : public QDialog {
    Q_OBJECT

  public:
    ResizeDialog(Editor& editor, QWidget* parent = nullptr);

    // Opens a window over `parent`, modal, deleted when it closes. Nothing when the editor
    // has no image.
    static void Open(Editor& editor, QWidget* parent);

  protected:
    void done(int result) override;

  private:
    // An entry as the user leaves it: refused text shows the message and is put back, and
    // the window stays open at the next OK.
    bool Commit(QLineEdit* edit, ResizePresenter::Entry entry);
    // Both entries, where the user typed and has not left yet (a switch of unit or of the
    // proportions comes after what was typed).
    void CommitTyped();
    // lblNew, and the other entry while proportions are kept, as the user types.
    void ShowTyped(ResizePresenter::Entry entry, const QString& text);
    void SetMode(ResizePresenter::Mode mode);
    // The entries, their units and lblNew from the presenter.
    void Refresh();

    Editor& editor_;
    ResizePresenter presenter_;
    QLineEdit* horizontal_;
    QLineEdit* vertical_;
    QLabel* horizontalUnit_;
    QLabel* verticalUnit_;
    QLabel* newSize_;
    bool refused_ = false;
};

}  // namespace iw::ui
