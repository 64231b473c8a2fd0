#pragma once

#include "faults/EventTimes.h"
#include "record/Record.h"

#include <QtCore/QTime>
#include <QtWidgets/QWidget>

#include <vector>

class QDoubleSpinBox;
class QGridLayout;
class QLCDNumber;
class QSlider;
class QTabWidget;
class QTimeEdit;
class QToolButton;

namespace TARN {

class DataView;
class DialogDataErrorMatrix;
class DialogDataGraph;
class DialogDataLimit;
class DialogDataTable;
class DialogDataWarning;

/// The data window: its views, and the one current time that they share. A view that picks a
/// time reports it here; all others are told, then the displays follow.
class DialogData : public QWidget
{
    Q_OBJECT

public:
    explicit DialogData(QWidget* parent = nullptr);

    /// Shows a newly loaded recording, not owned, from its start. Null before the recording
    /// that was shown is replaced or freed: views refer to its samples.
    void updateRecord(Record* record);

    /// The profile or the parameter selection changed.
    void updateProfile();

    /// A profile was loaded: tabs for lamps and faults follow what it describes.
    void loadProfile();

    /// Number of the view that is shown; a view that is hidden or not there is not gone to.
    int currentView() const;
    void setCurrentView(int view);

    /// Current time, seconds on the recording's clock.
    double time() const { return mTime; }
    /// Makes \p time the current one in every view but \p source, which shows it already.
    void goTo(double time, const DataView* source = nullptr);

    // The range marked in the graph, seconds; start and stop are one when nothing is marked.
    double markStart() const;
    double markStop() const;

Q_SIGNALS:
    /// Something that the user should read.
    void signalMessage(const QString& text);

public Q_SLOTS:
    /// Goes to the next or previous event: limit, lamp or fault change.
    void slotNextEvent();
    void slotPreviousEvent();

private Q_SLOTS:
    void slotSlider(int position);
    void slotValue(QTime time);
    void slotTimeOffset(double offset);
    void slotCursor(float time, double value);
    void slotTableTime(double time);
    void slotLimitTime(double time);
    void slotWarningTime(double time);
    void slotFaultTime(double time);

private:
    void createTabs();
    QGridLayout* createNavigation();
    void createControls();
    QToolButton* createEventButton(const char* icon, const QString& toolTip,
                                   const QKeySequence& key, void (DialogData::*slot)());
    QLCDNumber* createDisplay(int digits, const QString& text, const QString& name);
    void updateDisplay();
    void updateEvents();

    Record* mRecord = nullptr;
    double mTime = 0.0;
    bool mUpdating = false; ///< the controls' values are not the user's
    QTabWidget* mTabs;
    DialogDataTable* mTable;
    DialogDataGraph* mGraph;
    DialogDataLimit* mLimits;
    DialogDataWarning* mWarnings;
    DialogDataErrorMatrix* mFaults;
    EventTimes mEvents;
    QToolButton* mPrevious;
    QToolButton* mNext;
    std::vector<DataView*> mViews; ///< in the order in which they are told
    QLCDNumber* mDateDisplay;
    QLCDNumber* mTimeDisplay;
    QSlider* mSlider;
    QTimeEdit* mTimeEdit;
    QDoubleSpinBox* mOffset;
};

} // namespace TARN
