#include "ui/main/ProgramGroups.h"

#include <QTimer>
#include <algorithm>

#include "document/io/ProgramIcons.h"
#include "ui/dialogs/GroupsDialog.h"
#include "ui/main/MainWindow.h"

namespace iw::ui {
namespace {

constexpr int kCascade = 32;  // how far each further window is moved, when not maximised

// The picker's rows: each group in each of its languages.
std::size_t Rows(const ProgramFile& program) {
    std::size_t rows = 0;
    for (const ResourceGroup& group : program.Groups())
        rows += std::max<std::size_t>(group.languages.size(), 1);
    return rows;
}

// Follows one window's editor; the offer is looked at once the open that made it is over,
// so that a window opened on a chosen group (which offers nothing) never shows it.
class GroupOffer final : public QObject, public IEditorObserver {
  public:
    explicit GroupOffer(MainWindow& window) : QObject(&window), window_(window) {
        window.GetEditor().AddObserver(*this);
    }
    // The editor goes before this object (a child of the window) and sends nothing more.

    void CaptionChanged() override {
        if (posted_) return;
        posted_ = true;
        QTimer::singleShot(0, this, [this] {
            posted_ = false;
            if (window_.GetEditor().Document().TakeGroupOffer()) Offer();
        });
    }

  private:
    void Offer() {
        DocumentSession& document = window_.GetEditor().Document();
        const std::string path = document.ProgramPath();
        const std::optional<ProgramFile> program = ProgramFile::Open(path);
        if (!program || Rows(*program) < 2) return;
        const int first = program->Table().FirstGroup();
        const GroupChoice shown{first, program->Groups()[static_cast<std::size_t>(first)].language};
        GroupsDialog dialog(*program, shown, &window_);
        if (dialog.exec() != QDialog::Accepted) return;
        const auto same = [](const GroupChoice& a, const GroupChoice& b) {
            return a.group == b.group && a.language == b.language;
        };
        if (!dialog.AllChosen()) {
            if (!same(dialog.Chosen(), shown)) document.OpenProgramGroup(path, dialog.Chosen());
            return;
        }
        int placed = 0;
        for (const GroupChoice& row : dialog.Rows()) {
            if (!same(row, shown)) OpenInAnotherWindow(path, row, ++placed);
        }
    }

    void OpenInAnotherWindow(const std::string& path, const GroupChoice& group, int placed) {
        auto* other = new MainWindow(window_.OptionsForAnotherWindow());
        other->setAttribute(Qt::WA_DeleteOnClose);
        other->Start(QString());
        if (!other->isMaximized()) other->move(window_.pos() + QPoint(kCascade, kCascade) * placed);
        // The question about opening a program was answered in this window.
        other->GetEditor().Document().OpenProgramGroup(path, group, true);
    }

    MainWindow& window_;
    bool posted_ = false;
};

}  // namespace

void InstallProgramGroups(MainWindow& window) {
    new GroupOffer(window);
}

}  // namespace iw::ui
