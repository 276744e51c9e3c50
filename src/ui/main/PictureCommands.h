#pragma once
// The commands of the colour and picture windows: View > Preview (frmPreview), File >
// Import and Export (Import Image, Export Image, Export All Images) and Tools > Convert an
// Image (the conversion wizard, frmConvert). One PictureCommands object, a
// child of the main window called "PictureCommands", holds them and the file dialogs they ask
// through.

#include <QObject>
#include <memory>

#include "app/shared/QtPictureDecoder.h"
#include "ui/pictures/PictureFiles.h"

namespace iw::ui {

class MainWindow;

class PictureCommands final : public QObject {
    Q_OBJECT

  public:
    explicit PictureCommands(MainWindow& window);
    ~PictureCommands() override;

    // Tests answer the file dialogs here; nullptr goes back to the desktop's dialogs.
    void SetFiles(IPictureFiles* files);

    void ShowPreview();
    // Import Image: a picture floats on the current image, scaled down to fit it.
    bool ImportImage();
    // The current image as a PNG file, and every image into a folder.
    bool ExportImage();
    bool ExportAllImages();
    // The conversion wizard; Finish makes a new untitled set from the picture with the
    // chosen template's formats (after the question to save the present one).
    bool ConvertImage();

  private:
    MainWindow& window_;
    std::unique_ptr<DialogPictureFiles> ownFiles_;
    IPictureFiles* files_;
    app::QtPictureDecoder decoder_;
};

void InstallPictureCommands(MainWindow& window);

}  // namespace iw::ui
