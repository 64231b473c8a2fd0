#pragma once

#include "flight/Session.h"
#include "flight/ValueReader.h"
#include "graph/CurveLoader.h"
#include "widgets/SeenFirst.h"

class QAction;
class WidgetGraph;

namespace TARN {

class GraphModel;

/// Keeps the reference flight's curves, and the differences, beside those of a graph as the session
/// has them, and moves the reference where the user drags it. All live as long as this does.
class ReferenceGraph : public QObject
{
    Q_OBJECT

public:
    ReferenceGraph(Session& session, WidgetGraph& graph, QObject* parent);

    /// B and D, for menus too.
    QAction* showing() const { return mShowing; }
    QAction* showingDifference() const { return mShowingDifference; }

Q_SIGNALS:
    /// What could not be shown.
    void failed(const QString& reason);

private:
    /// What a difference was made of.
    struct Source
    {
        std::shared_ptr<const CurveSamples> flight;
        std::shared_ptr<const CurveSamples> reference;
        Between between;
        double shift;

        bool isComplete() const { return flight != nullptr && reference != nullptr; }
        friend bool operator==(const Source&, const Source&) = default;
    };
    using Differences = std::vector<std::shared_ptr<const CurveSamples>>;

    QAction* createSwitch(const QString& text, const QKeySequence& key, Switch& on);
    void followSession();
    void reload();
    void showShift();
    void updateDifferences();
    std::vector<unsigned> takeOutdated();
    void makeDifferences(const std::vector<unsigned>& places);
    Source sourceOf(unsigned k) const;
    void take(const std::vector<unsigned>& places, const Differences& differences);
    void nudge(double seconds);

    Session& mSession;
    WidgetGraph& mGraph;
    GraphModel& mModel;
    CurveLoader mLoader;
    std::vector<Source> mMadeOf; ///< the difference of each curve, or the one on its way
    Job<Differences> mJob;
    bool mIsUpdating = false;
    SeenFirst mSeenFirst;
    QAction* mShowing;
    QAction* mShowingDifference;
};

} // namespace TARN
