#pragma once
// frmGroups: the icon and cursor groups of a Windows program or library, one row for each
// group in each of its languages, with a picture, the name, the language, the sizes and
// depths. The user opens one of them, or every row, each as a document of its own.

#include <QDialog>
#include <vector>

#include "document/io/ProgramIcons.h"

class QTreeWidget;

namespace iw::ui {

class GroupsDialog final : public QDialog {
    Q_OBJECT

  public:
    // `current`: the group the editor shows now, chosen at first.
    GroupsDialog(const ProgramFile& program, const GroupChoice& current, QWidget* parent = nullptr);

    // Every row, in order.
    const std::vector<GroupChoice>& Rows() const { return rows_; }
    bool AllChosen() const { return all_; }
    // The row to open when not all of them.
    GroupChoice Chosen() const;

  private:
    QTreeWidget* groups_;
    std::vector<GroupChoice> rows_;
    bool all_ = false;
};

}  // namespace iw::ui
