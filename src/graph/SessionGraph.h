#pragma once

#include "flight/Session.h"
#include "graph/CurveLoader.h"
#include "widgets/SeenFirst.h"

class WidgetGraph;

namespace TARN {

class CurveSamples;
class GraphModel;

/// Keeps a graph as the session has it: the curves of the confirmed selection, decoded beside the
/// window, the cursor at the current time, the marked range, and where there are no curves the
/// reason. Both live as long as this does.
class SessionGraph : public QObject
{
    Q_OBJECT

public:
    SessionGraph(Session& session, WidgetGraph& graph, QObject* parent);

Q_SIGNALS:
    /// What the graph does not show; empty when it shows all.
    void noteChanged(const QString& note);

private:
    void showFlight();
    void showSelection();
    void refill();
    void loadCurves();
    void takeCurve(unsigned place, std::shared_ptr<const CurveSamples> samples);
    void showCurves();
    void showTime(double time, const QObject* source);
    void updateDigits();
    void updateTexts();
    QString emptyText() const;
    QString noteText() const;

    Session& mSession;
    WidgetGraph& mGraph;
    GraphModel& mModel;
    CurveLoader mLoader;
    SeenFirst mSeenFirst;
};

} // namespace TARN
