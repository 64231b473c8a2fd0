#include "display/DialogDataGraph.h"
#include "display/DialogGraphSetup.h"
#include "display/WidgetGraph.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace TARN {

DialogDataGraph::DialogDataGraph(QWidget* parent)
    : QWidget(parent), mSetup(new DialogGraphSetup(this, mData)), mGroup(new QButtonGroup(this)),
      mNote(new QLabel)
{
    constexpr int HeldInterval = 50; // ms
    connect(mSetup, &DialogGraphSetup::signalChanged, this, &DialogDataGraph::slotGraphSetup);
    mTimer.setInterval(HeldInterval);
    connect(&mTimer, &QTimer::timeout, this, &DialogDataGraph::slotTimeout);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(createButtons());
    layout->addWidget(createPlot(), 1);
    connect(mGroup, &QButtonGroup::idPressed, this, &DialogDataGraph::slotCommandPress);
    connect(mGroup, &QButtonGroup::idReleased, this, &DialogDataGraph::slotCommandRelease);
    updateControls();
}

/// The column of buttons; on a low screen it scrolls, so that it never makes the window too high.
QWidget* DialogDataGraph::createButtons()
{
    constexpr int IconSize = 32;
    constexpr int GroupGap = 5;
    const struct
    {
        QString toolTip;
        const char* icon; ///< null for the text "Auto"
    } commands[CommandCount] = {
        {tr("Zoom In"), "zoomin"},
        {tr("Zoom Out"), "zoomout"},
        {tr("Zoom 1:1"), "zoom1"},
        {tr("Zoom Marker") + " (Z)", "zoomrect"},
        {tr("Clear All") + " (X)", "fail"},
        {tr("Automatic Mode") + " (A)", nullptr},
        {tr("Split Mode") + " (F3)", "graphSplit"},
        {tr("Single Graph Mode") + " (F2)", "graphSingle"},
        {tr("Reset all to default"), "undo"},
        {tr("Setup"), "configure2"},
        {tr("Snapshot"), "frame_image"},
    };
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    for (int id = 0; id < CommandCount; ++id) {
        auto* button = new QToolButton;
        button->setToolTip(commands[id].toolTip);
        button->setAccessibleName(commands[id].toolTip);
        button->setIconSize({IconSize, IconSize});
        if (commands[id].icon != nullptr) {
            button->setIcon(QIcon(QString(":/icons/%1.svg").arg(commands[id].icon)));
        } else {
            button->setText(tr("Auto"));
        }
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setCheckable(id >= AutomaticMode && id <= SingleMode);
        mGroup->addButton(button, id);
        layout->addWidget(button);
        if (id == ZoomMarker || id == AutomaticMode || id == SingleMode) {
            layout->addSpacing(GroupGap);
        }
        mButtons[static_cast<std::size_t>(id)] = button;
    }
    layout->addStretch();
    mGroup->setExclusive(false);
    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(column);
    area->viewport()->setAutoFillBackground(false);
    column->setAutoFillBackground(false);
    const int scrollBar = area->verticalScrollBar()->sizeHint().width();
    area->setFixedWidth(column->sizeHint().width() + scrollBar);
    return area;
}

QWidget* DialogDataGraph::createPlot()
{
    auto* plot = new QWidget;
    auto* layout = new QVBoxLayout(plot);
    layout->setContentsMargins(0, 0, 0, 0);
    if (WidgetGraph::canDraw()) {
        createGraph();
        layout->addWidget(mGraph, 1);
        setFocusProxy(mGraph);
    } else {
        auto* message = new QLabel(tr("The graph cannot be drawn: this display offers no OpenGL.\n"
                                      "All other views work; a graphics driver with OpenGL 2.1, "
                                      "or Mesa's software one, brings the graph."));
        message->setObjectName("noGraph");
        message->setAlignment(Qt::AlignCenter);
        message->setWordWrap(true);
        layout->addWidget(message, 1);
        std::ranges::for_each(mButtons, [](QToolButton* button) { button->setEnabled(false); });
    }
    mNote->setObjectName("note");
    mNote->setVisible(false);
    layout->addWidget(mNote);
    return plot;
}

void DialogDataGraph::createGraph()
{
    mGraph = new WidgetGraph;
    mGraph->setMaxParameters(GraphModel::MaxCurves);
    mGraph->setDisplayMode(DisplaySplit);
    mGraph->setGraphMode(GraphManual);
    connect(mGraph, &WidgetGraph::signalManMode, this, &DialogDataGraph::slotManMode);
    connect(mGraph, &WidgetGraph::signalCursor, this, &DialogDataGraph::signalCursor);
    connect(mGraph, &WidgetGraph::signalKeyMode, this, [this] {
        updateControls();
        mButtons[AutomaticMode]->setChecked(mGraph->model().graphMode() == GraphAutomatic);
    });
    updateTexts();
}

} // namespace TARN
