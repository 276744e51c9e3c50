#pragma once
// The Image menu's operations: flips, quarter turns, trimming, resizing, and the colour
// effects and filters. Each works on the floating selection when there is one, else on the
// whole image being edited, and is one undoable step:
// - the undo snapshot is the image as the user saw it, with the selection dropped into it,
//   so Undo brings back exactly that (a selection is dropped by Undo first anyway);
// - a selection stays floating at its place with its new pixels (and new sides);
// - an image that gets new sides keeps them in the undo snapshot, so Undo restores them.
// Long operations put their status text and progress through the progress sink.

#include <functional>

#include "editor/CanvasController.h"
#include "imaging/RgbaBuffer.h"
#include "services/core/UserInterface.h"

namespace iw {

// What the operations ask of the editor that holds them.
class IImageCommandHost {
  public:
    virtual ~IImageCommandHost() = default;
    // The image being edited; nullptr while the set is empty.
    virtual IconImage* EditedImage() = 0;
    // Records `before` as the state the next change is undone to.
    virtual void RecordUndo(const IconImage& before) = 0;
    // The image or the selection over it changed; `sidesChanged` when the image itself got
    // new sides.
    virtual void ImageEdited(bool sidesChanged) = 0;
};

enum class ImageOperation {
    FlipHorizontal,
    FlipVertical,
    Rotate90,  // clockwise
    Rotate180,
    Rotate270,
    Trim,             // to the pixels that show
    Greyscale,        // "Converting to Greyscale..."
    Invert,           //
    MakeTransparent,  // pixels of the foreground colour become transparent
    DropShadow,       // "Adding Dropshadow..."
    Colorize,         // tinted with the foreground colour: "Colorizing Icon..."
    Sharpen,          // "Sharpening..."
    SmoothAlpha,      // "Smoothing Alpha..."
    Blur,
    TwoTone,  // dark pixels the foreground colour, light ones the background colour
};

class ImageCommands {
  public:
    static constexpr int kBlurRadius = 2;
    static constexpr int kSharpenStrength = 100;
    static constexpr int kTwoToneThreshold = 128;

    ImageCommands(IImageCommandHost& host, CanvasController& canvas, const ToolControls& tools,
                  IProgressSink& progress);

    bool CanRun() const { return host_.EditedImage() != nullptr; }
    // What the operations would work on: the floating selection's rectangle, else the
    // whole image's.
    CellRect Target() const;

    // False when nothing changed and no undo step was recorded: no image, an operation
    // that needs a colour while the foreground (or background) is a marker, or trimming a
    // picture where nothing shows.
    bool Run(ImageOperation operation);
    // Resampled to width x height (each 1..256).
    bool Resize(int width, int height);

  private:
    using Operation = std::function<RgbaBuffer(RgbaBuffer)>;
    bool Apply(const Operation& operation);
    Operation OperationFor(ImageOperation operation);

    IImageCommandHost& host_;
    CanvasController& canvas_;
    const ToolControls& tools_;
    IProgressSink& progress_;
};

}  // namespace iw
