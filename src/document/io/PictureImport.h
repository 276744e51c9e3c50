#pragma once
// Turning pictures into images of the set: a new image at a chosen depth, and the import
// of a picture into an existing image.

#include "codec/png/c32bppDIB.h"
#include "document/model/IconSet.h"
#include "imaging/RgbaBuffer.h"
#include "services/core/CoreContext.h"

namespace iw {

// Empties `set` for a set made from pictures: no images, no properties or animation
// data, mode ICO.
void StartPictureSet(IconSet& set);

// Adds `pixels` (at most 256 x 256) as a new image of `bitCount` bits, stored
// PNG-compressed when `png` is set, through the depth rules of WriteImageRgba: below 32
// bits a pixel with alpha below 128 becomes `TransparentColor`, 4-bit colours go through
// the 16-colour mapping and 1-bit colours through the monochrome mapping; 8 and 24 bits
// keep the colour (an 8-bit image gets its palette when it is written). Returns the new
// index, or -1 when the picture does not fit or the set is full.
int AddRgbaImage(IconSet& set, const RgbaBuffer& pixels, int bitCount, bool png);
// The same for a 32-bit picture object.
int AddPictureImage(IconSet& set, const c32bppDIB& picture, int bitCount, bool png);

// The image an icon set stands for as a picture: the deepest of its largest images, or
// with `side` the deepest of its side x side images; -1 when there is none.
int BestImage(const IconSet& set, int side = 0);

// The image a desktop would show where it draws the icon side x side (a file manager's
// large icons, a task bar, a title bar): an image of exactly that size; else the smallest
// larger one, scaled down; else the largest, scaled up. Sizes compare by the longer side;
// among images of one size the deepest wins, then the first. -1 for an empty set.
int BestFitImage(const IconSet& set, int side);

// Pictures above this on either side make the import ask first.
inline constexpr int kLargeImportSide = 500;

// Asks "ImportPicture" when the picture is larger than 500 x 500; true to go on (always
// for smaller pictures).
bool ConfirmLargeImport(const RgbaBuffer& picture, MessageService& messages);

// Puts `picture` into `image`, replacing its pixels: a picture larger than the image is
// scaled down to fit (aspect kept, resampled), and a picture that is not the image's shape
// is centred on transparent pixels. Status "Importing Image..." while it works.
void ImportPictureInto(IconImage& image, const RgbaBuffer& picture, IProgressSink& progress);

}  // namespace iw
