#include "graph/GraphButtons.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace TARN {

GraphButtons::GraphButtons(QWidget* parent) : QScrollArea(parent), mGroup(new QButtonGroup(this))
{
    constexpr int GroupGap = 5;
    const struct
    {
        Command command;
        QString toolTip;
        const char* icon; ///< null for the text "Auto"
    } commands[] = {
        {ZoomIn, tr("Zoom In"), "zoomin"},
        {ZoomOut, tr("Zoom Out"), "zoomout"},
        {ZoomOneToOne, tr("Zoom 1:1"), "zoom1"},
        {ZoomMarker, tr("Zoom Marker") + " (Z)", "zoomrect"},
        {ShowAll, tr("Show all") + " (Home)", "showAll"},
        {ClearAll, tr("Clear All") + " (X)", "fail"},
        {AutomaticMode, tr("Automatic Mode") + " (A)", nullptr},
        {SplitMode, tr("Split Mode") + " (F3)", "graphSplit"},
        {SingleMode, tr("Single Graph Mode") + " (F2)", "graphSingle"},
        {ResetAll, tr("Reset all to default"), "undo"},
        {Setup, tr("Setup"), "configure2"},
        {Snapshot, tr("Snapshot"), "frame_image"},
    };
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    for (const auto& [command, toolTip, icon] : commands) {
        layout->addWidget(createButton(command, toolTip, icon));
        if (command == ShowAll || command == AutomaticMode || command == SingleMode) {
            layout->addSpacing(GroupGap);
        }
    }
    layout->addStretch();
    mGroup->setExclusive(false);
    connect(mGroup, &QButtonGroup::idPressed, this, &GraphButtons::pressed);
    connect(mGroup, &QButtonGroup::idReleased, this, &GraphButtons::released);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidget(column);
    viewport()->setAutoFillBackground(false);
    column->setAutoFillBackground(false);
    setFixedWidth(column->sizeHint().width() + verticalScrollBar()->sizeHint().width());
}

QToolButton* GraphButtons::createButton(int command, const QString& toolTip, const char* icon)
{
    constexpr int IconSize = 32;
    auto* button = new QToolButton;
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setIconSize({IconSize, IconSize});
    if (icon != nullptr) {
        button->setIcon(QIcon(QString(":/icons/%1.svg").arg(icon)));
    } else {
        button->setText(tr("Auto"));
    }
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setCheckable(command >= AutomaticMode && command <= SingleMode);
    mGroup->addButton(button, command);
    mButtons[static_cast<std::size_t>(command)] = button;
    return button;
}

bool GraphButtons::isAutomaticChecked() const
{
    return mButtons[AutomaticMode]->isChecked();
}

void GraphButtons::showDisplayMode(eDisplayMode mode)
{
    mButtons[SplitMode]->setChecked(mode != DisplaySingle);
    mButtons[SingleMode]->setChecked(mode == DisplaySingle);
}

void GraphButtons::showGraphMode(eGraphMode mode)
{
    mButtons[AutomaticMode]->setChecked(mode == GraphAutomatic);
}

} // namespace TARN
