#pragma once

#include "flight/Session.h"
#include "logbook/LogbookAccess.h"

#include <QtWidgets/QDialog>

#include <list>

class QFrame;

namespace TARN {

class ActivityBar;
class ElidedLabel;
class FlightList;
class TrendPanel;

/// The window on a logbook: its flights, and what changes from flight to flight.
class DialogLogbook : public QDialog
{
    Q_OBJECT

public:
    /// Folders are added as the session's profile understands them.
    explicit DialogLogbook(Session& session, QWidget* parent = nullptr);

    /// Reads the logbook that the settings name; what is shown of it stays until then.
    void refresh();

Q_SIGNALS:
    // Recordings of a flight that the user wants to see.
    void flightWanted(const std::list<QString>& files);
    void referenceWanted(const std::list<QString>& files);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* createQuestion();
    QWidget* createButtons();
    void connectAccess();
    void connectViews();
    void answer(bool addsOpened);
    void takeFlights(const FlightHeads& flights);
    void showFlights(const FlightHeads& flights);
    void showChosen();
    void readTrends();
    void addFolder();
    void noteMaintenance();
    void removeFlight();
    void open(const QString& flight, bool asReference);
    void takeRecordings(const FlightHead& head, const FoundRecordings& recordings);
    void askFolder(const FlightHead& head, const QString& reason);
    void say(const QString& text);

    Session& mSession;
    LogbookAccess mAccess;
    bool mAsReference = false;           ///< what is being looked for
    bool mHasFailed = false;             ///< which is said until it can be read
    std::optional<QString> mTrendEngine; ///< that trends were asked of
    QFrame* mQuestion;
    FlightList* mFlights;
    TrendPanel* mTrends;
    ElidedLabel* mMessage;
    ActivityBar* mAdding;
};

} // namespace TARN
