#pragma once

#include "display/GraphData.h"
#include "widgets/DataView.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <array>

class QButtonGroup;
class QLabel;
class QToolButton;
class QWidget;
class WidgetGraph;

namespace TARN {

class DialogGraphSetup;
struct ProfileParameter;

/// The "Graph" tab: the selected parameters as curves, and the buttons beside them. Where no
/// OpenGL is to be had a message stands in the graph's place and every operation does nothing.
class DialogDataGraph : public QWidget, public DataView
{
    Q_OBJECT

public:
    explicit DialogDataGraph(QWidget* parent = nullptr);

    void updateProfile() override;
    void updateRecord(Record* record) override { updateRecord(record, true); }
    void updateOffset(Record* record) override { updateRecord(record, false); }
    void setTime(double time) override;

    /// Fills the graph; \p isNew shows the whole recording with the cursor at its start.
    void updateRecord(Record* record, bool isNew);

    // The marked range, seconds; both 0 when nothing is marked.
    double markStart() const;
    double markStop() const;

    /// Shows the graph's mode on the buttons.
    void updateControls();

    /// Asks for a file and saves a picture of the graph.
    void saveSnapshot();

    /// The graph; null where it cannot be drawn.
    WidgetGraph* graph() const { return mGraph; }

Q_SIGNALS:
    /// The user moved the graph's cursor, seconds.
    void signalCursor(float t, double value);

private Q_SLOTS:
    void slotCommandPress(int command);
    void slotCommandRelease(int command);
    void slotManMode();
    void slotTimeout();
    void slotGraphSetup();

private:
    enum Command : int
    {
        ZoomIn,
        ZoomOut,
        ZoomOneToOne,
        ZoomMarker,
        ClearAll,
        AutomaticMode,
        SplitMode,
        SingleMode,
        ResetAll,
        Setup,
        Snapshot,
        CommandCount,
        NoCommand = 99
    };

    QWidget* createButtons();
    QWidget* createPlot();
    void createGraph();
    void runCommand(int command);
    void setRange(double seconds);
    void fillIndex(int k, const ProfileParameter& parameter);
    void updateTexts();
    QString emptyText() const;
    bool saveImage(const QString& file);

    int mCommand = NoCommand; ///< that is held
    GraphData mData;
    DialogGraphSetup* mSetup;
    QTimer mTimer;
    QButtonGroup* mGroup;
    std::array<QToolButton*, CommandCount> mButtons{};
    WidgetGraph* mGraph = nullptr;
    QLabel* mNote; ///< of what is left out
    Record* mRecord = nullptr;
    bool mUpdating = false; ///< the buttons' states are not the user's
};

} // namespace TARN
