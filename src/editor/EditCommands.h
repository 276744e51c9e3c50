#pragma once
// The Edit menu's selection and clipboard commands, and the placing of rendered text. Each
// works on the image being edited and leaves new pixels floating for the Select tool.
//
// Choices made here:
// - Cut and Copy take the floating selection, or the whole image when nothing floats.
// - Delete throws the floating selection away (its hole stays; Undo brings it back), or
//   clears the whole image to transparent when nothing floats.
// - Paste, Select All and text switch to the Select tool and record an undo snapshot at
//   once, so Undo after the drop goes back to the image before them.

#include "editor/CanvasController.h"
#include "editor/Clipboard.h"
#include "imaging/RgbaBuffer.h"
#include "services/core/MessageService.h"
#include "services/core/UserInterface.h"

namespace iw {

class EditCommands {
  public:
    // A pasted picture larger than this on either side is pasted only after "PastePicture".
    static constexpr int kLargePaste = 300;

    EditCommands(ICanvasHost& host, CanvasController& canvas, ToolControls& tools,
                 MessageService& messages, EditorEvents& events);

    // Enabled states: Cut, Copy, Delete and Select All need an image; Paste also a picture
    // on the clipboard.
    bool CanEdit() const { return host_.EditedImage() != nullptr; }
    bool CanPaste(const IClipboard& clipboard) const { return CanEdit() && clipboard.HasPicture(); }

    bool Cut(IClipboard& clipboard);
    bool Copy(IClipboard& clipboard);
    bool Delete();
    // Floats the whole image.
    bool SelectAll();
    // The clipboard's picture, at `at` (the top-left cell of the visible canvas; kept on
    // the image). False when there is none, it is refused or the user declines a large one.
    bool Paste(IClipboard& clipboard, Point at = {});
    // A picture already brought to at most 256 x 256 (FitToIconSide) floats at `at`, at the
    // image's depth. The one way a picture from outside comes onto the canvas.
    bool PasteFitted(const RgbaPicture& fitted, Point at);
    // Text rendered by the window (in ForeColor with the current alpha) floats centred on
    // the image, or from its top-left corner when it is larger. False for an empty picture.
    bool PlaceText(const RgbaPicture& rendered);
    // A picture read from a file (Import Image) floats centred on the image, scaled down
    // with the resampler to fit inside it (aspect kept; a smaller picture keeps its size).
    // One larger than 500 x 500 asks "ImportPicture" first. The status bar shows
    // "Importing Image..." while it works. False when there is no image, the picture is
    // empty or the user declines.
    bool ImportPicture(const RgbaBuffer& picture, IProgressSink& progress);

  private:
    ICanvasHost& host_;
    CanvasController& canvas_;
    ToolControls& tools_;
    MessageService& messages_;
    EditorEvents& events_;
};

}  // namespace iw
