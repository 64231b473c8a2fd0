#include "display/DialogData.h"

#include "base/ClockTime.h"
#include "display/DialogDataGraph.h"
#include "display/DialogDataTable.h"
#include "display/TimeScale.h"
#include "faults/DialogDataErrorMatrix.h"
#include "faults/DialogEventList.h"
#include "faults/EventDetector.h"
#include "profile/Profile.h"
#include "widgets/Kernel.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QShortcut>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLCDNumber>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTimeEdit>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace TARN {

DialogData::DialogData(QWidget* parent)
    : QWidget(parent), mTabs(new QTabWidget), mTable(new DialogDataTable),
      mGraph(new DialogDataGraph), mLimits(new DialogDataLimit), mWarnings(new DialogDataWarning),
      mFaults(new DialogDataErrorMatrix)
{
    createTabs();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(mTabs, 1);
    layout->addLayout(createNavigation());
    connect(mTable, &DialogDataTable::signalTime, this, &DialogData::slotTableTime);
    connect(mGraph, &DialogDataGraph::signalCursor, this, &DialogData::slotCursor);
    connect(mLimits, &DialogDataLimit::signalTime, this, &DialogData::slotLimitTime);
    connect(mWarnings, &DialogDataWarning::signalTime, this, &DialogData::slotWarningTime);
    connect(mFaults, &DialogDataErrorMatrix::signalTime, this, &DialogData::slotFaultTime);
    connect(mOffset, &QDoubleSpinBox::valueChanged, this, &DialogData::slotTimeOffset);
    connect(mSlider, &QSlider::valueChanged, this, &DialogData::slotSlider);
    connect(mTimeEdit, &QTimeEdit::timeChanged, this, &DialogData::slotValue);
}

void DialogData::createTabs()
{
    mTabs->setObjectName("views");
    mTabs->addTab(mTable, QIcon(":/icons/canStatistic.svg"), tr("Data"));
    mTabs->addTab(mLimits, QIcon(":/icons/limit.svg"), tr("Limit/Warning Exceed"));
    mTabs->addTab(mGraph, QIcon(":/icons/graphSingle.svg"), tr("Graph"));
    mTabs->addTab(mWarnings, QIcon(":/icons/warningLamp.svg"), tr("Warning Lamps"));
    mTabs->addTab(mFaults, QIcon(":/icons/faultMatrix.svg"), tr("Fault Matrix"));
    mViews = {mTable, mGraph, mLimits, mWarnings, mFaults};
}

QGridLayout* DialogData::createNavigation()
{
    mDateDisplay = createDisplay(19, "00.00.0000 00:00:00", tr("Date and time of day"));
    mTimeDisplay = createDisplay(12, "00:00:00.000", tr("Time on the recording's clock"));
    createControls();
    auto* label = new QLabel(tr("Offset:"));
    label->setBuddy(mOffset);
    auto* grid = new QGridLayout;
    grid->addWidget(mDateDisplay, 0, 0, 1, 6);
    grid->addWidget(mTimeDisplay, 1, 0, 1, 6);
    grid->addWidget(label, 2, 0);
    grid->addWidget(mOffset, 2, 1);
    grid->addWidget(mSlider, 2, 2);
    grid->addWidget(mTimeEdit, 2, 3);
    grid->addWidget(mPrevious, 2, 4);
    grid->addWidget(mNext, 2, 5);
    grid->setColumnStretch(2, 1);
    return grid;
}

QLCDNumber* DialogData::createDisplay(int digits, const QString& text, const QString& name)
{
    auto* display = new QLCDNumber(digits);
    display->setSegmentStyle(QLCDNumber::Filled);
    display->setBinMode();
    display->setAutoFillBackground(true);
    display->setMinimumSize(220, 60);
    QPalette palette = display->palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Window, QColor(0, 0, 0));
        palette.setColor(group, QPalette::WindowText, QColor(150, 255, 150));
    }
    display->setPalette(palette);
    display->setToolTip(name);
    display->setAccessibleName(name);
    display->display(text);
    return display;
}

void DialogData::createControls()
{
    mOffset = new QDoubleSpinBox;
    mOffset->setObjectName("offset");
    mOffset->setRange(-10000.0, 10000.0);
    mOffset->setSingleStep(0.1);
    mOffset->setDecimals(2);
    mOffset->setSuffix(tr(" s"));
    mOffset->setToolTip(tr("Seconds added to the times of units whose clock differs; kept with "
                           "the card folder"));
    mSlider = new QSlider(Qt::Horizontal);
    mSlider->setObjectName("timeSlider");
    mSlider->setRange(0, SliderSteps);
    mSlider->setSingleStep(SliderSteps / 1000);
    mSlider->setPageStep(SliderSteps / 100);
    mSlider->setStyle(Kernel::instance()->getStyle2());
    mSlider->setToolTip(tr("Current time, from the recording's start to its stop"));
    mSlider->setAccessibleName(tr("Current time"));
    mTimeEdit = new QTimeEdit;
    mTimeEdit->setObjectName("timeEdit");
    mTimeEdit->setFixedWidth(120);
    mTimeEdit->setDisplayFormat("hh:mm:ss");
    mTimeEdit->setToolTip(tr("Current time; type a time and press Enter to go there"));
    mTimeEdit->setAccessibleName(tr("Go to time"));
    mPrevious = createEventButton("eventPrevious", tr("Previous event"), Qt::Key_P,
                                  &DialogData::slotPreviousEvent);
    mNext = createEventButton("eventNext", tr("Next event"), Qt::Key_N, &DialogData::slotNextEvent);
    // A number is complete with Enter, not after its first digit.
    mOffset->setKeyboardTracking(false);
    mTimeEdit->setKeyboardTracking(false);
    for (QWidget* control : {static_cast<QWidget*>(mOffset), static_cast<QWidget*>(mSlider),
                             static_cast<QWidget*>(mTimeEdit)}) {
        control->setEnabled(false);
    }
}

QToolButton* DialogData::createEventButton(const char* icon, const QString& toolTip,
                                           const QKeySequence& key, void (DialogData::*slot)())
{
    auto* button = new QToolButton;
    button->setIcon(QIcon(QString(":/icons/%1.svg").arg(icon)));
    button->setToolTip(QString("%1 (%2)").arg(toolTip, key.toString()));
    button->setAccessibleName(toolTip);
    button->setObjectName(icon);
    button->setEnabled(false);
    connect(button, &QToolButton::clicked, this, slot);
    // For the whole window, so that the key works from every view.
    auto* shortcut = new QShortcut(key, this);
    shortcut->setContext(Qt::WindowShortcut);
    connect(shortcut, &QShortcut::activated, this, slot);
    return button;
}

void DialogData::updateRecord(Record* record)
{
    mRecord = record;
    mTime = record != nullptr ? record->recordInfo().startTime : 0.0;
    mOffset->setEnabled(record != nullptr);
    mSlider->setEnabled(record != nullptr);
    mTimeEdit->setEnabled(record != nullptr);
    updateEvents();
    updateDisplay();
    for (DataView* view : mViews) {
        view->updateRecord(record);
    }
    for (DataView* view : mViews) {
        view->setTime(mTime);
    }
}

void DialogData::loadProfile()
{
    const ProfileInfo& profile = Profile::instance()->data();
    mFaults->loadProfile(profile);
    mFaults->updateRecord(mRecord);
    mTabs->setTabVisible(mTabs->indexOf(mWarnings), hasWarningLamps(profile));
    mTabs->setTabVisible(mTabs->indexOf(mFaults), !profile.faultMatrices.empty());
    updateEvents();
}

/// Collects the events to go to; the buttons work while there are any.
void DialogData::updateEvents()
{
    mEvents = mRecord != nullptr ? EventTimes(*mRecord, *Profile::instance()) : EventTimes();
    mPrevious->setEnabled(!mEvents.empty());
    mNext->setEnabled(!mEvents.empty());
}

void DialogData::slotNextEvent()
{
    if (const auto time = mEvents.next(mTime)) {
        goTo(*time);
    }
}

void DialogData::slotPreviousEvent()
{
    if (const auto time = mEvents.previous(mTime)) {
        goTo(*time);
    }
}

void DialogData::updateProfile()
{
    for (DataView* view : mViews) {
        view->updateProfile();
    }
    for (DataView* view : mViews) {
        view->setTime(mTime);
    }
}

void DialogData::slotSlider(int position)
{
    if (!mUpdating && mRecord != nullptr) {
        goTo(sliderTime(mRecord->recordInfo(), position));
    }
}

void DialogData::slotValue(QTime time)
{
    if (!mUpdating && mRecord != nullptr) {
        goTo(QTime(0, 0).secsTo(time));
    }
}

int DialogData::currentView() const
{
    return mTabs->currentIndex();
}

void DialogData::setCurrentView(int view)
{
    if (mTabs->isTabVisible(view)) {
        mTabs->setCurrentIndex(view);
    }
}

double DialogData::markStart() const
{
    return mGraph->markStart();
}

double DialogData::markStop() const
{
    return mGraph->markStop();
}

void DialogData::slotCursor(float time, double)
{
    goTo(time, mGraph);
}

void DialogData::slotTableTime(double time)
{
    goTo(time, mTable);
}

void DialogData::slotLimitTime(double time)
{
    goTo(time, mLimits);
}

void DialogData::slotWarningTime(double time)
{
    goTo(time, mWarnings);
}

void DialogData::slotFaultTime(double time)
{
    goTo(time); // cells and cursor of the matrices move too
}

void DialogData::slotTimeOffset(double offset)
{
    if (mUpdating || mRecord == nullptr) {
        return;
    }
    if (!mRecord->setOffset(offset)) {
        Q_EMIT signalMessage(
            tr("The offset could not be saved on the card (is it write-protected?) "
               "and holds until the program ends."));
    }
    for (DataView* view : mViews) {
        view->updateOffset(mRecord);
        view->setTime(mTime);
    }
}

void DialogData::goTo(double time, const DataView* source)
{
    mTime = time;
    for (DataView* view : mViews) {
        if (view != source) {
            view->setTime(mTime);
        }
    }
    updateDisplay();
}

void DialogData::updateDisplay()
{
    if (mRecord == nullptr) {
        return;
    }
    const QScopedValueRollback updating(mUpdating, true);
    const RecordInfo& info = mRecord->recordInfo();
    const QTime time = clockTime(millisecondsOf(mTime));
    mTimeDisplay->display(time.toString("hh:mm:ss.zzz"));
    mTimeEdit->setTime(time);
    mSlider->setValue(sliderPosition(info, mTime));
    mDateDisplay->display(dateText(info, mTime));
    mOffset->setValue(mRecord->recordData().offset);
}

} // namespace TARN
