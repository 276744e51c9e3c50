#include "editor/EditCommands.h"

#include <algorithm>

#include "document/io/PictureImport.h"
#include "document/model/IconSet.h"
#include "editor/FloatingPicture.h"
#include "editor/PixelPlot.h"
#include "imaging/Resampler.h"
#include "services/core/TextCatalog.h"

namespace iw {

EditCommands::EditCommands(ICanvasHost& host, CanvasController& canvas, ToolControls& tools,
                           MessageService& messages, EditorEvents& events)
    : host_(host), canvas_(canvas), tools_(tools), messages_(messages), events_(events) {}

bool EditCommands::Copy(IClipboard& clipboard) {
    const IconImage* image = host_.EditedImage();
    if (!image) return false;
    const IFloatingSelection* floating = canvas_.FloatingSelection();
    clipboard.PutPicture(PictureOfImage(floating ? floating->Pixels() : *image));
    return true;
}

bool EditCommands::Cut(IClipboard& clipboard) {
    return Copy(clipboard) && Delete();
}

bool EditCommands::Delete() {
    IconImage* image = host_.EditedImage();
    if (!image) return false;
    if (canvas_.DiscardFloatingSelection()) return true;
    host_.AddUndo();
    for (int x = 0; x < ImageWidth(*image); ++x) {
        for (int y = 0; y < ImageHeight(*image); ++y) {
            image->Color(x, y) = TransparentColor;
            image->Alpha(x, y) = 0;
        }
    }
    image->DropOriginalPng();
    events_.Notify(&IEditorObserver::ImageChanged);
    host_.StrokeFinished();
    return true;
}

bool EditCommands::SelectAll() {
    IconImage* image = host_.EditedImage();
    if (!image) return false;
    tools_.SelectTool(ToolId::Select);
    host_.AddUndo();
    canvas_.Float(LiftOut(*image, {0, 0, ImageWidth(*image), ImageHeight(*image)}));
    events_.Notify(&IEditorObserver::ImageChanged);
    return true;
}

bool EditCommands::Paste(IClipboard& clipboard, Point at) {
    if (!CanEdit()) return false;
    const std::optional<RgbaPicture> picture = clipboard.TakePicture();
    if (!picture || !picture->WellFormed()) return false;
    if (picture->width > kLargePaste || picture->height > kLargePaste) {
        const MessageAnswer answer =
            messages_.Show(texts::PastePicture, MessageType::Question, MessageButtons::YesNo);
        if (answer != MessageAnswer::Yes) return false;
    }
    return PasteFitted(FitToIconSide(*picture), at);
}

bool EditCommands::PasteFitted(const RgbaPicture& fitted, Point at) {
    IconImage* image = host_.EditedImage();
    if (!image || !fitted.WellFormed() || fitted.width > IconSet::kMaxSide ||
        fitted.height > IconSet::kMaxSide) {
        return false;
    }
    tools_.SelectTool(ToolId::Select);
    host_.AddUndo();
    const Point origin{std::clamp(at.x, 0, ImageWidth(*image) - 1),
                       std::clamp(at.y, 0, ImageHeight(*image) - 1)};
    canvas_.Float(
        std::make_unique<FloatingPicture>(ImageFromPicture(fitted, image->info.bitCount), origin));
    return true;
}

bool EditCommands::PlaceText(const RgbaPicture& rendered) {
    const IconImage* image = host_.EditedImage();
    if (!image || !rendered.WellFormed()) return false;
    const RgbaPicture fitted = FitToIconSide(rendered);
    return PasteFitted(fitted, {std::max(0, (ImageWidth(*image) - fitted.width) / 2),
                                std::max(0, (ImageHeight(*image) - fitted.height) / 2)});
}

bool EditCommands::ImportPicture(const RgbaBuffer& picture, IProgressSink& progress) {
    const IconImage* image = host_.EditedImage();
    if (!image || picture.Empty() || !ConfirmLargeImport(picture, messages_)) return false;
    progress.SetStatus(GetText(texts::ImportingImage));
    progress.Yield();
    const PixelSize size =
        FitSize(picture.Width(), picture.Height(), ImageWidth(*image), ImageHeight(*image), false);
    const RgbaBuffer fitted = size == PixelSize{picture.Width(), picture.Height()}
                                  ? picture
                                  : Resample(picture, size.width, size.height);
    RgbaPicture floating{fitted.Width(), fitted.Height(), {}};
    floating.rgba.assign(fitted.Bytes().begin(), fitted.Bytes().end());
    const bool placed = PasteFitted(
        floating, {(ImageWidth(*image) - size.width) / 2, (ImageHeight(*image) - size.height) / 2});
    progress.SetStatus("");
    return placed;
}

}  // namespace iw
