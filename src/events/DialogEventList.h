#pragma once

#include "events/EventOrder.h"
#include "flight/EpisodeWatch.h"
#include "flight/Session.h"

#include <QtWidgets/QWidget>

namespace TARN {

class DataTableView;
class EventFilter;

/// A list of events by time, which the user may sort and filter. Picking one goes to its time;
/// moving the time selects the latest event at or before it.
class DialogEventList : public QWidget
{
    Q_OBJECT

public:
    /// \p title of the event column.
    DialogEventList(Session& session, EpisodeWatch& episodes, EventKind kind, const QString& title,
                    QWidget* parent = nullptr);

    int rowCount() const; ///< of those that are shown

Q_SIGNALS:
    /// The user follows a link of the empty text.
    void signalLink(const QString& link);
    /// The user wants to see a parameter at a time in the graph; seconds with the time offset.
    void signalGraph(const TARN::ProfileParameter& parameter, double time);

private Q_SLOTS:
    void slotSelect(int row);

private:
    void createCommands();
    std::optional<EventModel::Place> currentPlace() const;
    void goToPeak();
    void showInGraph();
    void copy() const;
    void showFlight();
    void showEpisodes();
    void showReference();
    void showCurrentTime() { showTime(mSession.time(), nullptr); }
    void showTime(double time, const QObject* source);
    void updateDigits();
    void updateEmptyText();

    Session& mSession;
    EpisodeWatch& mEpisodes;
    EventModel* mModel;
    EventOrder* mOrder;
    EventFilter* mFilter;
    DataTableView* mTable;
};

} // namespace TARN
