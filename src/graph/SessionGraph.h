#pragma once

#include "flight/Session.h"
#include "graph/CurveLoader.h"
#include "widgets/SeenFirst.h"

class WidgetGraph;

namespace TARN {

class EpisodeWatch;
class GraphModel;

/// Keeps a graph as the session has it: the curves of the confirmed selection, decoded beside the
/// window, the cursor at the current time, the marked range, what went wrong, and where there are
/// no curves the reason. All live as long as this does.
class SessionGraph : public QObject
{
    Q_OBJECT

public:
    SessionGraph(Session& session, EpisodeWatch& episodes, WidgetGraph& graph, QObject* parent);

Q_SIGNALS:
    /// What the graph does not show; empty when it shows all.
    void noteChanged(const QString& note);

private:
    void showFlight();
    void showSelection();
    void refill();
    void loadCurves();
    void takeCurve(unsigned place, const DecodedCurve& curve);
    void showNotes();
    void showLooks();
    void showCurves();
    void showTime(double time, const QObject* source);
    void updateDigits();
    void updateTexts();
    QString emptyText() const;
    QString noteText() const;

    Session& mSession;
    EpisodeWatch& mEpisodes;
    WidgetGraph& mGraph;
    GraphModel& mModel;
    std::vector<GraphColor> mColors; ///< of curves that the user gave none
    CurveLoader mLoader;
    SeenFirst mSeenFirst;
};

} // namespace TARN
