#include "ui/widgets/IconListView.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

#include "ui/UiText.h"
#include "ui/widgets/PixelPicture.h"
#include "ui/widgets/SmallChecker.h"

namespace iw::ui {
namespace {

constexpr int kThumbSide = 48;  // logical pixels
constexpr int kPadding = 4;

const TextId kBitsText{"BitsPerPixel", "Constants", "%d bit"};
const TextId kPngMark{"PNG", "Constants", "PNG"};

}  // namespace

// ---- Model ------------------------------------------------------------------------------

IconListModel::IconListModel(const Editor& editor, QObject* parent)
    : QAbstractListModel(parent), editor_(editor) {}

int IconListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

void IconListModel::Reset() {
    beginResetModel();
    rows_ = editor_.Set().Count();
    thumbnails_.assign(static_cast<std::size_t>(rows_), QImage());
    endResetModel();
}

void IconListModel::ImageChanged(int row) {
    if (row < 0 || row >= rows_) return;
    thumbnails_[static_cast<std::size_t>(row)] = QImage();
    emit dataChanged(index(row), index(row), {ThumbnailRole});
}

void IconListModel::HighlightsChanged() {
    if (rows_ > 0) emit dataChanged(index(0), index(rows_ - 1), {HighlightRole});
}

QImage IconThumbnail(const IconImage& image, int side) {
    const PixelPicture picture = MakePixelPicture(image);
    // Large images shrink smoothly into the box once; small ones are drawn as they are.
    const qreal ratio = qApp->devicePixelRatio();
    const QSize box = (QSizeF(side, side) * ratio).toSize();
    QSize size = picture.Size();
    if (size.width() * ratio > box.width() || size.height() * ratio > box.height()) {
        size = size.scaled(box, Qt::KeepAspectRatio);
    } else {
        size = (QSizeF(size) * ratio).toSize();
    }
    QImage thumbnail(size, QImage::Format_ARGB32_Premultiplied);
    thumbnail.fill(Qt::transparent);
    thumbnail.setDevicePixelRatio(ratio);
    QPainter painter(&thumbnail);
    DrawPictureOver(painter, QRect(QPoint(0, 0), (QSizeF(size) / ratio).toSize()), picture);
    return thumbnail;
}

const QImage& IconListModel::Thumbnail(int row) const {
    QImage& thumbnail = thumbnails_[static_cast<std::size_t>(row)];
    if (thumbnail.isNull()) thumbnail = IconThumbnail(editor_.Set().Image(row), kThumbSide);
    return thumbnail;
}

QVariant IconListModel::data(const QModelIndex& index, int role) const {
    const int row = index.row();
    // While a file is read the set may hold fewer images than the rows until Reset.
    if (!index.isValid() || row < 0 || row >= rows_ || row >= editor_.Set().Count()) return {};
    const IconInfo& info = editor_.Set().Info(row);
    switch (role) {
        case Qt::DisplayRole:
            return QStringLiteral("%1 x %2\n").arg(info.Width()).arg(info.Height()) +
                   QStr(
                       ReplacePlaceholder(GetText(kBitsText), "%d", std::to_string(info.bitCount)));
        case PngRole:
            return info.png != 0;
        case HighlightRole: {
            const std::vector<int>& marked = editor_.Inspector().HighlightedImages();
            return std::find(marked.begin(), marked.end(), row) != marked.end();
        }
        case ThumbnailRole:
            return Thumbnail(row);
        default:
            return {};
    }
}

// ---- Delegate ---------------------------------------------------------------------------

QSize IconListDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    const int text = 2 * option.fontMetrics.height();
    return {kThumbSide + 3 * kPadding + option.fontMetrics.horizontalAdvance("256 x 256  PNG"),
            std::max(kThumbSide, text) + 2 * kPadding};
}

void IconListDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    QStyleOptionViewItem plain = option;
    initStyleOption(&plain, index);
    plain.text.clear();
    const QStyle* style = plain.widget ? plain.widget->style() : QApplication::style();
    if (index.data(IconListModel::HighlightRole).toBool() &&
        !option.state.testFlag(QStyle::State_Selected)) {
        painter->fillRect(option.rect, QColor(255, 214, 102));  // a duplicate the inspector shows
    }
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &plain, painter, plain.widget);

    const QRect thumbBox(option.rect.left() + kPadding,
                         option.rect.top() + (option.rect.height() - kThumbSide) / 2, kThumbSide,
                         kThumbSide);
    const QImage thumbnail = index.data(IconListModel::ThumbnailRole).value<QImage>();
    if (!thumbnail.isNull()) {
        const QSize size = (QSizeF(thumbnail.size()) / thumbnail.devicePixelRatio()).toSize();
        const QRect target(thumbBox.center() - QPoint(size.width() / 2, size.height() / 2), size);
        // A small checkerboard under the image shows its size and its clear pixels.
        painter->save();
        painter->setBrushOrigin(target.topLeft());
        painter->fillRect(target, SmallChecker());
        painter->restore();
        painter->drawImage(target, thumbnail);
    }

    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
    const QRect textBox =
        option.rect.adjusted(kThumbSide + 2 * kPadding, kPadding, -kPadding, -kPadding);
    painter->drawText(textBox, Qt::AlignLeft | Qt::AlignVCenter, index.data().toString());
    if (index.data(IconListModel::PngRole).toBool()) {
        const QString mark = Tr(kPngMark);
        QFont font = option.font;
        font.setBold(true);
        font.setPointSizeF(font.pointSizeF() * 0.8);
        const QFontMetrics metrics(font);
        const QRect badge(textBox.right() - metrics.horizontalAdvance(mark) - 6,
                          textBox.top() + (textBox.height() - metrics.height()) / 2,
                          metrics.horizontalAdvance(mark) + 6, metrics.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(47, 111, 222));
        painter->drawRoundedRect(badge, 3, 3);
        painter->setFont(font);
        painter->setPen(Qt::white);
        painter->drawText(badge, Qt::AlignCenter, mark);
        painter->restore();
    }
}

// ---- View -------------------------------------------------------------------------------

IconListView::IconListView(Editor& editor, QWidget* parent)
    : QListView(parent), editor_(editor), model_(new IconListModel(editor, this)) {
    setObjectName(QStringLiteral("picIcons"));
    setModel(model_);
    setItemDelegate(new IconListDelegate(this));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformItemSizes(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setContextMenuPolicy(Qt::CustomContextMenu);
    // A click, or the arrow keys moving through the list, edits that image.
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) { Clicked(index); });
    connect(this, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        emit ImageMenuRequested(indexAt(at).row(), viewport()->mapToGlobal(at));
    });
}

void IconListView::Clicked(const QModelIndex& index) {
    if (index.isValid() && index.row() != editor_.CurrentIcon()) editor_.SelectImage(index.row());
}

void IconListView::CurrentImageChanged() {
    const QModelIndex index = model_->index(editor_.CurrentIcon());
    if (index != currentIndex()) setCurrentIndex(index);
    scrollTo(index);
}

void IconListView::SetChanged() {
    model_->Reset();
    CurrentImageChanged();
}

void IconListView::ImageChanged() {
    model_->ImageChanged(editor_.CurrentIcon());
}

}  // namespace iw::ui
