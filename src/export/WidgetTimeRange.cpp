#include "export/WidgetTimeRange.h"

#include "base/ClockTime.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTimeEdit>

namespace TARN {

WidgetTimeRange::WidgetTimeRange(double& start, double& stop, const double& cursor, QWidget* parent)
    : QGroupBox(tr("Start/Stop Time"), parent), mStart(start), mStop(stop), mCursor(cursor),
      mStartEdit(createEditor(tr("Start time"))), mStopEdit(createEditor(tr("Stop time")))
{
    mStartEdit->setObjectName("startTime");
    mStopEdit->setObjectName("stopTime");
    auto* cursorStart = new QPushButton(tr("Cursor Pos"));
    auto* cursorStop = new QPushButton(tr("Cursor Pos"));
    cursorStart->setToolTip(tr("Start at the current time of the data window"));
    cursorStop->setToolTip(tr("Stop at the current time of the data window"));
    auto* startLabel = new QLabel(tr("Start :"));
    auto* stopLabel = new QLabel(tr("Stop :"));
    startLabel->setBuddy(mStartEdit);
    stopLabel->setBuddy(mStopEdit);
    auto* layout = new QGridLayout(this);
    layout->addWidget(startLabel, 0, 0);
    layout->addWidget(mStartEdit, 0, 1);
    layout->addWidget(cursorStart, 0, 2);
    layout->addWidget(stopLabel, 1, 0);
    layout->addWidget(mStopEdit, 1, 1);
    layout->addWidget(cursorStop, 1, 2);
    layout->setColumnStretch(1, 1);
    connect(mStartEdit, &QTimeEdit::timeChanged, this, &WidgetTimeRange::slotStartTime);
    connect(mStopEdit, &QTimeEdit::timeChanged, this, &WidgetTimeRange::slotStopTime);
    connect(cursorStart, &QPushButton::clicked, this, &WidgetTimeRange::slotCursorStart);
    connect(cursorStop, &QPushButton::clicked, this, &WidgetTimeRange::slotCursorStop);
}

QTimeEdit* WidgetTimeRange::createEditor(const QString& name)
{
    auto* edit = new QTimeEdit;
    edit->setDisplayFormat("hh:mm:ss.zzz");
    edit->setToolTip(name);
    edit->setAccessibleName(name);
    return edit;
}

void WidgetTimeRange::showTimes()
{
    const QScopedValueRollback updating(mUpdating, true);
    mStartEdit->setTime(clockTime(millisecondsOf(mStart)));
    mStopEdit->setTime(clockTime(millisecondsOf(mStop)));
}

bool WidgetTimeRange::check()
{
    if (mStart <= mStop) {
        return true;
    }
    QMessageBox::warning(this, tr("ORNA Warning"),
                         tr("The start time is after the stop time: nothing would be exported."));
    return false;
}

void WidgetTimeRange::slotStartTime(QTime time)
{
    if (!mUpdating) {
        mStart = withTimeOfDay(mStart, time);
    }
}

void WidgetTimeRange::slotStopTime(QTime time)
{
    if (!mUpdating) {
        mStop = withTimeOfDay(mStop, time);
    }
}

void WidgetTimeRange::slotCursorStart()
{
    mStart = mCursor;
    showTimes();
}

void WidgetTimeRange::slotCursorStop()
{
    mStop = mCursor;
    showTimes();
}

} // namespace TARN
