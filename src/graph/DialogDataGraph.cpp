#include "graph/DialogDataGraph.h"

#include "base/CountText.h"
#include "base/OutputFile.h"
#include "flight/EmptyText.h"
#include "graph/CurveLoader.h"
#include "graph/DialogGraphSetup.h"
#include "graph/GraphButtons.h"
#include "graph/WidgetGraph.h"

#include <QtCore/QBuffer>
#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>

#include <algorithm>

namespace TARN {

namespace {

constexpr double DefaultRange = 60.0; // seconds
constexpr int NoCommand = 99;

} // namespace

DialogDataGraph::DialogDataGraph(Session& session, QWidget* parent)
    : QWidget(parent), mSession(session), mCommand(NoCommand),
      mSetup(new DialogGraphSetup(this, mData)), mButtons(new GraphButtons),
      mLoader(new CurveLoader(this)), mNote(new QLabel)
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
    connect(&mGraph->model(), &GraphModel::modeChanged, this, &DialogDataGraph::slotModeChanged);
    connect(mGraph, &WidgetGraph::signalCursor, this,
            [this](float time) { mSession.setTime(time, this); });
    connect(&mGraph->model(), &GraphModel::changed, this,
            [this] { mSession.setMarks(mGraph->model().markers()); });
    connect(mGraph, &WidgetGraph::signalLink, this, &DialogDataGraph::signalLink);
    connect(mLoader, &CurveLoader::curveReady, this, &DialogDataGraph::takeCurve);
    connect(mLoader, &CurveLoader::ready, this, &DialogDataGraph::showCurves);
    connect(mLoader, &CurveLoader::outOfMemory, this, [this] {
        mGraph->release();
        mGraph->setEmptyText(
            tr("There is not enough memory for these curves; select fewer parameters."));
    });
    slotModeChanged();
    connectSession();
    showSelection();
}

void DialogDataGraph::connectSession()
{
    connect(&mSession, &Session::profileChanged, this, &DialogDataGraph::showSelection);
    connect(&mSession, &Session::flightChanged, this, &DialogDataGraph::showFlight);
    connect(&mSession, &Session::selectionChanged, this, &DialogDataGraph::showSelection);
    connect(&mSession, &Session::offsetChanged, this, &DialogDataGraph::refill);
    connect(&mSession, &Session::timeChanged, this, &DialogDataGraph::showTime);
    connect(&mSession.loading(), &Switch::turned, this, &DialogDataGraph::updateTexts);
    connect(&mSession.allDigits(), &Switch::turned, this, &DialogDataGraph::updateDigits);
}

/// Shows the whole flight at the current time.
void DialogDataGraph::showFlight()
{
    GraphModel& model = mGraph->model();
    mGraph->hold(); // what is there at once is painted once, and not an empty plot first
    model.clear();
    if (mSession.flight() != nullptr) {
        const RecordInfo& info = mSession.flight()->info();
        model.window().setWhole(info.startTime, info.stopTime);
        model.window().showAll();
        model.windowChanged();
        showTime(mSession.time(), nullptr);
    }
    loadCurves();
}

/// Another offset leaves the window where it is; the marked range was one of other times.
void DialogDataGraph::refill()
{
    mGraph->hold();
    mGraph->model().clear();
    loadCurves();
}

void DialogDataGraph::showSelection()
{
    const auto selected = mSession.selection().parameters(*mSession.profile());
    for (unsigned k = 0; k < CurveSet::MaxCurves; ++k) {
        const bool isShown = k < selected.size();
        ParStruct& curve = *mGraph->model().curves().curve(k);
        curve.active = isShown;
        curve.name = isShown ? selected[k]->name : QString();
        curve.unit = isShown ? selected[k]->unit : QString();
    }
    showFlight();
}

void DialogDataGraph::loadCurves()
{
    auto parameters = mSession.selection().parameters(*mSession.profile());
    parameters.resize(std::min<std::size_t>(parameters.size(), CurveSet::MaxCurves));
    // None stands under another parameter's name while it is decoded.
    for (unsigned k = 0; k < CurveSet::MaxCurves; ++k) {
        mGraph->model().curves().setSeries(k, std::make_shared<CurveSamples>());
    }
    mGraph->model().curvesChanged();
    mLoader->load(mSession.flight(), parameters, mSession.offset());
}

void DialogDataGraph::takeCurve(unsigned place, std::shared_ptr<const CurveSamples> samples)
{
    const auto selected = mSession.selection().parameters(*mSession.profile());
    CurveSet& curves = mGraph->model().curves();
    curves.curve(place)->isSingle =
        Decoder(mSession.profile()->data(), *selected[place]).isSingle();
    curves.setSeries(place, std::move(samples));
}

void DialogDataGraph::showCurves()
{
    mGraph->model().curvesChanged();
    updateTexts();
    if (!mLoader->isBusy()) {
        mGraph->release();
    }
}

void DialogDataGraph::updateTexts()
{
    const QString note = noteText();
    mNote->setText(note);
    mNote->setVisible(!note.isEmpty());
    mGraph->setEmptyText(emptyText());
}

QString DialogDataGraph::noteText() const
{
    QStringList notes;
    const auto selected = mSession.selection().parameters(*mSession.profile()).size();
    if (selected > CurveSet::MaxCurves) {
        notes += tr("%1 of %2 selected parameters shown").arg(CurveSet::MaxCurves).arg(selected);
    }
    if (mLoader->leftOut() > 0) {
        notes += tr("Left out of the graph, because their time falls: %1 samples")
                     .arg(countText(static_cast<qint64>(mLoader->leftOut())));
    }
    return notes.join(". ");
}

QString DialogDataGraph::emptyText() const
{
    const QString general = emptyTextOf(mSession);
    if (!general.isEmpty()) {
        return general;
    }
    if (mGraph->model().curves().hasSamples()) {
        // Read when they are gone.
        return tr("The graph was cleared.\nPress \"Confirm Selection\" to fill it again.");
    }
    return mLoader->isBusy() ? tr("The graph is being filled.")
                             : tr("The recording holds no sample of the selected parameters.");
}

void DialogDataGraph::showTime(double time, const QObject* source)
{
    if (source != this) {
        GraphModel& model = mGraph->model();
        model.setCursorPosition(time);
        model.window().follow(time);
        model.windowChanged();
    }
}

void DialogDataGraph::updateDigits()
{
    GraphStyle style = mGraph->graphStyle();
    style.allDigits = mSession.allDigits().isOn();
    mGraph->setGraphStyle(style);
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
        model.window().showAll();
        model.windowChanged();
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

/// The dialog shows what holds, however it came about.
void DialogDataGraph::openSetup()
{
    const GraphModel& model = mGraph->model();
    const GraphStyle& style = mGraph->graphStyle();
    mData.displayMode = model.layout().displayMode();
    mData.graphMode = model.graphMode();
    mData.cursorMode = model.cursorMode();
    mData.backColor = style.back.toColor().name();
    mData.gridColor = style.grid.toColor().name();
    mData.labelColor = style.label.toColor().name();
    mData.labelBackColor = style.labelBack.toColor().name();
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
        model.setAutoScaleY(mData.autoScale);
    }
    if (!mData.autoScale) {
        model.setYrange(static_cast<float>(mData.yMin), static_cast<float>(mData.yMax));
    }
    model.window().keepInside(model.cursor());
    model.windowChanged();
    mApplied = mData;
}

void DialogDataGraph::saveSnapshot()
{
    if (mGraph == nullptr) {
        return;
    }
    const QString file = QFileDialog::getSaveFileName(this, tr("Save Snapshot"), "./snapshot.bmp",
                                                      tr("BMP File (*.bmp);;All Files (*.*)"));
    if (!file.isEmpty() && !saveImage(file)) {
        QMessageBox::warning(this, tr("Save Snapshot"),
                             tr("The snapshot could not be saved as\n%1\nChoose a folder that can "
                                "be written, with enough free space, and a name that ends in "
                                ".bmp, .png or .jpg.")
                                 .arg(file));
    }
}

bool DialogDataGraph::saveImage(const QString& file)
{
    const QByteArray suffix = QFileInfo(file).suffix().toLatin1();
    const QImage image = mGraph->grabFramebuffer().convertToFormat(QImage::Format_RGB32);
    QBuffer encoded;
    OutputFile out(file);
    if (!encoded.open(QIODevice::WriteOnly) ||
        !image.save(&encoded, suffix.isEmpty() ? "BMP" : suffix.constData()) || !out.open()) {
        return false;
    }
    out.write(encoded.data().toStdString());
    return out.commit();
}

} // namespace TARN
