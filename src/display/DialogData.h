#pragma once

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

namespace TARN {

class DataView;
class DialogDataTable;

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

    /// Current time, seconds on the recording's clock.
    double time() const { return mTime; }

Q_SIGNALS:
    /// Something that the user should read.
    void signalMessage(const QString& text);

private Q_SLOTS:
    void slotSlider(int position);
    void slotValue(QTime time);
    void slotTimeOffset(double offset);
    void slotTableTime(double time);

private:
    void createTabs();
    QGridLayout* createNavigation();
    void createControls();
    QLCDNumber* createDisplay(int digits, const QString& text, const QString& name);
    void goTo(double time, const DataView* source);
    void updateDisplay();

    Record* mRecord = nullptr;
    double mTime = 0.0;
    bool mUpdating = false; ///< the controls' values are not the user's
    QTabWidget* mTabs;
    DialogDataTable* mTable;
    std::vector<DataView*> mViews; ///< in the order in which they are told
    QLCDNumber* mDateDisplay;
    QLCDNumber* mTimeDisplay;
    QSlider* mSlider;
    QTimeEdit* mTimeEdit;
    QDoubleSpinBox* mOffset;
};

} // namespace TARN
