#include "app/DialogData.h"

#include "app/TimeControls.h"
#include "compare/ReferenceBar.h"
#include "events/DialogDataErrorMatrix.h"
#include "events/DialogDataLimit.h"
#include "events/DialogDataWarning.h"
#include "faults/EventDetector.h"
#include "graph/DialogDataGraph.h"
#include "graph/GraphActions.h"
#include "graph/WidgetGraph.h"
#include "table/DialogDataTable.h"
#include "track/DialogDataTrack.h"
#include "widgets/MadeWhenShown.h"

#include <QtGui/QShortcut>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QVBoxLayout>

namespace TARN {

namespace {

// Places of the views that are gone to.
constexpr int Exceedances = 1;
constexpr int Graph = 2;
constexpr int Lamps = 3;
constexpr int Matrices = 4;

} // namespace

DialogData::DialogData(Session& session, QWidget* parent)
    : QWidget(parent), mSession(session), mEpisodes(session),
      mBar(new FlightBar(session, mEpisodes)), mTabs(new QTabWidget),
      mGraph(new DialogDataGraph(session, mEpisodes)), mControls(new TimeControls(session))
{
    mTabs->setObjectName("views");
    addView(new DialogDataTable(session), "canStatistic", tr("Data"));
    addView(new DialogDataLimit(session, mEpisodes), "limit", tr("Limit/Warning Exceed"));
    addView(mGraph, "graphSingle", tr("Graph"));
    addView(new DialogDataWarning(session, mEpisodes), "warningLamp", tr("Warning Lamps"),
            [](const Profile& profile) { return hasWarningLamps(profile.data()); });
    addView(new DialogDataErrorMatrix(session, mEpisodes), "faultMatrix", tr("Fault Matrix"),
            [](const Profile& profile) { return !profile.data().faultMatrices.empty(); });
    addView(new MadeWhenShown([this] {
                auto* track = new DialogDataTrack(mSession, mEpisodes);
                connect(track, &DialogDataTrack::signalLink, this, &DialogData::signalLink);
                return track;
            }),
            "track", tr("Track"), namesPosition);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(mBar);
    layout->addWidget(mTabs, 1);
    layout->addWidget(mControls);
    // Made when it is first of use: the start does not wait for it.
    connect(&mSession.reference(), &Reference::flightChanged, this,
            [this, layout, isMade = false]() mutable {
                if (!isMade && mSession.reference().flight() != nullptr) {
                    layout->insertWidget(1, new ReferenceBar(mSession));
                    isMade = true;
                }
            });
    connect(mControls, &TimeControls::signalMessage, this, &DialogData::signalMessage);
    connect(&mSession, &Session::profileChanged, this, &DialogData::showProfile);
    connect(mBar, &FlightBar::counted, this, &DialogData::showCounts);
    connect(mBar, &FlightBar::wanted, this, &DialogData::goTo);
    createShortcuts();
    showTabs();
}

template <typename View>
void DialogData::addView(View* view, const char* icon, const QString& title, IsOfUse isOfUse)
{
    mTabs->addTab(view, QIcon(QString(":/icons/%1.svg").arg(icon)), title);
    mIsOfUse.push_back(std::move(isOfUse));
    mTitles.push_back(title);
    if constexpr (requires { &View::signalLink; }) {
        connect(view, &View::signalLink, this, &DialogData::signalLink);
    }
    if constexpr (requires { &View::signalGraph; }) {
        connect(view, &View::signalGraph, this, &DialogData::showInGraph);
    }
}

/// Letters work in the views alone: elsewhere somebody may be typing a name.
void DialogData::createShortcuts()
{
    const struct
    {
        QKeySequence key;
        QWidget* where;
        Qt::ShortcutContext context;
        void (TimeControls::*slot)();
    } shortcuts[] = {
        {Qt::Key_N, mTabs, Qt::WidgetWithChildrenShortcut, &TimeControls::slotNextEvent},
        {Qt::Key_P, mTabs, Qt::WidgetWithChildrenShortcut, &TimeControls::slotPreviousEvent},
        {Qt::Key_F4, this, Qt::WindowShortcut, &TimeControls::slotNextEvent},
        {Qt::SHIFT | Qt::Key_F4, this, Qt::WindowShortcut, &TimeControls::slotPreviousEvent},
    };
    for (const auto& [key, where, context, slot] : shortcuts) {
        auto* shortcut = new QShortcut(key, where);
        shortcut->setContext(context);
        connect(shortcut, &QShortcut::activated, mControls, slot);
    }
}

void DialogData::showTabs()
{
    for (std::size_t i = 0; i < mIsOfUse.size(); ++i) {
        mTabs->setTabVisible(static_cast<int>(i), !mIsOfUse[i] || mIsOfUse[i](*mSession.profile()));
    }
}

void DialogData::showCounts()
{
    const FlightSummary& found = mBar->summary();
    const std::pair<int, std::size_t> counts[] = {
        {Exceedances, found.limits.times + found.warnings.times},
        {Lamps, found.lamps.times},
        {Matrices, found.faults.times}};
    for (const auto& [view, count] : counts) {
        const QString& title = mTitles.at(view);
        mTabs->setTabText(view, count == 0 ? title : QString("%1 (%2)").arg(title).arg(count));
    }
}

void DialogData::goTo(FlightSummary::Part::Kind kind, double time)
{
    using Part = FlightSummary::Part;
    if (kind == Part::Remarks) {
        Q_EMIT signalRemarks();
        return;
    }
    setCurrentView(kind == Part::Exceedances ? Exceedances
                   : kind == Part::Lamps     ? Lamps
                                             : Matrices);
    mSession.setTime(time);
}

/// The parameter is selected, if it is not, and the minute around the time stands in the graph.
void DialogData::showInGraph(const ProfileParameter& parameter, double time)
{
    if (!mSession.selection().contains(parameter)) {
        Selection ticks = mSession.ticks();
        ticks.set(parameter, true);
        mSession.setTicks(ticks);
        mSession.confirm();
    }
    setCurrentView(Graph);
    mSession.setTime(time);
    if (mGraph->graph() != nullptr) {
        zoomToMinute(mGraph->graph()->model(), time);
    }
}

void DialogData::showProfile()
{
    showTabs();
    if (const auto wanted = std::exchange(mWanted, std::nullopt)) {
        setCurrentView(*wanted);
        mWanted.reset();
    }
}

int DialogData::currentView() const
{
    return mTabs->currentIndex();
}

void DialogData::setCurrentView(int view)
{
    if (mTabs->isTabVisible(view)) {
        mTabs->setCurrentIndex(view);
    } else {
        mWanted = view;
    }
}

} // namespace TARN
