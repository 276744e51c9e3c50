#pragma once
// Parts the dialogs share: captions kept in one table per dialog (control name, English
// text) and looked up under the dialog's name, buttons named after their caption's key, and
// flat multi-column lists.

#include <QPushButton>
#include <QStringList>
#include <QTreeWidget>
#include <span>
#include <string_view>

#include "ui/UiText.h"

namespace iw::ui {

struct CaptionEntry {
    std::string_view key;
    std::string_view text;
};

inline QString CaptionFrom(std::string_view window, std::span<const CaptionEntry> table,
                           std::string_view key) {
    for (const CaptionEntry& entry : table) {
        if (entry.key == key) return Caption(window, entry.key, entry.text);
    }
    return {};
}

// A push button whose object name is `name` and whose text is its caption.
inline QPushButton* CaptionedButton(QWidget* parent, const char* name, const QString& text) {
    auto* button = new QPushButton(text, parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

// A list of rows with columns under `headers`, selected a whole row at a time.
inline QTreeWidget* FlatList(QWidget* parent, const char* name, const QStringList& headers) {
    auto* list = new QTreeWidget(parent);
    list->setObjectName(QString::fromLatin1(name));
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAllColumnsShowFocus(true);
    list->setHeaderLabels(headers);
    return list;
}

}  // namespace iw::ui
