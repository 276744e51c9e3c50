#pragma once
// The file dialogs of the picture commands: a picture to import or convert, where to export
// one image as PNG, and the folder for every image. The commands ask through this
// interface, so tests can answer without a dialog.

#include <QString>
#include <optional>
#include <string>

class QWidget;

namespace iw::ui {

class IPictureFiles {
  public:
    virtual ~IPictureFiles() = default;
    // A picture to read (title "Import Image", the picture filter), or nothing.
    virtual std::optional<std::string> ChoosePicture() = 0;
    // Where to write a PNG picture, starting from `suggestedName`.
    virtual std::optional<std::string> ChoosePngPath(const std::string& suggestedName) = 0;
    // A folder to write every image into.
    virtual std::optional<std::string> ChooseFolder() = 0;
};

class DialogPictureFiles final : public IPictureFiles {
  public:
    explicit DialogPictureFiles(QWidget* parent) : parent_(parent) {}
    std::optional<std::string> ChoosePicture() override;
    std::optional<std::string> ChoosePngPath(const std::string& suggestedName) override;
    std::optional<std::string> ChooseFolder() override;

  private:
    QString Folder() const;

    QWidget* parent_;
    QString folder_;  // where the last dialog ended
};

}  // namespace iw::ui
