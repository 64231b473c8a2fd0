#pragma once

#include "flight/Session.h"
#include "graph/GraphData.h"

class QWidget;
class WidgetGraph;

namespace TARN {

struct GraphPicture;

/// Pictures of the graph as it is on the screen, with a caption, for a file or the clipboard.
class Snapshot
{
public:
    /// All live as long.
    Snapshot(const Session& session, WidgetGraph& graph, const GraphData& settings)
        : mSession(session), mGraph(graph), mSettings(settings)
    {}

    /// Asks for a file and saves a picture; \p window is the parent of the questions.
    void save(QWidget& window);
    void copy();

private:
    GraphPicture picture() const;
    bool saveAs(const QString& file);

    const Session& mSession;
    WidgetGraph& mGraph;
    const GraphData& mSettings;
};

} // namespace TARN
