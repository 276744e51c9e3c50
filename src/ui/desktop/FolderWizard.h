#pragma once
// frmFolder, the folder icon wizard. Page one chooses what to do; "Set the icon of a folder"
// leads to the folder (with its current icon, or "[no icon]"), the icon file (with the
// icon's index in a program or library that holds several) and chkCopy,
// and Finish writes the folder's files; "Create a folder icon" leads to the picture and its
// overlay on a folder of our own drawing (offset, angle, density, mask colour), previewed at
// 48, 32 and 16 pixels, and Finish makes it the icon being edited.

#include <QDialog>
#include <array>
#include <filesystem>
#include <optional>

#include "app/shared/QtPictureDecoder.h"
#include "editor/Editor.h"
#include "imaging/FolderPicture.h"
#include "services/desktop/FolderIcons.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QStackedWidget;

namespace iw::ui {

class FolderWizard final : public QDialog {
    Q_OBJECT

  public:
    enum Page { StartPage, SetPage, CreatePage };

    FolderWizard(Editor& editor, FolderIcons& folderIcons, QWidget* parent = nullptr);

    Page CurrentPage() const;

  private:
    QWidget* MakeStartPage();
    QWidget* MakeSetPage();
    QWidget* MakeCreatePage();
    void ShowPage(Page page);
    void Next();
    void Finish();
    bool FinishSet();
    bool FinishCreate();
    void ShowCurrentIcon();
    void ShowIconCount();
    void BrowseFolder();
    void BrowseIcon();
    void BrowsePicture();
    void ChooseMaskColour();
    void LoadPicture(bool report);
    // The overlay the fields describe; nullopt (after its message, with `report`) when one
    // holds no number in its range.
    std::optional<FolderOverlay> ReadOverlay(bool report);
    void UpdatePreview();

    Editor& editor_;
    FolderIcons& folderIcons_;
    app::QtPictureDecoder decoder_;
    RgbaBuffer picture_;
    Rgba maskColour_{255, 0, 255, 255};

    QStackedWidget* pages_ = nullptr;
    QPushButton* back_ = nullptr;
    QPushButton* next_ = nullptr;
    QPushButton* finish_ = nullptr;
    QRadioButton* create_ = nullptr;
    QRadioButton* set_ = nullptr;
    QLineEdit* folder_ = nullptr;
    QLabel* currentText_ = nullptr;
    QLabel* currentPicture_ = nullptr;
    QLineEdit* icon_ = nullptr;
    QSpinBox* index_ = nullptr;
    QCheckBox* copy_ = nullptr;
    QRadioButton* useCurrent_ = nullptr;
    QRadioButton* useFile_ = nullptr;
    QLineEdit* pictureFile_ = nullptr;
    QLineEdit* offsetX_ = nullptr;
    QLineEdit* offsetY_ = nullptr;
    QLineEdit* angle_ = nullptr;
    QLineEdit* density_ = nullptr;
    QCheckBox* mask_ = nullptr;
    QPushButton* maskButton_ = nullptr;
    std::array<QLabel*, 3> previews_{};
};

}  // namespace iw::ui
