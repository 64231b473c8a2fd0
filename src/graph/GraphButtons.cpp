#include "graph/GraphButtons.h"

#include "widgets/LateIcon.h"

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
        QString name;
        const char* icon; ///< null for the text "Auto"
        Qt::Key key = Qt::Key_unknown;
    } commands[] = {
        {ZoomIn, tr("Zoom In"), "zoomin"},
        {ZoomOut, tr("Zoom Out"), "zoomout"},
        {ZoomOneToOne, tr("Zoom 1:1"), "zoom1"},
        {ZoomMarker, tr("Zoom Marker"), "zoomrect", Qt::Key_Z},
        {ShowAll, tr("Show all"), "showAll", Qt::Key_Home},
        {ClearAll, tr("Clear All"), "fail", Qt::Key_X},
        {AutomaticMode, tr("Automatic Mode"), nullptr, Qt::Key_A},
        {SplitMode, tr("Split Mode"), "graphSplit", Qt::Key_F3},
        {SingleMode, tr("Single Graph Mode"), "graphSingle", Qt::Key_F2},
        {ResetAll, tr("Reset all to default"), "undo"},
        {Setup, tr("Setup"), "configure2"},
        {Snapshot, tr("Snapshot"), "frame_image"},
        {Measure, tr("Measuring Panel"), "measure"},
    };
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    for (const auto& [command, name, icon, key] : commands) {
        layout->addWidget(createButton(command, name, icon, key));
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

QToolButton* GraphButtons::createButton(int command, const QString& name, const char* icon,
                                        Qt::Key key)
{
    constexpr int IconSize = 32;
    auto* button = new QToolButton;
    button->setToolTip(
        key == Qt::Key_unknown
            ? name
            : QString("%1 (%2)").arg(name, QKeySequence(key).toString(QKeySequence::NativeText)));
    button->setAccessibleName(name);
    button->setIconSize({IconSize, IconSize});
    if (icon != nullptr) {
        button->setIcon(LateIcon::of(icon));
    } else {
        button->setText(tr("Auto"));
    }
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    button->setCheckable((command >= AutomaticMode && command <= SingleMode) || command == Measure);
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

void GraphButtons::showMeasuring(bool isOn)
{
    mButtons[Measure]->setChecked(isOn);
}

} // namespace TARN
