#include "ui/main/EditFeatures.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QToolBar>

#include "ui/UiText.h"
#include "ui/adapters/QtClipboard.h"
#include "ui/dialogs/TextDialog.h"
#include "ui/main/MainActions.h"
#include "ui/main/MainTexts.h"
#include "ui/main/MainWindow.h"
#include "ui/widgets/CanvasWidget.h"

namespace iw::ui {
namespace {

using main_texts::T;

constexpr int kDefaultTextSize = 12;

constexpr TextId Cut = T("mnuCut", "Cu&t");
constexpr TextId Copy = T("mnuCopy", "&Copy");
constexpr TextId Paste = T("mnuPaste", "&Paste");
constexpr TextId Delete = T("mnuDelete", "&Delete");
constexpr TextId SelectAll = T("mnuSelectAll", "Select &All");
constexpr TextId SetHotspot = T("mnuSetHotspot", "Set &Hotspot");

// Follows the editor for the commands' states and the canvas's selection and hotspot. It
// stops following when the canvas goes, which the window deletes before its editor.
class EditFeatures final : public QObject, public IEditorObserver {
  public:
    explicit EditFeatures(MainWindow& window)
        : QObject(&window),
          window_(window),
          editor_(window.GetEditor()),
          clipboard_(*QApplication::clipboard()) {
        look_.font = QApplication::font();
        look_.font.setPointSize(kDefaultTextSize);
        MakeEditCommands();
        MakeHotspotCommand();
        if (QAction* text = window.findChild<QAction*>(QStringLiteral("tbrToolsText"))) {
            // After the tool box has chosen the tool: the window takes the text.
            connect(text, &QAction::triggered, this, [this] { PlaceText(); });
        }
        connect(QApplication::clipboard(), &QClipboard::dataChanged, this, [this] { Refresh(); });
        editor_.AddObserver(*this);
        connect(window.Canvas(), &QObject::destroyed, this,
                [this] { editor_.RemoveObserver(*this); });
        Refresh();
    }

    void SetChanged() override { Refresh(); }
    void CurrentImageChanged() override { Refresh(); }
    void ModeChanged() override { Refresh(); }
    void SelectionChanged() override {
        window_.Canvas()->SelectionChanged();
        Refresh();
    }
    void HotspotChanged() override {
        window_.Canvas()->HotspotChanged();
        Refresh();
    }

  private:
    QAction* AddEdit(const char* name, const TextId& text, QKeySequence::StandardKey key,
                     std::function<void()> command) {
        QAction* action =
            window_.Actions()->AddCommand(MenuId::Edit, name, text, std::move(command));
        action->setShortcut(key);
        return action;
    }

    void MakeEditCommands() {
        EditCommands& edit = editor_.Edit();
        window_.Actions()->EditMenu()->addSeparator();
        cut_ = AddEdit("mnuCut", Cut, QKeySequence::Cut, [this, &edit] { edit.Cut(clipboard_); });
        copy_ =
            AddEdit("mnuCopy", Copy, QKeySequence::Copy, [this, &edit] { edit.Copy(clipboard_); });
        paste_ = AddEdit("mnuPaste", Paste, QKeySequence::Paste,
                         [this, &edit] { edit.Paste(clipboard_, TopLeftVisibleCell()); });
        delete_ = AddEdit("mnuDelete", Delete, QKeySequence::Delete, [&edit] { edit.Delete(); });
        window_.Actions()->EditMenu()->addSeparator();
        selectAll_ = AddEdit("mnuSelectAll", SelectAll, QKeySequence::SelectAll,
                             [&edit] { edit.SelectAll(); });
    }

    void MakeHotspotCommand() {
        HotspotControl& hotspot = editor_.Hotspot();
        QMenu* mode = window_.Actions()->MenuFor(MenuId::Mode);
        setHotspot_ = new QAction(UiIcon("hotspot"), Tr(SetHotspot), &window_);
        setHotspot_->setObjectName(QStringLiteral("mnuSetHotspot"));
        setHotspot_->setCheckable(true);
        setHotspot_->setToolTip(Tr(SetHotspot).remove(QLatin1Char('&')));
        connect(setHotspot_, &QAction::triggered, this, [this, &hotspot](bool checked) {
            if (checked) {
                hotspot.Begin();
            } else {
                hotspot.Cancel();
            }
            Refresh();
        });
        // Below the three modes, above Check Icon.
        QAction* before = nullptr;
        for (QAction* action : mode->actions()) {
            if (action->isSeparator()) before = action;
        }
        mode->insertAction(before, setHotspot_);
        window_.Actions()->MainToolBar()->addSeparator();
        window_.Actions()->MainToolBar()->addAction(setHotspot_);
    }

    // A paste lands on the top-left cell the canvas shows.
    Point TopLeftVisibleCell() const {
        const QRect visible = window_.Canvas()->visibleRegion().boundingRect();
        if (visible.isEmpty()) return {};
        return editor_.View().CanvasToImage(visible.left(), visible.top());
    }

    void PlaceText() {
        if (editor_.Tools().State().CurrentTool != ToolId::Text || !editor_.HasImage()) return;
        const ToolState& state = editor_.Tools().State();
        look_.color = state.ForeColor;
        look_.alpha = state.CurrentAlpha;
        TextDialog dialog(look_, &window_);
        if (dialog.exec() != QDialog::Accepted) return;
        look_ = dialog.Look();
        editor_.Edit().PlaceText(dialog.Rendered());
    }

    void Refresh() {
        const EditCommands& edit = editor_.Edit();
        for (QAction* action : {cut_, copy_, delete_, selectAll_})
            action->setEnabled(edit.CanEdit());
        paste_->setEnabled(edit.CanPaste(clipboard_));
        setHotspot_->setEnabled(editor_.Hotspot().Offered());
        setHotspot_->setChecked(editor_.Hotspot().Setting());
    }

    MainWindow& window_;
    Editor& editor_;
    QtClipboard clipboard_;
    TextLook look_;
    QAction* cut_ = nullptr;
    QAction* copy_ = nullptr;
    QAction* paste_ = nullptr;
    QAction* delete_ = nullptr;
    QAction* selectAll_ = nullptr;
    QAction* setHotspot_ = nullptr;
};

}  // namespace

void InstallEditFeatures(MainWindow& window) {
    new EditFeatures(window);
}

}  // namespace iw::ui
