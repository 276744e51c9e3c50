#pragma once
// frmConvert: "Convert an Image", a wizard of two steps. First the picture: a path typed
// or browsed; Next (or Return) reads it (a file that cannot be read shows the core's
// message and stays on the step) and shows it with its size. Then the template whose
// formats the new set gets, with those formats listed beside it. Finish leaves the picture and the template
// for the caller, which makes the set.

#include <QDialog>
#include <functional>
#include <optional>
#include <string>

#include "document/io/PictureDecoder.h"
#include "imaging/RgbaBuffer.h"
#include "services/core/MessageService.h"
#include "services/desktop/TemplateLibrary.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QStackedWidget;
class QTreeWidget;

namespace iw::ui {

class ConvertDialog final : public QDialog {
    Q_OBJECT

  public:
    // Asks for a picture file (the Browse button); nothing when the user cancels.
    using BrowseForPicture = std::function<std::optional<std::string>()>;

    // `templates` and `messages` and `decoder` must outlive the dialog.
    ConvertDialog(const TemplateLibrary& templates, MessageService& messages,
                  IPictureDecoder& decoder, BrowseForPicture browse, QWidget* parent = nullptr);

    // After Finish: the picture read and the template chosen.
    const RgbaBuffer& Picture() const { return picture_; }
    const IconTemplate* ChosenTemplate() const;

  private:
    QWidget* MakePictureStep();
    QWidget* MakeTemplateStep();
    void ShowStep(int step);
    void Browse();
    // Next on the first step: reads the picture; false (staying) when it cannot be read.
    bool ReadPicture();
    void ShowPicture();
    void ShowFormats();
    void UpdateButtons();

    const TemplateLibrary& templates_;
    MessageService& messages_;
    IPictureDecoder& decoder_;
    BrowseForPicture browse_;
    RgbaBuffer picture_;

    QStackedWidget* steps_ = nullptr;
    QLineEdit* path_ = nullptr;
    QLabel* preview_ = nullptr;
    QLabel* size_ = nullptr;
    QListWidget* list_ = nullptr;
    QTreeWidget* formats_ = nullptr;
    QPushButton* back_ = nullptr;
    QPushButton* next_ = nullptr;
    QPushButton* finish_ = nullptr;
};

}  // namespace iw::ui
