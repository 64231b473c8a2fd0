#pragma once

#include "graph/GraphTypes.h"

#include <QtWidgets/QScrollArea>

#include <array>

class QButtonGroup;
class QToolButton;

namespace TARN {

/// The column of buttons beside the graph; on a low screen it scrolls, so that it never makes the
/// window too high.
class GraphButtons : public QScrollArea
{
    Q_OBJECT

public:
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
        ShowAll,
        Measure,
        CommandCount
    };

    explicit GraphButtons(QWidget* parent = nullptr);

    bool isAutomaticChecked() const;
    void showDisplayMode(eDisplayMode mode);
    void showGraphMode(eGraphMode mode);
    void showMeasuring(bool isOn);

Q_SIGNALS:
    void pressed(int command);
    void released(int command);

private:
    QToolButton* createButton(int command, const QString& name, const char* icon, Qt::Key key);

    QButtonGroup* mGroup;
    std::array<QToolButton*, CommandCount> mButtons{};
};

} // namespace TARN
