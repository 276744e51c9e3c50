#pragma once
// The four colour adjustments of the adjustments window, each one pass over an image.
//
// Every pass skips transparent and inverting pixels, changes the selected channels, holds
// each channel to 0..255, and forces the colour back to the image's depth: 1-bit images to
// black or white, 4-bit images to the sixteen standard colours. A slider value runs from
// 0 to 100 with 50 as the neutral position (the window skips a pass at 50).

#include "document/model/IconImage.h"

namespace iw {

// The channel choice (optAll, optRed, optGreen, optBlue, optAlpha).
enum class AdjustChannel { All, Red, Green, Blue, Alpha };

// Each step of the slider moves the selected channels by 5 levels (-250 at 0, +250 at 100).
void DoBrightness(IconImage& image, int value, AdjustChannel channel);
// Spreads the channels away from (or towards) the image's mean grey; channels pushed out
// of range lend half their excess to the other two.
void DoContrast(IconImage& image, int value, AdjustChannel channel);
// Gamma from 0.01 (slider 0) through 1 (50) to 2 (100).
void DoGamma(IconImage& image, int value, AdjustChannel channel);
// Moves the channels away from (or towards) each pixel's grey: grey at 0, doubled at 100.
void DoSat(IconImage& image, int value, AdjustChannel channel);

}  // namespace iw
