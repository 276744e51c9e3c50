#include "ui/main/ToolBox.h"

#include <QAction>
#include <QFrame>
#include <QGridLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "editor/ToolTable.h"
#include "ui/UiText.h"
#include "ui/main/MainTexts.h"
#include "ui/widgets/OptionPictures.h"
#include "ui/widgets/ToolCursors.h"

namespace iw::ui {
namespace {

namespace mt = main_texts;

constexpr std::array<char, kToolCount> kLetters = {'S', 'F', 'A', 'T', 'K',
                                                   'P', 'L', 'G', 'E', 'R'};
constexpr int kToolIcon = 24;
constexpr int kColumns = 3;  // option buttons a row

// A picture at the usual scales, so it stays sharp on any screen.
template <typename Paint>
QIcon PictureIcon(Paint paint) {
    QIcon icon;
    for (qreal ratio : {1.0, 1.5, 2.0, 3.0})
        icon.addPixmap(paint(ratio));
    return icon;
}

QString WithNumber(const TextId& text, int number) {
    return QStr(ReplacePlaceholder(GetText(text), "%d", std::to_string(number)));
}

}  // namespace

char ToolLetter(ToolId tool) {
    return kLetters[static_cast<std::size_t>(tool)];
}

ToolBox::ToolBox(Editor& editor, QWidget* parent) : QWidget(parent), editor_(editor) {
    setObjectName(QStringLiteral("fraToolBox"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(MakeToolBar());
    MakePanels();
    auto* panels = new QWidget(this);
    auto* stack = new QVBoxLayout(panels);
    stack->setContentsMargins(0, 0, 0, 0);
    int height = 0;
    for (QFrame* panel : panels_) {
        stack->addWidget(panel);
        height = std::max(height, panel->sizeHint().height());
    }
    // Every panel takes the room of the tallest, so the colours below stay in place.
    panels->setMinimumHeight(height);
    layout->addWidget(panels);
    ToolChanged();
}

QWidget* ToolBox::MakeToolBar() {
    auto* bar = new QFrame(this);
    bar->setObjectName(QStringLiteral("tbrTools"));
    bar->setAccessibleName(Tr(mt::ToolsCaption));
    auto* grid = new QGridLayout(bar);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(4);
    grid->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    for (const ToolInfo& info : AllTools()) {
        const ToolId id = info.id;
        // "tbrToolsPickColor": the tool bar's name and the key without its blank.
        const QString name = QStringLiteral("tbrTools") + QStr(info.key).remove(QLatin1Char(' '));
        const QString tip = QStr(GetText(StdStr(name), mt::kWindow, info.toolTip));
        auto* action = new QAction(UiIcon(ToolIconName(id)), tip, this);
        action->setObjectName(name);
        action->setProperty("key", QStr(info.key));
        action->setCheckable(true);
        action->setShortcut(QKeySequence(QChar(ToolLetter(id))));
        action->setToolTip(QStringLiteral("%1 (%2)").arg(tip).arg(QChar(ToolLetter(id))));
        connect(action, &QAction::triggered, this, [this, id] {
            editor_.Tools().SelectTool(id);
            ToolChanged();  // a click on the checked tool must not leave it unchecked
        });
        tools_[static_cast<std::size_t>(id)] = action;

        auto* button = new QToolButton(bar);
        button->setDefaultAction(action);
        button->setObjectName(action->objectName());
        button->setProperty("key", QStr(info.key));
        button->setIconSize(QSize(kToolIcon, kToolIcon));
        button->setAutoRaise(true);
        const int index = static_cast<int>(id);
        grid->addWidget(button, index / 2, index % 2);
    }
    return bar;
}

QFrame* ToolBox::Panel(const char* name) {
    auto* panel = new QFrame(this);
    panel->setObjectName(QString::fromLatin1(name));
    panel->setFrameShape(QFrame::StyledPanel);
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(3, 3, 3, 3);
    grid->setSpacing(2);
    grid->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return panel;
}

QToolButton* ToolBox::AddOption(QFrame* panel, const char* name, const QString& tag,
                                const QIcon& icon, const QString& tip,
                                std::function<void()> command,
                                std::function<bool(const ToolState&)> chosen) {
    auto* button = new QToolButton(panel);
    button->setObjectName(QString::fromLatin1(name));
    if (!tag.isEmpty()) button->setProperty("tag", tag);
    button->setIcon(icon);
    button->setIconSize(QSize(kOptionPictureSide, kOptionPictureSide));
    button->setToolTip(tip);
    button->setCheckable(true);
    button->setAutoRaise(true);
    connect(button, &QToolButton::clicked, this, [this, command = std::move(command)] {
        command();
        ToolChanged();
    });
    auto* grid = static_cast<QGridLayout*>(panel->layout());
    const int index = grid->count();
    grid->addWidget(button, index / kColumns, index % kColumns);
    options_.push_back({button, std::move(chosen)});
    return button;
}

void ToolBox::MakePanels() {
    ToolControls& tools = editor_.Tools();
    const auto at = [this](OptionPanel panel) -> QFrame*& {
        return panels_[static_cast<std::size_t>(panel)];
    };

    QFrame* selection = at(OptionPanel::Selection) = Panel("fraSelection");
    for (const auto& [name, icon, tip, mode] :
         {std::tuple{"picOpaque", "select-opaque", mt::Opaque, SelectionMode::Opaque},
          std::tuple{"picTransparent", "select-transparent", mt::Transparent,
                     SelectionMode::Transparent}}) {
        AddOption(
            selection, name, {}, UiIcon(icon), Tr(tip),
            [&tools, mode] { tools.SetSelectionMode(mode); },
            [mode](const ToolState& s) { return s.Selection == mode; });
    }

    QFrame* pencil = at(OptionPanel::Pencil) = Panel("fraPencil");
    constexpr std::array<std::string_view, 6> kShapes = {"SSquare", "MSquare", "LSquare",
                                                         "SCircle", "MCircle", "LCircle"};
    for (std::size_t i = 0; i < kShapes.size(); ++i) {
        const std::string shape(kShapes[i]);
        AddOption(
            pencil, "picPen", QStr(shape),
            PictureIcon([&](qreal r) { return BrushPicture(shape, r); }), Tr(mt::kBrushTips[i]),
            [&tools, shape] { tools.SetBrushShape(shape); },
            [shape](const ToolState& s) { return s.BrushShape == shape; });
    }

    QFrame* line = at(OptionPanel::Line) = Panel("fraLine");
    for (int width = 1; width <= 4; ++width) {
        const std::string tag = std::to_string(width);
        AddOption(
            line, "picLine", QStr(tag), PictureIcon([&](qreal r) { return LinePicture(width, r); }),
            WithNumber(mt::LineTip, width), [&tools, tag] { tools.SetLineWidth(tag); },
            [width](const ToolState& s) { return s.LineWidth == width; });
    }

    QFrame* spray = at(OptionPanel::Spray) = Panel("fraSpray");
    for (int radius : {4, 6, 8}) {
        const std::string tag = std::to_string(radius);
        AddOption(
            spray, "picSpray", QStr(tag),
            PictureIcon([&](qreal r) { return SprayPicture(radius, r); }),
            WithNumber(mt::SprayTip, radius), [&tools, tag] { tools.SetSpraySize(tag); },
            [radius](const ToolState& s) { return s.SpraySize == radius; });
    }

    QFrame* gradient = at(OptionPanel::Gradient) = Panel("fraGradient");
    for (const auto& [name, tip, direction] :
         {std::tuple{"picGUp", mt::GradientUp, GradientDirection::Vertical},
          std::tuple{"picGSide", mt::GradientSide, GradientDirection::Horizontal},
          std::tuple{"picGDiag", mt::GradientDiagonal, GradientDirection::Diagonal},
          std::tuple{"picGCenter", mt::GradientCenter, GradientDirection::Center}}) {
        const GradientDirection d = direction;
        AddOption(
            gradient, name, {}, PictureIcon([d](qreal r) { return GradientPicture(d, r); }),
            Tr(tip), [&tools, d] { tools.SetGradientDirection(d); },
            [d](const ToolState& s) { return s.Gradient == d; });
    }

    QFrame* shape = at(OptionPanel::Shape) = Panel("fraShape");
    for (const auto& [name, icon, tip, filled] :
         {std::tuple{"picShpFill", "shape-fill", mt::ShapeFill, true},
          std::tuple{"picShpNoFill", "shape-outline", mt::ShapeNoFill, false}}) {
        const bool fill = filled;
        AddOption(
            shape, name, {}, UiIcon(icon), Tr(tip), [&tools, fill] { tools.SetShapeFilled(fill); },
            [fill](const ToolState& s) { return s.ShapeFilled == fill; });
    }

    at(OptionPanel::Nothing) = Panel("fraNothing");
}

void ToolBox::ToolChanged() {
    const ToolState& state = editor_.Tools().State();
    for (const ToolInfo& info : AllTools())
        tools_[static_cast<std::size_t>(info.id)]->setChecked(info.id == state.CurrentTool);
    const OptionPanel shown = editor_.Tools().Panel();
    for (std::size_t i = 0; i < panels_.size(); ++i)
        panels_[i]->setVisible(static_cast<OptionPanel>(i) == shown);
    for (const Option& option : options_)
        option.button->setChecked(option.chosen(state));
}

}  // namespace iw::ui
