#pragma once

#include "flight/Session.h"

#include <QtCore/QTime>
#include <QtWidgets/QWidget>

class QDoubleSpinBox;
class QGridLayout;
class QLCDNumber;
class QSlider;
class QTimeEdit;
class QToolButton;

namespace TARN {

/// The strip below the views: what time it is on the two clocks, and the controls that move it.
class TimeControls : public QWidget
{
    Q_OBJECT

public:
    explicit TimeControls(Session& session, QWidget* parent = nullptr);

Q_SIGNALS:
    /// Something that the user should read.
    void signalMessage(const QString& text);

public Q_SLOTS:
    /// Goes to the next or previous event: limit, lamp, warning or fault.
    void slotNextEvent();
    void slotPreviousEvent();

private Q_SLOTS:
    void slotSlider(int position);
    void slotValue(QTime time);
    void slotTimeOffset(double offset);

private:
    void createControls();
    void addDisplay(QGridLayout* grid, int row, const QString& clock, QLCDNumber* display);
    QToolButton* createEventButton(const char* icon, const QString& toolTip,
                                   const QList<QKeySequence>& keys, void (TimeControls::*slot)());
    QLCDNumber* createDisplay(int digits, const QString& name);
    void updateFlight();
    void updateDisplay();
    void arrive(std::span<const EventMark> marks, double time);

    Session& mSession;
    bool mUpdating = false; ///< the controls' values are not the user's
    QLCDNumber* mDateDisplay;
    QLCDNumber* mTimeDisplay;
    QDoubleSpinBox* mOffset;
    QSlider* mSlider;
    QTimeEdit* mTimeEdit;
    QToolButton* mPrevious;
    QToolButton* mNext;
};

} // namespace TARN
