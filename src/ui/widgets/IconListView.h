#pragma once
// picIcons: every image of the set as a thumbnail with its size, depth and a PNG mark. A
// click edits that image; the inspector's duplicates are highlighted. Thumbnails are made
// only for the rows painted and kept until their image changes.

#include <QAbstractListModel>
#include <QImage>
#include <QListView>
#include <QStyledItemDelegate>
#include <vector>

#include "editor/Editor.h"

namespace iw::ui {

// An image drawn over what lies beneath it, fitted into a `side` x `side` box (logical
// pixels) at the screen's resolution.
QImage IconThumbnail(const IconImage& image, int side);

class IconListModel final : public QAbstractListModel {
    Q_OBJECT

  public:
    enum Role { PngRole = Qt::UserRole + 1, HighlightRole, ThumbnailRole };

    explicit IconListModel(const Editor& editor, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    // The set changed (images added, removed, reordered; a new set): every row anew.
    void Reset();
    // The pixels of one image changed.
    void ImageChanged(int row);
    // The inspector's highlighted images changed.
    void HighlightsChanged();

  private:
    const QImage& Thumbnail(int row) const;

    const Editor& editor_;
    int rows_ = 0;
    mutable std::vector<QImage> thumbnails_;  // null: not made yet
};

class IconListDelegate final : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

class IconListView final : public QListView {
    Q_OBJECT

  public:
    explicit IconListView(Editor& editor, QWidget* parent = nullptr);

    IconListModel& Model() { return *model_; }
    // The editor's events: which image is edited, the set, one image's pixels, highlights.
    void CurrentImageChanged();
    void SetChanged();
    void ImageChanged();
    void InspectorChanged() { model_->HighlightsChanged(); }

  signals:
    // A right click on an image (or on the empty list: image -1), for a context menu.
    void ImageMenuRequested(int image, const QPoint& globalPosition);

  private:
    void Clicked(const QModelIndex& index);

    Editor& editor_;
    IconListModel* model_;
};

}  // namespace iw::ui
