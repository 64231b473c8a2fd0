#include "graph/DialogDataGraph.h"

#include "graph/DialogGraphSetup.h"
#include "graph/GraphActions.h"
#include "graph/GraphButtons.h"
#include "graph/GraphContext.h"
#include "graph/GraphPanes.h"
#include "graph/ReferenceGraph.h"
#include "graph/SessionGraph.h"
#include "graph/WidgetGraph.h"

#include <QtCore/QEvent>
#include <QtGui/QAction>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>

#include <algorithm>

namespace TARN {

namespace {

constexpr double DefaultRange = 60.0; // seconds
constexpr int NoCommand = 99;

} // namespace

DialogDataGraph::DialogDataGraph(Session& session, EpisodeWatch& episodes, QWidget* parent)
    : QWidget(parent), mSession(session), mEpisodes(episodes), mCommand(NoCommand),
      mSetup(new DialogGraphSetup(this, mData)), mButtons(new GraphButtons), mNote(new QLabel)
{
    constexpr int HeldInterval = 50; // ms
    mTimer.setInterval(HeldInterval);
    connect(&mTimer, &QTimer::timeout, this, &DialogDataGraph::slotTimeout);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mButtons);
    layout->addWidget(createPlot(), 1);
    connect(mButtons, &GraphButtons::pressed, this, &DialogDataGraph::slotCommandPress);
    connect(mButtons, &GraphButtons::released, this, &DialogDataGraph::slotCommandRelease);
    connect(mSetup, &DialogGraphSetup::signalChanged, this, &DialogDataGraph::slotGraphSetup);
}

QWidget* DialogDataGraph::createPlot()
{
    auto* plot = new QWidget;
    auto* layout = new QVBoxLayout(plot);
    layout->setContentsMargins(0, 0, 0, 0);
    if (canDrawGraph()) {
        createGraph();
        mPanes = new GraphPanes(mSession, *mGraph);
        connect(mPanes, &GraphPanes::measuringChanged, mButtons, &GraphButtons::showMeasuring);
        mButtons->showMeasuring(mPanes->isMeasuring());
        layout->addWidget(mPanes, 1);
        setFocusProxy(mGraph);
    } else {
        auto* message = new QLabel(tr("The graph cannot be drawn: this display offers no OpenGL.\n"
                                      "All other views work; a graphics driver with OpenGL 2.1, "
                                      "or Mesa's software one, brings the graph."));
        message->setObjectName("noGraph");
        message->setAlignment(Qt::AlignCenter);
        message->setWordWrap(true);
        layout->addWidget(message, 1);
        mButtons->setEnabled(false);
    }
    mNote->setObjectName("note");
    mNote->setWordWrap(true);
    mNote->setVisible(false);
    layout->addWidget(mNote);
    return plot;
}

void DialogDataGraph::createGraph()
{
    mGraph = new WidgetGraph;
    mGraph->setMaxParameters(CurveSet::MaxCurves);
    mGraph->setDisplayMode(DisplaySplit);
    mGraph->setGraphMode(GraphManual);
    mData.load();
    applySettings();
    mSnapshot.emplace(mSession, *mGraph, mData);
    mMenu.emplace(mGraph->model(), *this);
    connect(mGraph, &WidgetGraph::signalMenu, this, &DialogDataGraph::openMenu);
    auto* copying = new QAction(mGraph);
    copying->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Insert)); // Ctrl+C opens a card
    copying->setShortcutContext(Qt::WidgetShortcut);
    connect(copying, &QAction::triggered, this, [this] { mSnapshot->copy(); });
    mGraph->addAction(copying);
    connect(&mGraph->model(), &GraphModel::modeChanged, this, &DialogDataGraph::slotModeChanged);
    connect(mGraph, &WidgetGraph::signalLink, this, &DialogDataGraph::signalLink);
    auto* curves = new SessionGraph(mSession, mEpisodes, *mGraph, this);
    connect(curves, &SessionGraph::noteChanged, this, [this](const QString& note) {
        mNote->setText(note);
        mNote->setVisible(!note.isEmpty());
    });
    mReference = new ReferenceGraph(mSession, *mGraph, this);
    connect(mReference, &ReferenceGraph::failed, mNote, &QLabel::setText);
    connect(mReference, &ReferenceGraph::failed, mNote, &QLabel::show);
    slotModeChanged();
}

void DialogDataGraph::slotCommandPress(int command)
{
    mCommand = command;
    if (command == GraphButtons::ZoomIn || command == GraphButtons::ZoomOut) {
        mGraph->model().window().remember();
        mTimer.start();
    }
}

void DialogDataGraph::slotCommandRelease(int command)
{
    mTimer.stop();
    runCommand(command);
    mCommand = NoCommand;
}

void DialogDataGraph::runCommand(int command)
{
    GraphModel& model = mGraph->model();
    switch (command) {
    case GraphButtons::ZoomOneToOne:
        model.window().remember();
        setRange(DefaultRange);
        break;
    case GraphButtons::ZoomMarker:
        model.zoomToMarker();
        break;
    case GraphButtons::ShowAll:
        showAll(model);
        break;
    case GraphButtons::ClearAll:
        model.clear();
        break;
    case GraphButtons::AutomaticMode:
        model.setGraphMode(mButtons->isAutomaticChecked() ? GraphAutomatic : GraphManual);
        break;
    case GraphButtons::SplitMode:
        model.setDisplayMode(DisplaySplit);
        break;
    case GraphButtons::SingleMode:
        model.setDisplayMode(DisplaySingle);
        break;
    case GraphButtons::ResetAll:
        model.window().remember();
        model.setDisplayMode(DisplaySplit);
        setRange(DefaultRange);
        break;
    case GraphButtons::Setup:
        openSetup();
        break;
    case GraphButtons::Measure:
        mPanes->toggleMeasuring();
        break;
    case GraphButtons::Snapshot:
        saveSnapshot();
        break;
    default:
        break;
    }
}

/// The cursor stays in sight.
void DialogDataGraph::setRange(double seconds)
{
    GraphModel& model = mGraph->model();
    mGraph->setXrange(static_cast<float>(seconds));
    model.window().keepInside(model.cursor());
    model.windowChanged();
    mData.xRange = seconds;
    mApplied.xRange = seconds;
}

void DialogDataGraph::slotTimeout()
{
    constexpr double Step = 0.97;
    constexpr double WidestByZoomIn = 5000.0; // seconds
    constexpr double NarrowestByZoomOut = 1.0;
    const double width = mGraph->model().window().width();
    if (mCommand == GraphButtons::ZoomIn) {
        setRange(std::min(width * Step, WidestByZoomIn));
    } else if (mCommand == GraphButtons::ZoomOut) {
        setRange(std::max(width / Step, NarrowestByZoomOut));
    }
}

/// The buttons show the modes in force; only a pan leaves the automatic one's as it is.
void DialogDataGraph::slotModeChanged()
{
    const GraphModel& model = mGraph->model();
    mButtons->showDisplayMode(model.layout().displayMode());
    if (!mGraph->gestures().isPanning()) {
        mButtons->showGraphMode(model.graphMode());
    }
}

void DialogDataGraph::takeColors()
{
    const GraphStyle& style = mGraph->graphStyle();
    mData.backColor = style.back.toColor().name();
    mData.gridColor = style.grid.toColor().name();
    mData.labelColor = style.label.toColor().name();
    mData.labelBackColor = style.labelBack.toColor().name();
}

/// The dialog shows what holds, however it came about.
void DialogDataGraph::openSetup()
{
    const GraphModel& model = mGraph->model();
    takeColors();
    mData.displayMode = model.layout().displayMode();
    mData.graphMode = model.graphMode();
    mData.cursorMode = model.cursorMode();
    mData.autoScale = model.layout().isAutoScaleY();
    mApplied = mData;
    mSetup->updateDialog();
    mSetup->show();
    mSetup->raise();
    mSetup->activateWindow();
}

/// Applies what was changed, and nothing else.
void DialogDataGraph::slotGraphSetup()
{
    if (mGraph == nullptr) {
        return;
    }
    GraphModel& model = mGraph->model();
    applySettings();
    GraphStyle style = mGraph->graphStyle();
    const auto color = [](GraphColor& to, const QString& now, const QString& before) {
        to = now != before ? GraphColor::of(QColor(now)) : to;
    };
    color(style.back, mData.backColor, mApplied.backColor);
    color(style.grid, mData.gridColor, mApplied.gridColor);
    color(style.label, mData.labelColor, mApplied.labelColor);
    color(style.labelBack, mData.labelBackColor, mApplied.labelBackColor);
    style.gridOn = mData.gridOn;
    style.cursorOn = mData.cursorOn;
    style.legendOn = mData.legendOn;
    mGraph->setGraphStyle(style);
    if (mData.cursorMode != mApplied.cursorMode) {
        model.setCursorMode(static_cast<eCursorMode>(mData.cursorMode));
        model.setCursorPosition(model.cursor());
    }
    if (mData.autoScale != mApplied.autoScale) {
        model.layout().setAutoScaleY(mData.autoScale);
    }
    if (!mData.autoScale) {
        model.layout().setValues(static_cast<float>(mData.yMin), static_cast<float>(mData.yMax));
    }
    model.window().keepInside(model.cursor());
    model.windowChanged();
    mData.store();
    mApplied = mData;
}

/// What is remembered from session to session.
void DialogDataGraph::applySettings()
{
    GraphStyle style = mGraph->graphStyle();
    const bool isOther = mData.theme != mApplied.theme;
    if (isOther) {
        style = themed(style, isLight(mData.theme));
    }
    style.thresholdsOn = mData.thresholdsOn;
    style.eventsOn = mData.eventsOn;
    style.lanesOn = mData.lanesOn;
    style.wordsOn = mData.wordsOn;
    mGraph->setGraphStyle(style);
    if (isOther) { // the colors that were chosen before are gone
        takeColors();
        mApplied = mData;
        mSetup->updateDialog();
    }
}

void DialogDataGraph::saveSnapshot()
{
    if (mSnapshot) {
        mSnapshot->save(*this);
    }
}

void DialogDataGraph::openMenu(QPoint global)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    mMenu->addTo(*menu);
    menu->addSeparator();
    menu->addAction(mReference->showing());
    menu->addAction(mReference->showingDifference());
    menu->addSeparator();
    menu->addAction(tr("&Save Picture..."), this, &DialogDataGraph::saveSnapshot);
    menu->addAction(tr("Co&py Picture"), this, [this] { mSnapshot->copy(); });
    menu->popup(global);
}

/// A light desktop may have become a dark one.
void DialogDataGraph::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && mGraph != nullptr &&
        mData.theme == GraphTheme::Desktop) {
        mGraph->setGraphStyle(themed(mGraph->graphStyle(), isLight(mData.theme)));
    }
}

} // namespace TARN
