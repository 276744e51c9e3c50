#include "editor/ImageCommands.h"

#include "document/model/IconSet.h"
#include "editor/FloatingPicture.h"
#include "editor/PixelPlot.h"
#include "imaging/ColorOperations.h"
#include "imaging/FilterOperations.h"
#include "imaging/GeometryOperations.h"
#include "imaging/ImageRgbaPixels.h"

namespace iw {
namespace {

// An operation that changes the pixels in place, as one that returns them.
template <typename Change>
std::function<RgbaBuffer(RgbaBuffer)> InPlace(Change change) {
    return [change](RgbaBuffer pixels) {
        change(pixels);
        return pixels;
    };
}

}  // namespace

ImageCommands::ImageCommands(IImageCommandHost& host, CanvasController& canvas,
                             const ToolControls& tools, IProgressSink& progress)
    : host_(host), canvas_(canvas), tools_(tools), progress_(progress) {}

CellRect ImageCommands::Target() const {
    if (const IFloatingSelection* floating = canvas_.FloatingSelection()) return floating->Rect();
    const IconImage* image = host_.EditedImage();
    if (!image) return {};
    return {0, 0, ImageWidth(*image), ImageHeight(*image)};
}

bool ImageCommands::Run(ImageOperation operation) {
    const Operation run = OperationFor(operation);
    return run && Apply(run);
}

bool ImageCommands::Resize(int width, int height) {
    if (width < 1 || height < 1 || width > IconSet::kMaxSide || height > IconSet::kMaxSide)
        return false;
    return Apply(
        [width, height](RgbaBuffer pixels) { return ResizePixels(pixels, width, height, false); });
}

ImageCommands::Operation ImageCommands::OperationFor(ImageOperation operation) {
    const PackedColor fore = tools_.State().ForeColor;
    const PackedColor back = tools_.State().BackColor;
    IProgressSink& progress = progress_;
    switch (operation) {
        case ImageOperation::FlipHorizontal:
            return InPlace([](RgbaBuffer& p) { FlipHorizontal(p); });
        case ImageOperation::FlipVertical:
            return InPlace([](RgbaBuffer& p) { FlipVertical(p); });
        case ImageOperation::Rotate90:
            return [](RgbaBuffer p) { return Rotate90(p); };
        case ImageOperation::Rotate180:
            return [](RgbaBuffer p) { return Rotate180(p); };
        case ImageOperation::Rotate270:
            return [](RgbaBuffer p) { return Rotate270(p); };
        case ImageOperation::Trim:
            return [](RgbaBuffer p) { return TrimToContent(p); };
        case ImageOperation::Greyscale:
            return InPlace([&progress](RgbaBuffer& p) { Greyscale(p, progress); });
        case ImageOperation::Invert:
            return InPlace([](RgbaBuffer& p) { Invert(p); });
        case ImageOperation::MakeTransparent:
            if (IsMarker(fore)) return {};
            return InPlace([fore](RgbaBuffer& p) { MakeColorTransparent(p, fore); });
        case ImageOperation::DropShadow:
            return InPlace([&progress](RgbaBuffer& p) { DropShadow(p, {}, progress); });
        case ImageOperation::Colorize:
            if (IsMarker(fore)) return {};
            return InPlace([fore, &progress](RgbaBuffer& p) { Colorize(p, fore, progress); });
        case ImageOperation::Sharpen:
            return InPlace([&progress](RgbaBuffer& p) { Sharpen(p, kSharpenStrength, progress); });
        case ImageOperation::SmoothAlpha:
            return InPlace([&progress](RgbaBuffer& p) { SmoothAlpha(p, progress); });
        case ImageOperation::Blur:
            return InPlace([&progress](RgbaBuffer& p) { Blur(p, kBlurRadius, progress); });
        case ImageOperation::TwoTone:
            if (IsMarker(fore) || IsMarker(back)) return {};
            return InPlace(
                [fore, back](RgbaBuffer& p) { TwoTone(p, kTwoToneThreshold, fore, back); });
    }
    return {};
}

bool ImageCommands::Apply(const Operation& operation) {
    IconImage* image = host_.EditedImage();
    if (!image) return false;

    if (!canvas_.FloatingSelection()) {
        RgbaBuffer result = operation(ReadImageRgba(*image));
        if (result.Empty()) return false;
        host_.RecordUndo(*image);
        const bool sidesChanged =
            result.Width() != ImageWidth(*image) || result.Height() != ImageHeight(*image);
        if (sidesChanged)
            ReplaceImageRgba(*image, result);
        else
            WriteImageRgba(*image, 0, 0, result);
        host_.ImageEdited(sidesChanged);
        return true;
    }

    std::unique_ptr<IFloatingSelection> taken = canvas_.TakeFloatingSelection();
    RgbaBuffer result = operation(ReadImageRgba(taken->Pixels()));
    if (result.Empty()) {
        canvas_.Float(std::move(taken));
        return false;
    }
    IconImage before = image->Clone();
    taken->Drop(before, tools_.State().Selection);
    host_.RecordUndo(before);

    IconImage pixels;
    pixels.info = taken->Pixels().info;
    ReplaceImageRgba(pixels, result);
    canvas_.Float(std::make_unique<FloatingPicture>(std::move(pixels), taken->Origin()));
    host_.ImageEdited(false);
    return true;
}

}  // namespace iw
