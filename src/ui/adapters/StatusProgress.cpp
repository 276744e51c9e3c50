#include "ui/adapters/StatusProgress.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>

#include "ui/UiText.h"

namespace iw::ui {

StatusProgress::StatusProgress(QStatusBar& bar)
    : text_(new QLabel(&bar)), bar_(new QProgressBar(&bar)) {
    text_->setObjectName(QStringLiteral("lblProgress"));
    bar_->setObjectName(QStringLiteral("prgProgress"));
    bar_->setMaximumWidth(200);
    bar_->setTextVisible(false);
    bar_->hide();
    bar.addWidget(text_, 1);
    bar.addPermanentWidget(bar_);
}

void StatusProgress::SetStatus(std::string_view text) {
    text_->setText(QStr(text));
    // The work that put up the bar has ended when its text is cleared.
    if (text.empty()) bar_->hide();
}

void StatusProgress::SetProgress(int done, int total) {
    if (total <= 0 || done >= total) {
        bar_->hide();
        return;
    }
    bar_->setRange(0, total);
    bar_->setValue(done);
    bar_->show();
}

void StatusProgress::Yield() {
    ++yielding_;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    --yielding_;
}

}  // namespace iw::ui
