#pragma once
// The text lookup and the program's icons as the Qt layer uses them.

#include <QIcon>
#include <QString>
#include <string>
#include <string_view>

#include "services/core/Texts.h"

namespace iw::ui {

inline QString QStr(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string StdStr(const QString& text) {
    return text.toStdString();
}

// A text of the system through the lookup.
inline QString Tr(const TextId& id) {
    return QStr(GetText(id));
}

// A window's caption or one of its controls' captions: section the window's name, key
// "Caption" or the control's name.
inline QString Caption(std::string_view window, std::string_view key, std::string_view text) {
    return QStr(GetText(key, window, text));
}

// Registers the library's icons; UiIcon does it on first use.
void EnsureUiResources();

// One of the program's own icons (src/ui/resources/icons), sharp at any scale.
inline QIcon UiIcon(std::string_view name) {
    EnsureUiResources();
    return QIcon(QStringLiteral(":/icons/") + QStr(name) + QStringLiteral(".svg"));
}

}  // namespace iw::ui
