#include "ui/adapters/LogList.h"

#include <QListWidget>

#include "ui/UiText.h"

namespace iw::ui {
namespace {
// A long session writes many tags; the oldest go beyond this many.
constexpr int kMaxEntries = 20000;
}  // namespace

LogList::LogList(QWidget* parent) : QDockWidget(parent), list_(new QListWidget(this)) {
    setObjectName(QStringLiteral("frmLog"));
    setWindowTitle(Caption("frmLog", "Caption", "Log"));
    list_->setObjectName(QStringLiteral("lstLog"));
    list_->setUniformItemSizes(true);
    setWidget(list_);
    setAllowedAreas(Qt::BottomDockWidgetArea | Qt::RightDockWidgetArea);
}

void LogList::AddLogEntry(std::string_view tag) {
    if (list_->count() >= kMaxEntries) delete list_->takeItem(0);
    list_->addItem(QStr(tag));
    list_->scrollToBottom();
}

}  // namespace iw::ui
