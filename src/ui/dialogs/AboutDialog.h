#pragma once
// frmAbout: the program's name, version and icon, and what it is.

#include <QDialog>

namespace iw::ui {

class AboutDialog final : public QDialog {
    Q_OBJECT

  public:
    explicit AboutDialog(QWidget* parent = nullptr);
};

}  // namespace iw::ui
