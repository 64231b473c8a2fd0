#include "export/WidgetTimeRange.h"

#include "base/ClockTime.h"
#include "flight/TimeScale.h"
#include "widgets/ClockEdit.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace TARN {

WidgetTimeRange::WidgetTimeRange(ExportOptions& options, QWidget* parent)
    : QGroupBox(tr("Start/Stop Time (recording clock)"), parent), mOptions(options),
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
    auto* edit = new ClockEdit("hh:mm:ss.zzz");
    edit->setToolTip(name);
    edit->setAccessibleName(name);
    return edit;
}

void WidgetTimeRange::showTimes()
{
    mWhole = mOptions.range();
    updateEditors();
}

void WidgetTimeRange::updateEditors()
{
    const QScopedValueRollback updating(mUpdating, true);
    mStartEdit->setTime(clockTime(millisecondsOf(mOptions.startTime)));
    mStopEdit->setTime(clockTime(millisecondsOf(mOptions.stopTime)));
}

bool WidgetTimeRange::check()
{
    if (mOptions.startTime <= mOptions.stopTime) {
        return true;
    }
    QMessageBox::warning(this, tr("ORNA Warning"),
                         tr("The start time is after the stop time: nothing would be exported."));
    return false;
}

double WidgetTimeRange::typed(QTime time, double now) const
{
    return timeInRange(time.msecsSinceStartOfDay() * 0.001, mWhole, now);
}

void WidgetTimeRange::slotStartTime(QTime time)
{
    if (!mUpdating) {
        mOptions.startTime = typed(time, mOptions.startTime);
    }
}

void WidgetTimeRange::slotStopTime(QTime time)
{
    if (!mUpdating) {
        mOptions.stopTime = typed(time, mOptions.stopTime);
    }
}

void WidgetTimeRange::slotCursorStart()
{
    mOptions.startTime = mOptions.currentTime;
    updateEditors();
}

void WidgetTimeRange::slotCursorStop()
{
    mOptions.stopTime = mOptions.currentTime;
    updateEditors();
}

} // namespace TARN
