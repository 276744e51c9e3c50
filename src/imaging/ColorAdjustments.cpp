#include "imaging/ColorAdjustments.h"

#include <algorithm>

namespace iw {

ColorAdjustments::ColorAdjustments(IconImage& image, IAdjustmentsObserver* observer)
    : image_(image), observer_(observer), width_(image.info.Width()), height_(image.info.Height()) {
    // Taken first: the writable rows below drop the stream from the image.
    backupPng_ = image_.OriginalPng();
    const auto cells = static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_);
    backupColors_.resize(cells);
    backupAlphas_.resize(cells);
    for (int y = 0; y < height_; ++y) {
        const auto colors = image_.Row(y, IconImage::ColorPlane);
        const auto alphas = image_.Row(y, IconImage::AlphaPlane);
        const auto at = static_cast<std::ptrdiff_t>(y) * width_;
        std::copy_n(colors.begin(), width_, backupColors_.begin() + at);
        std::copy_n(alphas.begin(), width_, backupAlphas_.begin() + at);
    }
}

void ColorAdjustments::RestoreBackup() {
    for (int y = 0; y < height_; ++y) {
        const auto at = static_cast<std::ptrdiff_t>(y) * width_;
        std::copy_n(backupColors_.begin() + at, width_,
                    image_.Row(y, IconImage::ColorPlane).begin());
        std::copy_n(backupAlphas_.begin() + at, width_,
                    image_.Row(y, IconImage::AlphaPlane).begin());
    }
    image_.KeepOriginalPng(backupPng_);
}

void ColorAdjustments::SetBrightness(int value) {
    sliders_.brightness = value;
    UpdateAdjustments();
}

void ColorAdjustments::SetContrast(int value) {
    sliders_.contrast = value;
    UpdateAdjustments();
}

void ColorAdjustments::SetGamma(int value) {
    sliders_.gamma = value;
    UpdateAdjustments();
}

void ColorAdjustments::SetSaturation(int value) {
    sliders_.saturation = value;
    UpdateAdjustments();
}

void ColorAdjustments::SetChannel(AdjustChannel channel) {
    channel_ = channel;
    UpdateAdjustments();
}

void ColorAdjustments::UpdateAdjustments() {
    if (!open_) return;
    // Always from the backup, so the sliders never compound.
    RestoreBackup();
    constexpr int kNeutral = AdjustmentSliders::kNeutral;
    const bool changes = sliders_.contrast != kNeutral || sliders_.saturation != kNeutral ||
                         sliders_.gamma != kNeutral || sliders_.brightness != kNeutral;
    // Changed pixels no longer match the PNG stream the image was read from.
    if (changes) image_.DropOriginalPng();
    if (sliders_.contrast != kNeutral) DoContrast(image_, sliders_.contrast, channel_);
    if (sliders_.saturation != kNeutral) DoSat(image_, sliders_.saturation, channel_);
    if (sliders_.gamma != kNeutral) DoGamma(image_, sliders_.gamma, channel_);
    if (sliders_.brightness != kNeutral) DoBrightness(image_, sliders_.brightness, channel_);
    if (observer_) observer_->ImageChanged();
}

void ColorAdjustments::Ok() {
    if (!open_) return;
    // The image stays as adjusted; the backup is no longer needed.
    open_ = false;
    backupColors_ = {};
    backupAlphas_ = {};
    backupPng_ = {};
    if (observer_) observer_->Closed(true);
}

void ColorAdjustments::Cancel() {
    if (!open_) return;
    RestoreBackup();
    open_ = false;
    if (observer_) {
        observer_->ImageChanged();
        observer_->Closed(false);
    }
}

}  // namespace iw
