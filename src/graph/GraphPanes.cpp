#include "graph/GraphPanes.h"

#include "base/Property.h"
#include "graph/MeasurePanel.h"
#include "graph/WidgetGraph.h"

#include <algorithm>

namespace TARN {

namespace {

constexpr const char* ShownKey = "MeasurePanel";
constexpr const char* HeightKey = "MeasureHeight";
constexpr int FirstHeight = 190; ///< pixels
constexpr int LeastHeight = 90;  ///< times, headers and two rows

} // namespace

GraphPanes::GraphPanes(Session& session, WidgetGraph& graph)
    : QSplitter(Qt::Vertical), mSession(session), mGraph(graph),
      mPanel(new MeasurePanel(session, graph)),
      mIsWanted(Property::instance()->getSwitch(ShownKey, true))
{
    addWidget(&mGraph);
    addWidget(mPanel);
    setStretchFactor(0, 1);
    setChildrenCollapsible(false);
    connect(this, &QSplitter::splitterMoved, this,
            [this] { Property::instance()->setInt(HeightKey, sizes()[1]); });
    connect(mPanel, &MeasurePanel::closed, this, &GraphPanes::toggleMeasuring);
    connect(&mSession, &Session::selectionChanged, this, &GraphPanes::fit);
    connect(&mSession, &Session::profileChanged, this, &GraphPanes::fit);
    connect(&mGraph.model(), &GraphModel::modeChanged, this, &GraphPanes::fit);
    mPanel->setVisible(mIsWanted);
}

bool GraphPanes::isMeasuring() const
{
    return !mPanel->isHidden();
}

void GraphPanes::toggleMeasuring()
{
    mIsWanted = mPanel->isHidden();
    mIsForced = mIsWanted;
    Property::instance()->setSwitch(ShownKey, mIsWanted);
    Property::instance()->writeXmlFile();
    fit();
}

void GraphPanes::resizeEvent(QResizeEvent* event)
{
    QSplitter::resizeEvent(event);
    fit();
}

/// What the graph needs to be read.
int GraphPanes::heightOfStrips() const
{
    constexpr int Axis = 50;
    constexpr int Single = 200;
    constexpr std::size_t Most = CurveSet::MaxCurves;
    const auto count = mSession.selection().parameters(*mSession.profile()).size();
    const int line = QFontMetrics(mGraph.font()).height();
    return Axis + (mGraph.model().layout().displayMode() == DisplaySplit
                       ? static_cast<int>(std::min(count, Most)) * line
                       : Single);
}

void GraphPanes::fit()
{
    const int wanted = Property::instance()->getInt(HeightKey, FirstHeight);
    const int room = height() - handleWidth() - heightOfStrips();
    const bool isShown =
        mIsWanted && !mSession.selection().empty() && (mIsForced || room >= LeastHeight);
    if (isShown == mPanel->isHidden()) {
        mPanel->setVisible(isShown);
    }
    if (isShown) {
        const int panel = std::clamp(room, LeastHeight, std::max(LeastHeight, wanted));
        setSizes({height() - handleWidth() - panel, panel});
    }
    Q_EMIT measuringChanged(isShown);
}

} // namespace TARN
