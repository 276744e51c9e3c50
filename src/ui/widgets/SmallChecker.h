#pragma once
// The small light checkerboard drawn under pictures at actual size (previews, thumbnails,
// animation frames) so their clear pixels show.

#include <QBrush>

namespace iw::ui {

const QBrush& SmallChecker();

}  // namespace iw::ui
