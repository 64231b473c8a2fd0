#pragma once

#include "flight/EpisodeWatch.h"
#include "flight/Session.h"

#include <QtWidgets/QWidget>

#include <functional>
#include <optional>
#include <vector>

class QTabWidget;

namespace TARN {

class TimeControls;

/// The data window: the views of the session as tabs, and the time controls below them.
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

private:
    /// Whether a view has something to do with a profile.
    using IsOfUse = std::function<bool(const ProfileInfo&)>;

    template <typename View>
    void addView(View* view, const char* icon, const QString& title, IsOfUse isOfUse = {});
    void createShortcuts();
    void showTabs();
    void showProfile();

    Session& mSession;
    EpisodeWatch mEpisodes;
    QTabWidget* mTabs;
    TimeControls* mControls;
    std::optional<int> mWanted;    ///< the view to go to when the next profile is there
    std::vector<IsOfUse> mIsOfUse; ///< of each tab; empty for those that are always there
};

} // namespace TARN
