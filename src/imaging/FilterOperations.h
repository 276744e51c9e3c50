#pragma once
// Effects that look at a pixel's neighbours: blur, sharpen, alpha smoothing and the drop
// shadow. Pixels outside the picture (or selection) are not looked at beyond what each
// function says; inverting pixels count as transparent neighbours and are left as they are.

#include "document/model/Colors.h"
#include "imaging/RgbaBuffer.h"
#include "services/core/UserInterface.h"

namespace iw {

// A Gaussian blur of colour and alpha (in premultiplied alpha, so transparent pixels do not
// darken the edges) reaching `radius` pixels (1..32, sigma radius / 2). The picture's
// border pixels repeat outwards, so an opaque picture stays opaque up to its edges.
void Blur(RgbaBuffer& pixels, int radius, IProgressSink& progress);

// Unsharp masking with the four direct neighbours: each colour moves away from their mean
// by `strength` percent (0..500) of the difference. A transparent neighbour counts with
// the pixel's own colour, so edges against transparency get no halo. Alpha stays.
// Status "Sharpening...".
void Sharpen(RgbaBuffer& pixels, int strength, IProgressSink& progress);

// Softens jagged edges: each alpha becomes the 1-2-1 weighted mean of its 3 x 3
// neighbourhood (inside the picture). A pixel that was fully transparent and gains alpha
// takes the alpha-weighted mean colour of its neighbours; other colours stay.
// Status "Smoothing Alpha...".
void SmoothAlpha(RgbaBuffer& pixels, IProgressSink& progress);

struct DropShadowOptions {
    int offsetX = 2;   // to the right
    int offsetY = 2;   // downwards
    int radius = 2;    // blur of the shadow's edge, 0..32 (0: hard edge)
    int opacity = 60;  // percent
    PackedColor color = PackColor(0, 0, 0);
};

// Puts a shadow of the picture's own shape under it: the alpha shifted by the offset,
// blurred, in the shadow colour at the given opacity, with the picture drawn over it. The
// shadow is cut off at the picture's border. Status "Adding Dropshadow...".
void DropShadow(RgbaBuffer& pixels, const DropShadowOptions& options, IProgressSink& progress);

}  // namespace iw
