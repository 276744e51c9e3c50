#pragma once
// frmPreview: the whole icon set at actual size on light, dark and checkered backgrounds,
// and as a file manager, a task bar and a title bar would show it.

#include <QDialog>
#include <memory>

#include "document/model/IconSet.h"

namespace iw::ui {

struct SetPictures;

class PreviewDialog final : public QDialog {
    Q_OBJECT

  public:
    // `fileName` goes under the file manager's icons, `title` into the title bar.
    PreviewDialog(const IconSet& set, const QString& fileName, const QString& title,
                  QWidget* parent = nullptr);
    ~PreviewDialog() override;

  private:
    std::unique_ptr<SetPictures> pictures_;
};

}  // namespace iw::ui
