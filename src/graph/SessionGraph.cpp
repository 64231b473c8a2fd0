#include "graph/SessionGraph.h"

#include "base/CountText.h"
#include "flight/EmptyText.h"
#include "flight/EpisodeWatch.h"
#include "graph/CurveFill.h"
#include "graph/WidgetGraph.h"

#include <algorithm>

namespace TARN {

SessionGraph::SessionGraph(Session& session, EpisodeWatch& episodes, WidgetGraph& graph,
                           QObject* parent)
    : QObject(parent), mSession(session), mEpisodes(episodes), mGraph(graph), mModel(graph.model()),
      mSeenFirst(graph)
{
    connect(&mSession, &Session::profileChanged, this, &SessionGraph::showSelection);
    connect(&mSession, &Session::flightChanged, this, &SessionGraph::showFlight);
    connect(&mSession, &Session::selectionChanged, this, &SessionGraph::showSelection);
    connect(&mSession, &Session::offsetChanged, this, &SessionGraph::refill);
    connect(&mSession, &Session::timeChanged, this, &SessionGraph::showTime);
    connect(&mSession.switches().loading, &Switch::turned, this, &SessionGraph::updateTexts);
    connect(&mSession.switches().allDigits, &Switch::turned, this, &SessionGraph::updateDigits);
    connect(&mGraph, &WidgetGraph::signalCursor, this,
            [this](float time) { mSession.setTime(time, this); });
    connect(&mModel, &GraphModel::changed, this, [this] { mSession.setMarks(mModel.markers()); });
    for (const ParStruct& curve : std::as_const(mModel.curves()).all()) {
        mColors.push_back(curve.color);
    }
    connect(&mSession.looks(), &Looks::changed, this, &SessionGraph::showLooks);
    connect(&mModel, &GraphModel::looksEdited, this, [this] {
        mSession.looks().set(looksOf(mModel.curves(), mSession.looks().now(), mColors));
    });
    connect(&mEpisodes, &EpisodeWatch::changed, this, &SessionGraph::showNotes);
    connect(&mLoader, &CurveLoader::curveReady, this, &SessionGraph::takeCurve);
    connect(&mLoader, &CurveLoader::ready, this, &SessionGraph::showCurves);
    connect(&mLoader, &CurveLoader::outOfMemory, this, [this] {
        mGraph.release();
        mGraph.setEmptyText(
            tr("There is not enough memory for these curves; select fewer parameters."));
    });
    showSelection();
}

/// Shows the whole flight at the current time.
void SessionGraph::showFlight()
{
    mGraph.hold(); // what is there at once is painted once, and not an empty plot first
    mModel.clear();
    if (mSession.flight() != nullptr) {
        const RecordInfo& info = mSession.flight()->info();
        mModel.window().setWhole(info.startTime, info.stopTime);
        mModel.window().showAll();
        mModel.windowChanged();
        showTime(mSession.time(), nullptr);
    }
    loadCurves();
}

/// Another offset leaves the window where it is; the marked range was one of other times.
void SessionGraph::refill()
{
    mGraph.hold();
    mModel.clear();
    loadCurves();
}

void SessionGraph::showSelection()
{
    const auto selected = mSession.selection().parameters(*mSession.profile());
    nameCurves(mModel.curves(), selected);
    applyLooks(mModel.curves(), mSession.looks().now(), mColors);
    showFlight();
}

void SessionGraph::showLooks()
{
    applyLooks(mModel.curves(), mSession.looks().now(), mColors);
    mModel.curvesChanged();
}

void SessionGraph::loadCurves()
{
    auto parameters = mSession.selection().parameters(*mSession.profile());
    parameters.resize(std::min<std::size_t>(parameters.size(), CurveSet::MaxCurves));
    // None stands under another parameter's name while it is decoded.
    for (unsigned k = 0; k < CurveSet::MaxCurves; ++k) {
        mModel.curves().setSeries(k, std::make_shared<CurveSamples>());
        mModel.curves().curve(k)->facts = nullptr;
    }
    mModel.curvesChanged();
    mLoader.load(mSession.flight(), parameters, mSession.offset());
    mSeenFirst.run([this] { mLoader.start(); });
}

void SessionGraph::takeCurve(unsigned place, const DecodedCurve& decoded)
{
    fillCurve(mModel.curves(), place, decoded);
}

void SessionGraph::showNotes()
{
    mModel.hints().notes = {mSession.flight(), mSession.offset(), mEpisodes.episodes()};
    Q_EMIT mModel.changed();
}

void SessionGraph::showCurves()
{
    mModel.curvesChanged();
    updateTexts();
    if (!mLoader.isBusy()) {
        mGraph.release();
    }
}

void SessionGraph::updateTexts()
{
    Q_EMIT noteChanged(noteText());
    mGraph.setEmptyText(emptyText());
}

QString SessionGraph::noteText() const
{
    QStringList notes;
    const auto selected = mSession.selection().parameters(*mSession.profile()).size();
    if (selected > CurveSet::MaxCurves) {
        notes += tr("%1 of %2 selected parameters shown").arg(CurveSet::MaxCurves).arg(selected);
    }
    if (mLoader.leftOut() > 0) {
        notes += tr("Left out of the graph, because their time falls: %1 samples")
                     .arg(countText(static_cast<qint64>(mLoader.leftOut())));
    }
    return notes.join(". ");
}

QString SessionGraph::emptyText() const
{
    const QString general = emptyTextOf(mSession);
    if (!general.isEmpty()) {
        return general;
    }
    if (mModel.curves().hasSamples()) {
        // Read when they are gone.
        return tr("The graph was cleared.\nPress \"Confirm Selection\" to fill it again.");
    }
    return mLoader.isBusy() ? tr("The graph is being filled.")
                            : tr("The recording holds no sample of the selected parameters.");
}

void SessionGraph::showTime(double time, const QObject* source)
{
    if (source != this) {
        mModel.setCursorPosition(time);
        mModel.window().follow(time);
        mModel.windowChanged();
    }
}

void SessionGraph::updateDigits()
{
    GraphStyle style = mGraph.graphStyle();
    style.allDigits = mSession.switches().allDigits.isOn();
    mGraph.setGraphStyle(style);
}

} // namespace TARN
