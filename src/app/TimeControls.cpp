#include "app/TimeControls.h"

#include "base/ClockTime.h"
#include "flight/TimeScale.h"
#include "widgets/ClockEdit.h"
#include "widgets/Kernel.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLCDNumber>
#include <QtWidgets/QLabel>
#include <QtWidgets/QSlider>
#include <QtWidgets/QToolButton>

namespace TARN {

namespace {

// While no recording is loaded.
constexpr const char* NoDate = "00.00.0000 00:00:00";
constexpr const char* NoTime = "00:00:00.000";

} // namespace

TimeControls::TimeControls(Session& session, QWidget* parent) : QWidget(parent), mSession(session)
{
    mDateDisplay = createDisplay(19, tr("Date and time of day in UTC"));
    mTimeDisplay = createDisplay(12, tr("Time on the recording's clock"));
    createControls();
    auto* label = new QLabel(tr("Offset:"));
    label->setBuddy(mOffset);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    addDisplay(grid, 0, tr("UTC"), mDateDisplay);
    addDisplay(grid, 1, tr("Recording clock"), mTimeDisplay);
    grid->addWidget(label, 2, 0);
    grid->addWidget(mOffset, 2, 1);
    grid->addWidget(mSlider, 2, 2);
    grid->addWidget(mTimeEdit, 2, 3);
    grid->addWidget(mPrevious, 2, 4);
    grid->addWidget(mNext, 2, 5);
    grid->setColumnStretch(2, 1);
    connect(mOffset, &QDoubleSpinBox::valueChanged, this, &TimeControls::slotTimeOffset);
    connect(mSlider, &QSlider::valueChanged, this, &TimeControls::slotSlider);
    connect(mTimeEdit, &QTimeEdit::timeChanged, this, &TimeControls::slotValue);
    connect(&mSession, &Session::profileChanged, this, &TimeControls::updateFlight);
    connect(&mSession, &Session::flightChanged, this, &TimeControls::updateFlight);
    connect(&mSession, &Session::timeChanged, this, &TimeControls::updateDisplay);
    updateFlight();
}

void TimeControls::addDisplay(QGridLayout* grid, int row, const QString& clock, QLCDNumber* display)
{
    auto* label = new QLabel(clock);
    label->setToolTip(display->toolTip());
    grid->addWidget(label, row, 0);
    grid->addWidget(display, row, 1, 1, 5);
}

QLCDNumber* TimeControls::createDisplay(int digits, const QString& name)
{
    constexpr int Height = 40; // to be read across a desk
    auto* display = new QLCDNumber(digits);
    display->setSegmentStyle(QLCDNumber::Filled);
    display->setBinMode();
    display->setAutoFillBackground(true);
    display->setMinimumWidth(220);
    display->setFixedHeight(Height);
    QPalette palette = display->palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Window, QColor(0, 0, 0));
        palette.setColor(group, QPalette::WindowText, QColor(150, 255, 150));
    }
    display->setPalette(palette);
    display->setToolTip(name);
    display->setAccessibleName(name);
    return display;
}

void TimeControls::createControls()
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
    mTimeEdit = new ClockEdit("hh:mm:ss");
    mTimeEdit->setObjectName("timeEdit");
    mTimeEdit->setFixedWidth(120);
    mTimeEdit->setToolTip(
        tr("Current time on the recording's clock; type a time and press Enter to go there"));
    mTimeEdit->setAccessibleName(tr("Go to time"));
    mPrevious =
        createEventButton("eventPrevious", tr("Previous event"),
                          {Qt::Key_P, Qt::SHIFT | Qt::Key_F4}, &TimeControls::slotPreviousEvent);
    mNext = createEventButton("eventNext", tr("Next event"), {Qt::Key_N, Qt::Key_F4},
                              &TimeControls::slotNextEvent);
    // A number is complete with Enter, not after its first digit.
    mOffset->setKeyboardTracking(false);
    mTimeEdit->setKeyboardTracking(false);
}

QToolButton* TimeControls::createEventButton(const char* icon, const QString& toolTip,
                                             const QList<QKeySequence>& keys,
                                             void (TimeControls::*slot)())
{
    auto* button = new QToolButton;
    button->setIcon(QIcon(QString(":/icons/%1.svg").arg(icon)));
    button->setToolTip(QString("%1 (%2)").arg(
        toolTip, QKeySequence::listToString(keys, QKeySequence::NativeText)));
    button->setAccessibleName(toolTip);
    button->setObjectName(icon);
    connect(button, &QToolButton::clicked, this, slot);
    return button;
}

void TimeControls::updateFlight()
{
    const auto& flight = mSession.flight();
    for (QWidget* control : {static_cast<QWidget*>(mOffset), static_cast<QWidget*>(mSlider),
                             static_cast<QWidget*>(mTimeEdit)}) {
        control->setEnabled(flight != nullptr);
    }
    const bool hasEvents = flight != nullptr && !flight->marks().empty();
    mPrevious->setEnabled(hasEvents);
    mNext->setEnabled(hasEvents);
    updateDisplay();
}

void TimeControls::slotNextEvent()
{
    if (mSession.flight() != nullptr) {
        const auto marks = mSession.flight()->marks().next(mSession.time());
        if (!marks.empty()) {
            arrive(marks, marks.front().time);
        }
    }
}

void TimeControls::slotPreviousEvent()
{
    if (mSession.flight() != nullptr) {
        const auto marks = mSession.flight()->marks().previous(mSession.time());
        if (!marks.empty()) {
            arrive(marks, marks.back().time);
        }
    }
}

/// Goes there and says what happened then.
void TimeControls::arrive(std::span<const EventMark> marks, double time)
{
    QStringList texts;
    for (const EventMark& mark : marks) {
        texts += mark.text.trimmed();
    }
    mSession.setTime(time);
    Q_EMIT signalMessage(clockTextWithMilliseconds(time) + "  " + texts.join("; "));
}

void TimeControls::slotSlider(int position)
{
    if (!mUpdating && mSession.flight() != nullptr) {
        mSession.setTime(sliderTime(mSession.flight()->info(), position));
    }
}

void TimeControls::slotValue(QTime time)
{
    if (!mUpdating && mSession.flight() != nullptr) {
        mSession.setTime(timeInRange(QTime(0, 0).secsTo(time),
                                     mSession.flight()->range(mSession.offset()), mSession.time()));
    }
}

void TimeControls::slotTimeOffset(double offset)
{
    if (!mUpdating && mSession.flight() != nullptr) {
        mSession.setOffset(offset);
    }
}

void TimeControls::updateDisplay()
{
    if (mSession.flight() == nullptr) {
        mDateDisplay->display(NoDate);
        mTimeDisplay->display(NoTime);
        return;
    }
    const QScopedValueRollback updating(mUpdating, true);
    const RecordInfo& info = mSession.flight()->info();
    const QTime time = clockTime(millisecondsOf(mSession.time()));
    mTimeDisplay->display(time.toString("hh:mm:ss.zzz"));
    mTimeEdit->setTime(time);
    mSlider->setValue(sliderPosition(info, mSession.time()));
    mDateDisplay->display(dateText(info, mSession.time()));
    mOffset->setValue(mSession.offset());
}

} // namespace TARN
