#pragma once
// The system clipboard as the editor sees it: a picture put on it, a picture taken from it.
// The window's adapter puts a PNG with alpha and an ordinary image on the system
// clipboard, and takes whichever picture is there.

#include <optional>

#include "editor/RgbaPicture.h"

namespace iw {

class IClipboard {
  public:
    virtual ~IClipboard() = default;
    virtual void PutPicture(const RgbaPicture& picture) = 0;
    // The picture on the clipboard, or nothing when it holds none.
    virtual std::optional<RgbaPicture> TakePicture() = 0;
    // Whether it holds a picture, without converting it (the Paste command's enabled state).
    virtual bool HasPicture() const = 0;
};

}  // namespace iw
