#include "graph/ReferenceGraph.h"

#include "graph/CurveDifference.h"
#include "graph/WidgetGraph.h"

#include <QtGui/QAction>

#include <algorithm>

namespace TARN {

ReferenceGraph::ReferenceGraph(Session& session, WidgetGraph& graph, QObject* parent)
    : QObject(parent), mSession(session), mGraph(graph), mModel(graph.model()),
      mMadeOf(mModel.curves().count()), mSeenFirst(graph)
{
    Reference& reference = mSession.reference();
    mShowing = createSwitch(tr("Show &Reference"), Qt::Key_B, reference.shown());
    mShowingDifference =
        createSwitch(tr("Show &Difference"), Qt::Key_D, reference.differenceShown());
    followSession();
    connect(&mLoader, &CurveLoader::curveReady, this,
            [this](unsigned place, const DecodedCurve& decoded) {
                ParStruct& curve = *mModel.curves().curve(place);
                curve.reference.samples = decoded.samples;
                curve.reference.facts = decoded.facts;
            });
    connect(&mLoader, &CurveLoader::ready, this, [this] { mModel.curvesChanged(); });
    const auto outOfMemory = [this] {
        mSession.reference().differenceShown().turn(false);
        mSession.reference().shown().turn(false);
        Q_EMIT failed(tr("There is not enough memory for the reference's curves; select fewer "
                         "parameters."));
    };
    connect(&mLoader, &CurveLoader::outOfMemory, this, outOfMemory);
    mJob.setOutOfMemory(outOfMemory);
    connect(&mModel, &GraphModel::changed, this, &ReferenceGraph::updateDifferences);
    connect(&graph.gestures(), &GraphGestures::nudged, this, &ReferenceGraph::nudge);
    reload();
}

void ReferenceGraph::followSession()
{
    Reference& reference = mSession.reference();
    for (const auto signal : {&Session::profileChanged, &Session::flightChanged,
                              &Session::selectionChanged, &Session::offsetChanged}) {
        connect(&mSession, signal, this, &ReferenceGraph::reload);
    }
    connect(&reference, &Reference::flightChanged, this, &ReferenceGraph::reload);
    connect(&reference, &Reference::shiftChanged, this, &ReferenceGraph::showShift);
    connect(&reference.shown(), &Switch::turned, this, &ReferenceGraph::reload);
    connect(&reference.differenceShown(), &Switch::turned, this, &ReferenceGraph::reload);
}

/// A letter works while the graph has the focus: elsewhere somebody may be typing.
QAction* ReferenceGraph::createSwitch(const QString& text, const QKeySequence& key, Switch& on)
{
    auto* action = new QAction(text, this);
    action->setCheckable(true);
    action->setChecked(on.isOn());
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::toggled, &on, &Switch::turn);
    connect(&on, &Switch::turned, action, &QAction::setChecked);
    mGraph.addAction(action);
    return action;
}

/// Curves of the reference are decoded for its differences too, seen or not.
void ReferenceGraph::reload()
{
    const Reference& reference = mSession.reference();
    const bool isOn = mSession.flight() != nullptr && reference.flight() != nullptr;
    const bool isWanted = isOn && (reference.shown().isOn() || reference.differenceShown().isOn());
    mModel.hints().hasReference = isOn;
    mShowing->setEnabled(isOn);
    mShowingDifference->setEnabled(isOn);
    auto parameters = mSession.selection().parameters(*mSession.profile());
    parameters.resize(
        std::min<std::size_t>(isWanted ? parameters.size() : 0, mModel.curves().count()));
    for (ParStruct& curve : mModel.curves().all()) {
        curve.reference.clear();
    }
    mLoader.load(reference.flight(), parameters, reference.offset());
    mSeenFirst.run([this] { mLoader.start(); });
    showShift();
}

void ReferenceGraph::showShift()
{
    const Reference& reference = mSession.reference();
    mModel.layout().setReference({reference.shift(), reference.shown().isOn()});
    mModel.curvesChanged();
}

ReferenceGraph::Source ReferenceGraph::sourceOf(unsigned k) const
{
    const ParStruct& curve = *std::as_const(mModel).curves().curve(k);
    if (!mSession.reference().differenceShown().isOn() || !mModel.hints().hasReference ||
        !curve.active) {
        return {};
    }
    const Between between =
        curve.facts != nullptr ? betweenOf(curve.facts->series()) : Between::Line;
    return {curve.series, curve.reference.samples, between, mModel.layout().reference().shift};
}

/// Makes those differences anew that are of other curves than before.
void ReferenceGraph::updateDifferences()
{
    bool isOther = false;
    for (unsigned k = 0; k < mMadeOf.size(); ++k) {
        isOther = isOther || !(sourceOf(k) == mMadeOf[k]);
    }
    if (isOther && !mIsUpdating) {
        makeDifferences(takeOutdated());
        mIsUpdating = true;
        mModel.curvesChanged();
        mIsUpdating = false;
    }
}

/// The curves whose difference is to be made; the one before is gone from the picture at once.
std::vector<unsigned> ReferenceGraph::takeOutdated()
{
    std::vector<unsigned> places;
    for (unsigned k = 0; k < mMadeOf.size(); ++k) {
        Companion& difference = mModel.curves().curve(k)->difference;
        const bool isDone = sourceOf(k) == mMadeOf[k] && difference.samples != nullptr &&
                            !difference.samples->empty();
        mMadeOf[k] = sourceOf(k);
        if (!mMadeOf[k].isComplete()) {
            difference.clear();
        } else if (!isDone) {
            difference.samples = std::make_shared<CurveSamples>(); // its strip is there already
            places.push_back(k);
        }
    }
    return places;
}

void ReferenceGraph::makeDifferences(const std::vector<unsigned>& places)
{
    std::vector<Source> sources;
    for (const unsigned k : places) {
        sources.push_back(mMadeOf[k]);
    }
    mJob.start(
        [sources](Progress& progress) {
            Differences made;
            for (const Source& source : sources) {
                made.push_back(differenceOf(*source.flight, *source.reference, source.between,
                                            source.shift, progress));
            }
            return made;
        },
        [this, places](const Differences& made) { take(places, made); });
}

void ReferenceGraph::take(const std::vector<unsigned>& places, const Differences& differences)
{
    for (std::size_t i = 0; i < places.size(); ++i) {
        mModel.curves().curve(places[i])->difference.samples = differences[i];
    }
    mModel.curvesChanged();
}

void ReferenceGraph::nudge(double seconds)
{
    mSession.reference().setShift(mSession.reference().shift() + seconds);
}

} // namespace TARN
