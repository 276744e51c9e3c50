#pragma once
// The surfaces of frmPreview, each painting the icon set as it would show somewhere:
// SetStrip every image at its actual size on one background, DesktopScene the one image a
// desktop would pick (the core's BestFitImage) for a file manager's large icons, a task
// bar or a title bar.

#include <QWidget>
#include <vector>

#include "document/model/IconSet.h"
#include "ui/widgets/PixelPicture.h"

namespace iw::ui {

// The set's images as Qt draws them, made once for the window.
struct SetPictures {
    explicit SetPictures(const IconSet& set);
    const IconSet& set;
    std::vector<PixelPicture> pictures;
};

enum class StripBackground { Light, Dark, Checkered };

class SetStrip final : public QWidget {
    Q_OBJECT

  public:
    SetStrip(const SetPictures& pictures, StripBackground background, QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const SetPictures& pictures_;
    StripBackground background_;
};

enum class DesktopPlace { FileManager, TaskBar, TitleBar };

class DesktopScene final : public QWidget {
    Q_OBJECT

  public:
    // `name`: the file name under the icon or the title beside it.
    DesktopScene(const SetPictures& pictures, DesktopPlace place, QString name,
                 QWidget* parent = nullptr);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    // The icon drawn side x side at `target`'s top left, from the image that fits best.
    void DrawIcon(class QPainter& painter, QPoint at, int side) const;

    const SetPictures& pictures_;
    DesktopPlace place_;
    QString name_;
};

}  // namespace iw::ui
