#pragma once
// The logic of the adjustments window (frmBrightness): four sliders and a channel choice
// that recompute the current image from its state when the window opened, OK to keep the
// result and Cancel to put the image back. The window drives it through the commands, reads
// Sliders() and Channel(), and follows it through an IAdjustmentsObserver.

#include <vector>

#include "document/model/IconImage.h"
#include "imaging/Adjustments.h"

namespace iw {

struct AdjustmentSliders {
    static constexpr int kNeutral = 50;
    int brightness = kNeutral;  // sldBrightness
    int contrast = kNeutral;    // sldContrast
    int gamma = kNeutral;       // sldGamma
    int saturation = kNeutral;  // sldSat
};

class IAdjustmentsObserver {
  public:
    virtual ~IAdjustmentsObserver() = default;
    // The image was recomputed or put back: the previews redraw.
    virtual void ImageChanged() {}
    // OK (`kept`) or Cancel closed the window.
    virtual void Closed(bool /*kept*/) {}
};

class ColorAdjustments {
  public:
    // Takes the backup of both planes of `image`, the image being edited; the image (and
    // the observer, if any) must outlive this object. The adjustments work on the image
    // directly, so the editor's view of it is the preview.
    explicit ColorAdjustments(IconImage& image, IAdjustmentsObserver* observer = nullptr);
    ColorAdjustments(const ColorAdjustments&) = delete;
    ColorAdjustments& operator=(const ColorAdjustments&) = delete;

    // The slider and option handlers: each stores its value and recomputes.
    void SetBrightness(int value);
    void SetContrast(int value);
    void SetGamma(int value);
    void SetSaturation(int value);
    void SetChannel(AdjustChannel channel);

    const AdjustmentSliders& Sliders() const { return sliders_; }
    AdjustChannel Channel() const { return channel_; }

    // Restores the image from the backup, then runs DoContrast, DoSat, DoGamma and
    // DoBrightness for each slider away from 50; the observer hears ImageChanged.
    void UpdateAdjustments();

    // cmdOK: the image keeps its adjusted state and the window closes.
    void Ok();
    // cmdCancel: the image goes back to its state when the window opened and the window
    // closes. Once closed either way, further changes and Cancel do nothing.
    void Cancel();
    bool IsOpen() const { return open_; }

  private:
    void RestoreBackup();

    IconImage& image_;
    IAdjustmentsObserver* observer_;
    int width_;
    int height_;
    std::vector<std::int32_t> backupColors_;  // width x height, row-major
    std::vector<std::int32_t> backupAlphas_;
    std::vector<std::uint8_t> backupPng_;
    AdjustmentSliders sliders_;
    AdjustChannel channel_ = AdjustChannel::All;
    bool open_ = true;
};

}  // namespace iw
