#pragma once

#include "events/EventModel.h"
#include "flight/EpisodeWatch.h"
#include "flight/Session.h"

#include <QtWidgets/QWidget>

namespace TARN {

class DataTableView;

/// A list of events by time. Picking one goes to its time; moving the time selects the latest
/// event at or before it.
class DialogEventList : public QWidget
{
    Q_OBJECT

public:
    int rowCount() const;

Q_SIGNALS:
    /// The user follows a link of the empty text.
    void signalLink(const QString& link);
    /// The user wants to see a parameter at a time in the graph; seconds with the time offset.
    void signalGraph(const TARN::ProfileParameter& parameter, double time);

protected:
    /// \p title of the event column; \p hasEpisodes shows the columns that tell of episodes.
    DialogEventList(Session& session, const QString& title, bool hasEpisodes, QWidget* parent);

    /// The list of a flight that the view shows.
    virtual const std::vector<RecordEvent>& eventsOf(const Events& events) const = 0;
    /// What is said where a flight with samples has no event, and what was looked at.
    virtual QString allWell(const Events& events) const = 0;

    EventModel& model() { return *mModel; }
    /// To be called once the object is complete.
    void showFlight();
    /// Selects the latest event of the current time.
    void showCurrentTime() { showTime(mSession.time(), nullptr); }

private Q_SLOTS:
    void slotSelect(int row);

private:
    void createCommands();
    std::optional<EventModel::Place> currentPlace() const;
    void goToPeak();
    void showInGraph();
    void copy() const;
    void showTime(double time, const QObject* source);
    void updateDigits();
    void updateEmptyText();

    Session& mSession;
    EventModel* mModel;
    DataTableView* mTable;
};

} // namespace TARN
