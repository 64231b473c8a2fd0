#pragma once

#include "events/FlightBar.h"
#include "flight/EpisodeWatch.h"
#include "flight/Session.h"

#include <QtWidgets/QWidget>

#include <functional>
#include <optional>
#include <vector>

class QTabWidget;

namespace TARN {

class DialogDataGraph;
class TimeControls;

/// The data window: what happened in one line, the views of the session as tabs, and the time
/// controls below them.
class DialogData : public QWidget
{
    Q_OBJECT

public:
    explicit DialogData(Session& session, QWidget* parent = nullptr);

    /// Number of the view that is shown. One that only a profile brings is gone to when the next
    /// profile is there, and not at all when that one does not bring it.
    int currentView() const;
    void setCurrentView(int view);

Q_SIGNALS:
    /// Something that the user should read.
    void signalMessage(const QString& text);
    /// The user follows the link of a view that has nothing to show.
    void signalLink(const QString& link);
    /// The user wants to read the remarks on the recording.
    void signalRemarks();

private:
    /// Whether a view has something to do with a profile.
    using IsOfUse = std::function<bool(const Profile&)>;

    template <typename View>
    void addView(View* view, const char* icon, const QString& title, IsOfUse isOfUse = {});
    void createShortcuts();
    void showTabs();
    void showCounts();
    void showProfile();
    void goTo(FlightSummary::Part::Kind kind, double time);
    void showInGraph(const ProfileParameter& parameter, double time);

    Session& mSession;
    EpisodeWatch mEpisodes;
    FlightBar* mBar;
    QTabWidget* mTabs;
    DialogDataGraph* mGraph;
    TimeControls* mControls;
    std::optional<int> mWanted;    ///< the view to go to when the next profile is there
    std::vector<IsOfUse> mIsOfUse; ///< of each tab; empty for those that are always there
    QStringList mTitles;           ///< of the tabs, without counts
};

} // namespace TARN
