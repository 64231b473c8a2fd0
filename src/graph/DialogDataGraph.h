#pragma once

#include "flight/Session.h"
#include "graph/CurveMenu.h"
#include "graph/GraphData.h"
#include "graph/Snapshot.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <optional>

class QLabel;
class WidgetGraph;

namespace TARN {

class DialogGraphSetup;
class EpisodeWatch;
class GraphButtons;
class GraphPanes;
class ReferenceGraph;

/// The "Graph" tab: the selected parameters as curves, and the buttons beside them. Where no
/// OpenGL is to be had a message stands in the graph's place and every operation does nothing.
class DialogDataGraph : public QWidget
{
    Q_OBJECT

public:
    DialogDataGraph(Session& session, EpisodeWatch& episodes, QWidget* parent = nullptr);

    // The marked range, seconds; both 0 when nothing is marked.
    double markStart() const { return mSession.marks().start; }
    double markStop() const { return mSession.marks().stop; }

    /// Asks for a file and saves a picture of the graph.
    void saveSnapshot();

    /// The graph; null where it cannot be drawn.
    WidgetGraph* graph() const { return mGraph; }

Q_SIGNALS:
    /// The user follows a link of the empty text.
    void signalLink(const QString& link);

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void slotCommandPress(int command);
    void slotCommandRelease(int command);
    void slotTimeout();
    void slotGraphSetup();
    void slotModeChanged();

private:
    QWidget* createPlot();
    void createGraph();
    void runCommand(int command);
    void setRange(double seconds);
    void openSetup();
    void openMenu(QPoint global);
    void applySettings();
    void takeColors();

    Session& mSession;
    EpisodeWatch& mEpisodes;
    int mCommand; ///< that is held
    GraphData mData;
    GraphData mApplied; ///< the settings as the graph has them
    DialogGraphSetup* mSetup;
    GraphButtons* mButtons;
    QTimer mTimer;
    WidgetGraph* mGraph = nullptr;
    GraphPanes* mPanes = nullptr;
    std::optional<Snapshot> mSnapshot; ///< where there is a graph
    std::optional<CurveMenu> mMenu;
    ReferenceGraph* mReference = nullptr;
    QLabel* mNote; ///< of what is left out
};

} // namespace TARN
