#pragma once

#include "flight/Session.h"

#include <QtWidgets/QSplitter>

class WidgetGraph;

namespace TARN {

class MeasurePanel;

/// The graph above the measuring panel, which is there where something is selected. Where both
/// have no room the panel gives way, so that the strips of the graph can be read; asked for, it is
/// shown all the same. Wish and height are kept in the settings.
class GraphPanes : public QSplitter
{
    Q_OBJECT

public:
    /// Takes the graph in.
    GraphPanes(Session& session, WidgetGraph& graph);

    /// Shows the panel, or hides it where it is shown.
    void toggleMeasuring();
    bool isMeasuring() const;

Q_SIGNALS:
    void measuringChanged(bool isShown);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void fit();
    int heightOfStrips() const;

    Session& mSession;
    WidgetGraph& mGraph;
    MeasurePanel* mPanel;
    bool mIsWanted;
    bool mIsForced = false; ///< although there is no room
};

} // namespace TARN
