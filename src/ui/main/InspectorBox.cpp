#include "ui/main/InspectorBox.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "editor/Inspector.h"
#include "ui/UiText.h"
#include "ui/main/MainTexts.h"

namespace iw::ui {
namespace {
constexpr int kStatusIcon = 24;
}

InspectorBox::InspectorBox(Editor& editor, QWidget* parent)
    : QFrame(parent),
      editor_(editor),
      check_(new QLabel(this)),
      exec_(new QLabel(this)),
      text_(new QLabel(this)),
      fix_(new QPushButton(this)) {
    setObjectName(QStringLiteral("picInspector"));
    setFrameShape(QFrame::StyledPanel);
    check_->setObjectName(QStringLiteral("imgCheck"));
    check_->setPixmap(UiIcon("check").pixmap(QSize(kStatusIcon, kStatusIcon), devicePixelRatioF()));
    exec_->setObjectName(QStringLiteral("imgExec"));
    exec_->setPixmap(UiIcon("exec").pixmap(QSize(kStatusIcon, kStatusIcon), devicePixelRatioF()));
    text_->setObjectName(QStringLiteral("lblInspector"));
    text_->setWordWrap(true);
    text_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    fix_->setObjectName(QStringLiteral("cmdFix"));
    connect(fix_, &QPushButton::clicked, this, [this] { editor_.Inspector().Fix(); });

    auto* title = new QLabel(Tr(main_texts::InspectorCaption), this);
    title->setObjectName(QStringLiteral("lblInspectorTitle"));
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);

    auto* grid = new QGridLayout(this);
    grid->addWidget(title, 0, 0, 1, 3);
    grid->addWidget(check_, 1, 0, Qt::AlignTop);
    grid->addWidget(exec_, 1, 0, Qt::AlignTop);
    grid->addWidget(text_, 1, 1, 1, 2);
    grid->addWidget(fix_, 2, 2, Qt::AlignRight);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(0, kStatusIcon);
    InspectorChanged();
}

void InspectorBox::InspectorChanged() {
    const InspectorPanel& panel = editor_.Inspector().Panel();
    text_->setText(QStr(panel.text));
    check_->setVisible(panel.checkVisible);
    exec_->setVisible(panel.execVisible);
    fix_->setText(QStr(panel.fixCaption));
    fix_->setVisible(panel.fixVisible);
    // The panel keeps its last words while the set is not examined; greyed, they read as old.
    setEnabled(InspectorApplies(editor_.Set()));
}

}  // namespace iw::ui
