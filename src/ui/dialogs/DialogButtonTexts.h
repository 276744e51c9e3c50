#pragma once
// The shared buttons' captions, looked up under "Constants" whatever the window.

#include "services/core/Texts.h"

namespace iw::ui::buttons {

inline constexpr TextId OK{"cmdOK", "Constants", "OK"};
inline constexpr TextId Cancel{"cmdCancel", "Constants", "Cancel"};
inline constexpr TextId Next{"cmdNext", "Constants", "&Next >"};
inline constexpr TextId Finish{"cmdFinish", "Constants", "Finish >"};

}  // namespace iw::ui::buttons
