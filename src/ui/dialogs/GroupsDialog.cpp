#include "ui/dialogs/GroupsDialog.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <set>

#include "services/core/QuietContext.h"
#include "ui/UiText.h"
#include "ui/dialogs/DialogParts.h"
#include "ui/widgets/IconListView.h"

namespace iw::ui {
namespace {

constexpr std::string_view kWindow = "frmGroups";
constexpr int kPictureSide = 32;
constexpr int kColumnGap = 16;

QString Text(std::string_view key, std::string_view text) {
    return Caption(kWindow, key, text);
}

// The image that stands for a group: the largest that fits the picture, else the smallest;
// the deepest of that size.
const IconImage* StandIn(const IconSet& set) {
    const IconImage* best = nullptr;
    const auto score = [](const IconImage& image) {
        const int side = std::max(image.info.Width(), image.info.Height());
        return std::pair(side <= kPictureSide ? side : -side,
                         static_cast<int>(image.info.bitCount));
    };
    for (int i = 0; i < set.Count(); ++i) {
        if (!best || score(set.Image(i)) > score(*best)) best = &set.Image(i);
    }
    return best;
}

QString JoinNumbers(const std::set<int>& numbers) {
    QStringList parts;
    for (const int number : numbers)
        parts << QString::number(number);
    return parts.join(QStringLiteral(", "));
}

}  // namespace

GroupsDialog::GroupsDialog(const ProgramFile& program, const GroupChoice& current, QWidget* parent)
    : QDialog(parent) {
    setObjectName(QString::fromUtf8(kWindow.data(), kWindow.size()));
    setWindowTitle(Text("Caption", "Icon Groups"));

    auto* intro =
        new QLabel(Text("lblGroups", "%f holds several icons or cursors. Choose the one to edit:")
                       .replace(QStringLiteral("%f"), QFileInfo(QStr(program.Path())).fileName()),
                   this);
    intro->setObjectName(QStringLiteral("lblGroups"));
    intro->setWordWrap(true);

    groups_ = FlatList(
        this, "lstGroups",
        {Text("colGroup", "Group"), Text("colLanguage", "Language"), Text("colImages", "Images"),
         Text("colSizes", "Sizes"), Text("colDepths", "Bits per pixel")});
    groups_->setIconSize(QSize(kPictureSide, kPictureSide));

    // The pictures are read without telling the user anything: a group that cannot be read
    // shows no picture here and says why when it is opened.
    QuietContext quiet;
    const std::vector<ResourceGroup>& all = program.Groups();
    for (int index = 0; index < static_cast<int>(all.size()); ++index) {
        std::vector<std::uint16_t> languages = all[static_cast<std::size_t>(index)].languages;
        if (languages.empty()) languages.push_back(all[static_cast<std::size_t>(index)].language);
        for (const std::uint16_t language : languages) {
            const ResourceGroup group = program.Describe(index, language);
            std::set<int> sides;
            std::set<int> depths;
            for (const ResourceImageSummary& image : group.images) {
                sides.insert(std::max(image.width, image.height));
                depths.insert(image.bitCount);
            }
            const QString kind = group.kind == ResourceGroupKind::Icon
                                     ? Text("lblIcon", "Icon")
                                     : Text("lblCursor", "Cursor");
            auto* item = new QTreeWidgetItem(
                groups_,
                {kind + QLatin1Char(' ') + QStr(group.name.Display()), QString::number(language),
                 QString::number(group.images.size()), JoinNumbers(sides), JoinNumbers(depths)});
            IconSet scratch;
            if (program.ReadGroup(index, language, scratch, quiet.Context())) {
                if (const IconImage* image = StandIn(scratch))
                    item->setIcon(0,
                                  QIcon(QPixmap::fromImage(IconThumbnail(*image, kPictureSide))));
            }
            if (index == current.group && (!current.language || *current.language == language))
                groups_->setCurrentItem(item);
            rows_.push_back({index, language});
        }
    }
    // Room between the columns, which fit their texts.
    for (int column = 0; column < groups_->columnCount(); ++column) {
        groups_->resizeColumnToContents(column);
        groups_->setColumnWidth(column, groups_->columnWidth(column) + kColumnGap);
    }
    if (!groups_->currentItem()) groups_->setCurrentItem(groups_->topLevelItem(0));

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* open = buttons->addButton(Text("cmdOpen", "&Open"), QDialogButtonBox::AcceptRole);
    open->setObjectName(QStringLiteral("cmdOpen"));
    open->setDefault(true);
    QPushButton* openAll = buttons->addButton(
        Text("cmdOpenAll", "Open &All, Each in Its Own Window"), QDialogButtonBox::AcceptRole);
    openAll->setObjectName(QStringLiteral("cmdOpenAll"));
    QPushButton* cancel =
        buttons->addButton(Tr({"cmdCancel", "Constants", "Cancel"}), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(open, &QPushButton::clicked, this, &QDialog::accept);
    connect(openAll, &QPushButton::clicked, this, [this] {
        all_ = true;
        accept();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(groups_, &QTreeWidget::itemActivated, this, &QDialog::accept);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addWidget(groups_, 1);
    layout->addWidget(buttons);
    int width = groups_->frameWidth() * 2 + 24;
    for (int column = 0; column < groups_->columnCount(); ++column)
        width += groups_->columnWidth(column);
    resize(std::clamp(width, 480, 900),
           std::clamp(groups_->sizeHintForRow(0) * static_cast<int>(rows_.size() + 1) + 140, 260,
                      600));
}

GroupChoice GroupsDialog::Chosen() const {
    const int row = groups_->indexOfTopLevelItem(groups_->currentItem());
    return row >= 0 ? rows_[static_cast<std::size_t>(row)] : GroupChoice{};
}

}  // namespace iw::ui
