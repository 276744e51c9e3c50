#include "ui/preview/PreviewDialog.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include "ui/UiText.h"
#include "ui/dialogs/DialogButtonTexts.h"
#include "ui/preview/SetPreviews.h"

namespace iw::ui {
namespace {

constexpr std::string_view kWindow = "frmPreview";

QString Text(std::string_view key, std::string_view text) {
    return Caption(kWindow, key, text);
}

QLabel* Label(QWidget* parent, const char* name, std::string_view text) {
    auto* label = new QLabel(Text(name, text), parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

}  // namespace

PreviewDialog::PreviewDialog(const IconSet& set, const QString& fileName, const QString& title,
                             QWidget* parent)
    : QDialog(parent), pictures_(std::make_unique<SetPictures>(set)) {
    setObjectName(QStringLiteral("frmPreview"));
    setWindowTitle(Text("Caption", "Preview"));

    // Actual size: one strip a background, scrolled together when the set is large.
    auto* strips = new QWidget;
    auto* stripGrid = new QGridLayout(strips);
    stripGrid->setContentsMargins(0, 0, 0, 0);
    const std::array<std::tuple<StripBackground, const char*, std::string_view>, 3> rows = {{
        {StripBackground::Light, "lblLight", "Light"},
        {StripBackground::Dark, "lblDark", "Dark"},
        {StripBackground::Checkered, "lblChecker", "Checkered"},
    }};
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        const auto& [background, name, text] = rows[static_cast<std::size_t>(row)];
        stripGrid->addWidget(Label(strips, name, text), row, 0, Qt::AlignTop);
        stripGrid->addWidget(new SetStrip(*pictures_, background, strips), row, 1, Qt::AlignLeft);
    }
    stripGrid->setColumnStretch(2, 1);
    auto* scroll = new QScrollArea;
    scroll->setObjectName(QStringLiteral("scrActual"));
    scroll->setWidget(strips);
    scroll->setWidgetResizable(false);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* actual = new QGroupBox(Text("fraActual", "Actual Size"));
    actual->setObjectName(QStringLiteral("fraActual"));
    auto* actualLayout = new QVBoxLayout(actual);
    actualLayout->addWidget(scroll);

    auto* desktop = new QGroupBox(Text("fraDesktop", "On the Desktop"));
    desktop->setObjectName(QStringLiteral("fraDesktop"));
    auto* desktopGrid = new QGridLayout(desktop);
    desktopGrid->addWidget(Label(desktop, "lblFileManager", "File manager"), 0, 0);
    desktopGrid->addWidget(new DesktopScene(*pictures_, DesktopPlace::FileManager, fileName), 1, 0,
                           3, 1, Qt::AlignTop | Qt::AlignLeft);
    desktopGrid->addWidget(Label(desktop, "lblTaskBar", "Task bar"), 0, 1);
    desktopGrid->addWidget(new DesktopScene(*pictures_, DesktopPlace::TaskBar, title), 1, 1,
                           Qt::AlignTop | Qt::AlignLeft);
    desktopGrid->addWidget(Label(desktop, "lblTitleBar", "Title bar"), 2, 1, Qt::AlignBottom);
    desktopGrid->addWidget(new DesktopScene(*pictures_, DesktopPlace::TitleBar, title), 3, 1,
                           Qt::AlignTop | Qt::AlignLeft);
    desktopGrid->setColumnStretch(2, 1);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok = buttons->addButton(Tr(buttons::OK), QDialogButtonBox::AcceptRole);
    ok->setObjectName(QStringLiteral("cmdOK"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(actual, 1);
    layout->addWidget(desktop);
    layout->addWidget(buttons);

    // As large as the strips ask for, within the screen.
    const QSize wanted = strips->sizeHint() + QSize(48, 0);
    const QRect screen =
        this->screen() ? this->screen()->availableGeometry() : QRect(0, 0, 1280, 900);
    scroll->setMinimumSize(std::min(wanted.width(), screen.width() * 4 / 5),
                           std::min(wanted.height(), screen.height() / 2));
}

PreviewDialog::~PreviewDialog() = default;

}  // namespace iw::ui
