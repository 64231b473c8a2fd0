#include "compare/ReferenceBar.h"

#include "base/ClockTime.h"
#include "flight/Comparison.h"
#include "widgets/ElidedLabel.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace TARN {

namespace {

/// "21.6.2025 9:00:00 LOG_0001.CAN (+2)": cards name their files alike.
QString nameOf(const Flight& flight)
{
    const auto& files = flight.record()->integrity().files;
    QString name = files.empty() ? QString() : files.front().info.fileName.section('/', -1);
    if (files.size() > 1) {
        name += QString(" (+%1)").arg(files.size() - 1);
    }
    const RecordInfo& first = files.empty() ? flight.info() : files.front().info;
    return (first.dateTimeText() + " " + name).trimmed();
}

} // namespace

ReferenceBar::ReferenceBar(Session& session, QWidget* parent)
    : QWidget(parent), mSession(session), mAligner(session), mFlight(new ElidedLabel),
      mReference(new ElidedLabel), mNote(new QLabel), mModes(createModes()),
      mParameter(new QComboBox), mValue(new QDoubleSpinBox), mShift(new QDoubleSpinBox),
      mPick(new QToolButton)
{
    setObjectName("referenceBar");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(createNames());
    layout->addWidget(createControls());
    layout->addWidget(mNote);
    mNote->setObjectName("note");
    mNote->setWordWrap(true);
    followSession();
    showAlignment();
    showFlights();
}

QWidget* ReferenceBar::createNames()
{
    auto* names = new QWidget;
    auto* layout = new QHBoxLayout(names);
    layout->setContentsMargins(0, 0, 0, 0);
    mFlight->setObjectName("flightName");
    mReference->setObjectName("referenceName");
    layout->addWidget(mFlight, 3);
    layout->addWidget(mReference, 4); // has more to say
    Reference& reference = mSession.reference();
    layout->addWidget(createSwitch(tr("Curves"), tr("Show the reference's curves (B in the graph)"),
                                   reference.shown()));
    layout->addWidget(createSwitch(
        tr("Difference"), tr("Show flight minus reference in strips of their own (D in the graph)"),
        reference.differenceShown()));
    layout->addWidget(createSwitch(tr("Columns"), tr("Show the reference's values in the table"),
                                   reference.columnsShown()));
    layout->addWidget(createAway());
    return names;
}

QToolButton* ReferenceBar::createAway()
{
    auto* away = new QToolButton;
    away->setObjectName("removeReference");
    away->setAutoRaise(true);
    away->setIcon(QIcon(":/icons/fail.svg"));
    away->setToolTip(tr("Take the reference flight away"));
    away->setAccessibleName(away->toolTip());
    connect(away, &QToolButton::clicked, this, [this] { mSession.reference().setFlight(nullptr); });
    return away;
}

QComboBox* ReferenceBar::createModes()
{
    auto* modes = new QComboBox;
    modes->setObjectName("align");
    modes->addItems({tr("Clock"), tr("Start"), tr("Moment"), tr("Passing")});
    modes->setToolTip(tr("What is laid on what: times of day, the first samples, a moment picked "
                         "in both, or when a parameter first passes a value"));
    modes->setAccessibleName(tr("Alignment"));
    modes->view()->setAccessibleName(modes->accessibleName());
    connect(modes, &QComboBox::activated, this, &ReferenceBar::chooseMode);
    return modes;
}

QCheckBox* ReferenceBar::createSwitch(const QString& text, const QString& toolTip, Switch& on)
{
    auto* box = new QCheckBox(text);
    box->setToolTip(toolTip);
    box->setChecked(on.isOn());
    connect(box, &QCheckBox::toggled, &on, &Switch::turn);
    connect(&on, &Switch::turned, box, &QCheckBox::setChecked);
    return box;
}

void ReferenceBar::preparePassing()
{
    mParameter->setObjectName("passingParameter");
    mParameter->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    mParameter->setMinimumContentsLength(12);
    for (QWidget* widget :
         {static_cast<QWidget*>(mParameter), static_cast<QWidget*>(mParameter->view())}) {
        widget->setAccessibleName(tr("Parameter that passes the value"));
    }
    mValue->setObjectName("passingValue");
    mValue->setAccessibleName(tr("Value that is passed"));
    connect(mParameter, &QComboBox::activated, this, &ReferenceBar::choosePassing);
    connect(mValue, &QDoubleSpinBox::valueChanged, this, &ReferenceBar::choosePassing);
}

void ReferenceBar::prepareShift()
{
    mShift->setObjectName("shift");
    mShift->setSuffix(" s");
    mShift->setSingleStep(0.1);
    mShift->setAccessibleName(tr("Shift of the reference"));
    mShift->setToolTip(tr("Seconds by which the reference is shifted; Alt and a drag in the graph "
                          "shift it too"));
    connect(mShift, &QDoubleSpinBox::valueChanged, this,
            [this](double seconds) { mSession.reference().setShift(seconds); });
    mPick->setObjectName("pick");
    connect(mPick, &QToolButton::clicked, this, &ReferenceBar::pickMoment);
}

QWidget* ReferenceBar::createControls()
{
    constexpr double Longest = 1e12; // seconds, of a broken clock too
    constexpr int Decimals = 3;
    auto* controls = new QWidget;
    auto* layout = new QHBoxLayout(controls);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QDoubleSpinBox* box : {mValue, mShift}) {
        box->setRange(-Longest, Longest);
        box->setDecimals(Decimals);
        box->setKeyboardTracking(false);
        box->setMaximumWidth(box->fontMetrics().horizontalAdvance("-00000.000 s") + 40);
    }
    preparePassing();
    prepareShift();
    auto* label = new QLabel(tr("A&lign:"));
    label->setBuddy(mModes);
    auto* shiftLabel = new QLabel(tr("Sh&ift:"));
    shiftLabel->setBuddy(mShift);
    for (QWidget* widget : std::initializer_list<QWidget*>{label, mModes, mParameter, mValue,
                                                           shiftLabel, mShift, mPick}) {
        layout->addWidget(widget);
    }
    layout->addStretch();
    return controls;
}

void ReferenceBar::followSession()
{
    Reference& reference = mSession.reference();
    connect(&mSession, &Session::profileChanged, this, &ReferenceBar::showFlights);
    connect(&mSession, &Session::flightChanged, this, &ReferenceBar::showFlights);
    connect(&mSession, &Session::offsetChanged, this, &ReferenceBar::updateNote);
    connect(&mSession, &Session::selectionChanged, this, &ReferenceBar::updateNote);
    connect(&reference, &Reference::flightChanged, this, &ReferenceBar::showFlights);
    connect(&reference, &Reference::alignmentChanged, this, &ReferenceBar::showAlignment);
    connect(&reference, &Reference::shiftChanged, this, &ReferenceBar::showAlignment);
    connect(&reference.memoryShort(), &Switch::turned, this, &ReferenceBar::updateNote);
    connect(&mAligner, &Aligner::changed, this, &ReferenceBar::updateNote);
}

void ReferenceBar::showFlights()
{
    const auto& reference = mSession.reference().flight();
    const auto& flight = mSession.flight();
    mPicked.reset();
    setVisible(reference != nullptr);
    if (reference == nullptr) {
        return;
    }
    mFlight->setFullText(tr("Flight: %1").arg(flight != nullptr ? nameOf(*flight) : "---"));
    mReference->setFullText(tr("Reference: %1").arg(nameOf(*reference)));
    showParameters();
    showAlignment();
}

/// Proposes the take-off, where the profile has a speed.
void ReferenceBar::showParameters()
{
    constexpr double Flying = 40.0; // kt
    const Alignment& alignment = mSession.reference().alignment();
    int speed = -1;
    mParameter->clear();
    for (const auto& [device, parameter] : mSession.profile()->parameters()) {
        speed = speed < 0 && parameter->unit == "kt" ? mParameter->count() : speed;
        mParameter->addItem(parameter->title(), parameter->fullName);
    }
    const QSignalBlocker quiet(mValue);
    mValue->setValue(!alignment.parameter.isEmpty() ? alignment.value : speed < 0 ? 0.0 : Flying);
    mParameter->setCurrentIndex(alignment.parameter.isEmpty()
                                    ? std::max(speed, 0)
                                    : mParameter->findData(alignment.parameter));
}

void ReferenceBar::showAlignment()
{
    const Reference& reference = mSession.reference();
    const bool isPassing = reference.alignment().by == Alignment::Passing;
    mModes->setCurrentIndex(reference.alignment().by);
    mParameter->setVisible(isPassing);
    mValue->setVisible(isPassing);
    const QSignalBlocker quiet(mShift);
    mShift->setValue(reference.shift());
    mPick->setText(mPicked ? tr("Align Here") : tr("Pick Moment"));
    mPick->setToolTip(mPicked ? tr("Lays the reference's value at the cursor on the moment picked")
                              : tr("Takes the cursor's time as the moment of the flight"));
    updateNote();
}

void ReferenceBar::chooseMode(int mode)
{
    Alignment alignment = mSession.reference().alignment();
    alignment.by = static_cast<Alignment::By>(mode);
    mPicked.reset();
    if (alignment.by == Alignment::Passing) {
        mSession.reference().align(alignment);
        choosePassing();
    } else {
        mSession.reference().align(alignment);
    }
    showAlignment();
}

void ReferenceBar::choosePassing()
{
    mSession.reference().align(
        {Alignment::Passing, mParameter->currentData().toString(), mValue->value()});
}

/// First the moment of the flight, then that of the reference.
void ReferenceBar::pickMoment()
{
    Reference& reference = mSession.reference();
    if (mPicked) {
        const double own = *std::exchange(mPicked, std::nullopt);
        reference.setShift(reference.shift() + own - mSession.time());
    } else {
        mPicked = mSession.time();
    }
    showAlignment();
}

/// Selected parameters of which the reference has no sample.
QString ReferenceBar::missing() const
{
    constexpr int Most = 3; // names
    QStringList names;
    for (const ProfileParameter* parameter : mSession.selection().parameters(*mSession.profile())) {
        if (mSession.reference().flight()->series(*parameter, 0.0).empty()) {
            names += parameter->name;
        }
    }
    if (names.isEmpty()) {
        return {};
    }
    const QString all = names.mid(0, Most).join(", ");
    return tr("The reference holds no sample of: %1").arg(all) +
           (names.size() > Most ? tr(" and %1 more").arg(names.size() - Most) : QString());
}

bool ReferenceBar::haveCommonTime() const
{
    const Reference& reference = mSession.reference();
    if (mSession.flight() == nullptr) {
        return true; // nobody knows
    }
    const TimeRange common =
        commonRange(mSession.flight()->range(mSession.offset()),
                    reference.flight()->range(reference.offset()), reference.shift());
    return common.stop >= common.start;
}

QString ReferenceBar::note() const
{
    if (mPicked) {
        return tr("Moment of the flight: %1. Go to where the reference's curve shows the same "
                  "moment, then press Align Here.")
            .arg(clockTextWithMilliseconds(*mPicked));
    }
    if (mAligner.isRunning()) {
        return tr("The flights are being aligned.");
    }
    if (!mAligner.isPossible()) {
        return tr("One of the flights does not pass this value: the shift is the one before.");
    }
    const QString apart = tr("The flights have no time in common: align them by their start, or "
                             "shift the reference.");
    const QString tooLarge = tr("There is not enough memory to compare everything; select fewer "
                                "parameters.");
    return ((mSession.reference().memoryShort().isOn() ? tooLarge + " " : QString()) +
            (haveCommonTime() ? QString() : apart + " ") + missing())
        .trimmed();
}

void ReferenceBar::updateNote()
{
    const QString text = mSession.reference().flight() != nullptr ? note() : QString();
    mNote->setText(text);
    mNote->setVisible(!text.isEmpty());
}

} // namespace TARN
