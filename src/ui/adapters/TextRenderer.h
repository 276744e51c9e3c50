#pragma once
// Text drawn into a picture for the Text tool: the text's own box, transparent around the
// glyphs, the glyphs in one colour whose alpha is the current alpha times their coverage.

#include <QFont>
#include <QString>

#include "document/model/Colors.h"
#include "editor/RgbaPicture.h"

namespace iw::ui {

struct TextLook {
    QFont font;
    bool antialias = true;
    PackedColor color = 0;  // a marker colour draws black
    int alpha = 255;
};

// Lines are kept as typed; an empty or blank-only text gives an empty picture. The font's
// point size is taken at 96 dots an inch whatever the screen, so a size gives the same
// pixels everywhere.
RgbaPicture RenderText(const QString& text, const TextLook& look);

}  // namespace iw::ui
