#pragma once
// The tool bar tbrTools (ten tools, two a row, each with its one-letter key) and under it
// the tools' option panels (fraSelection, fraPencil, fraLine, fraSpray, fraGradient,
// fraShape, fraNothing), of which the core's OptionPanel says which one shows.

#include <QWidget>
#include <array>
#include <vector>

#include "editor/Editor.h"

class QAction;
class QFrame;
class QToolButton;

namespace iw::ui {

// A tool's key letter (S, F, A, T, K, P, L, G, E, R).
char ToolLetter(ToolId tool);

class ToolBox final : public QWidget {
    Q_OBJECT

  public:
    explicit ToolBox(Editor& editor, QWidget* parent = nullptr);

    // The current tool or an option changed: the checks and the panel follow.
    void ToolChanged();
    QAction* ToolAction(ToolId tool) const { return tools_[static_cast<std::size_t>(tool)]; }

  private:
    struct Option {
        QToolButton* button;
        std::function<bool(const ToolState&)> chosen;
    };

    QWidget* MakeToolBar();
    QFrame* Panel(const char* name);
    // An option button: `command` applies it, `chosen` says whether it is the current one.
    QToolButton* AddOption(QFrame* panel, const char* name, const QString& tag, const QIcon& icon,
                           const QString& tip, std::function<void()> command,
                           std::function<bool(const ToolState&)> chosen);
    void MakePanels();

    Editor& editor_;
    std::array<QAction*, kToolCount> tools_{};
    std::array<QFrame*, 7> panels_{};  // by OptionPanel
    std::vector<Option> options_;
};

}  // namespace iw::ui
