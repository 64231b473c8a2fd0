#include "track/DialogDataTrack.h"

#include "base/CountText.h"
#include "base/Property.h"
#include "flight/EmptyText.h"
#include "track/WidgetTrack.h"
#include "widgets/LateIcon.h"

#include <QtCore/QEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace TARN {

namespace {

// What the path is coloured by; names of parameters follow.
constexpr const char* ByNothing = "";
constexpr const char* ByStates = "*";
constexpr double ZoomStep = 1.5;

QToolButton* button(const QString& name, const char* icon)
{
    auto* made = new QToolButton;
    made->setIcon(LateIcon::of(icon));
    made->setToolTip(name);
    made->setAccessibleName(name);
    made->setAutoRaise(true);
    return made;
}

} // namespace

DialogDataTrack::DialogDataTrack(Session& session, EpisodeWatch& episodes, QWidget* parent)
    : QWidget(parent), mSession(session), mEpisodes(episodes), mTrack(new WidgetTrack),
      mColors(new QComboBox), mAxis(new QComboBox)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(2, 2, 2, 0);
    createControls(*row);
    layout->addLayout(row);
    layout->addWidget(mTrack, 1);
    setFocusProxy(mTrack);
    listParameters();
    listen();
    showScene();
}

void DialogDataTrack::createControls(QHBoxLayout& row)
{
    const std::pair<QToolButton*, std::function<void()>> buttons[] = {
        {button(tr("Show all (Home)"), "showAll"), [this] { mTrack->fit(); }},
        {button(tr("Zoom in (+)"), "zoomin"), [this] { mTrack->zoom(1.0 / ZoomStep); }},
        {button(tr("Zoom out (-)"), "zoomout"), [this] { mTrack->zoom(ZoomStep); }}};
    for (const auto& [made, run] : buttons) {
        row.addWidget(made);
        connect(made, &QToolButton::clicked, this, run);
    }
    const auto addBox = [&](QComboBox* box, const char* name, const QString& label) {
        auto* words = new QLabel(label);
        words->setBuddy(box);
        box->setObjectName(name);
        box->setAccessibleName(QString(label).remove('&').remove(':'));
        box->view()->setAccessibleName(box->accessibleName());
        box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        row.addSpacing(12);
        row.addWidget(words);
        row.addWidget(box);
    };
    addBox(mColors, "trackColors", tr("C&olored by:"));
    addBox(mAxis, "trackAxis", tr("Hei&ght over:"));
    mAxis->addItem(tr("Time"), HeightProfile::Time);
    mAxis->addItem(tr("Distance"), HeightProfile::Distance);
    row.addStretch();
    connect(mColors, &QComboBox::activated, this, &DialogDataTrack::applyColoring);
    connect(mAxis, &QComboBox::activated, this, [this] {
        mTrack->setAxis(static_cast<HeightProfile::Axis>(mAxis->currentData().toInt()));
    });
}

void DialogDataTrack::listen()
{
    connect(&mSession, &Session::profileChanged, this, &DialogDataTrack::listParameters);
    connect(&mSession, &Session::profileChanged, this, &DialogDataTrack::reload);
    connect(&mSession, &Session::flightChanged, this, &DialogDataTrack::reload);
    connect(&mSession, &Session::offsetChanged, this, &DialogDataTrack::reload);
    connect(&mSession, &Session::selectionChanged, this, [this] {
        listParameters();
        applyColoring();
    });
    connect(&mSession, &Session::marksChanged, this,
            [this] { mLoader.setRange(mSession.marks()); });
    connect(&mSession, &Session::timeChanged, this, [this](double time, const QObject* source) {
        if (source != this) {
            mTrack->setTime(time);
        }
    });
    connect(&mSession.switches().loading, &Switch::turned, this, &DialogDataTrack::showScene);
    connect(&mEpisodes, &EpisodeWatch::changed, this, [this] {
        if (!mIsStale) {
            mLoader.setTroubles(mEpisodes.troubles());
        }
    });
    connect(&mLoader, &TrackLoader::changed, this, &DialogDataTrack::showScene);
    connect(mTrack, &WidgetTrack::picked, this,
            [this](double time) { mSession.setTime(time, this); });
    connect(mTrack, &WidgetTrack::signalLink, this, &DialogDataTrack::signalLink);
}

void DialogDataTrack::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    applyTheme();
    if (mIsStale) {
        begin();
    }
}

void DialogDataTrack::reload()
{
    mIsStale = true;
    mLoader.load(nullptr, 0.0);
    if (isVisible()) {
        begin();
    }
}

void DialogDataTrack::begin()
{
    mIsStale = false;
    mLoader.load(namesPosition(*mSession.profile()) ? mSession.flight() : nullptr,
                 mSession.offset());
    mLoader.setRange(mSession.marks());
    mLoader.setTroubles(mEpisodes.troubles());
    applyColoring();
    mTrack->setTime(mSession.time());
}

/// Of the selected ones those that are numbers; what is chosen stays, if it is there.
void DialogDataTrack::listParameters()
{
    const QString chosen = mColors->currentData().toString();
    mColors->clear();
    mColors->addItem(tr("Nothing"), ByNothing);
    mColors->addItem(tr("State of all parameters"), ByStates);
    for (const ProfileParameter* parameter : mSession.selection().parameters(*mSession.profile())) {
        const Decoder decoder(mSession.profile()->data(), *parameter);
        if (decoder.isNumeric() && parameter->enumId == 0) {
            mColors->addItem(parameter->title(), parameter->fullName);
        }
    }
    mColors->setCurrentIndex(std::max(0, mColors->findData(chosen)));
}

void DialogDataTrack::applyColoring()
{
    if (mIsStale) {
        return;
    }
    const QString chosen = mColors->currentData().toString();
    TrackLoader::Coloring coloring;
    if (chosen == ByStates) {
        coloring.kind = TrackLoader::Coloring::States;
    }
    for (const auto& [device, parameter] : mSession.profile()->parameters()) {
        if (chosen != ByNothing && parameter->fullName == chosen) {
            coloring = {TrackLoader::Coloring::Values, parameter};
        }
    }
    mLoader.setColoring(coloring);
}

void DialogDataTrack::showScene()
{
    mTrack->setEmptyText(emptyText());
    mTrack->setScene(mLoader.scene());
}

QString DialogDataTrack::emptyText() const
{
    const QString general = emptyTextOfAll(mSession);
    if (!general.isEmpty()) {
        return general;
    }
    if (mIsStale) {
        return {}; // nobody looks
    }
    if (mLoader.isShort()) {
        return tr("There is not enough memory for the path.");
    }
    if (mLoader.isBusy()) {
        return tr("The path is being found.");
    }
    const std::size_t nowhere = mSession.flight()->positionQuality().nowhere;
    return nowhere > 0 ? tr("All positions of the recording are 0/0, %1 of them: the receiver "
                            "did not know where it was.")
                             .arg(countText(static_cast<qint64>(nowhere)))
                       : tr("The recording holds no position: no latitude with a longitude.");
}

/// As the graph is: dark, light or as the desktop.
void DialogDataTrack::applyTheme()
{
    enum Theme
    {
        Dark,
        Light,
        Desktop
    };
    const int theme = Property::instance()->getInt("GraphTheme", Dark);
    const bool isLightDesktop = palette().color(QPalette::Window).lightness() >= 128;
    mTrack->setLight(theme == Light || (theme == Desktop && isLightDesktop));
}

void DialogDataTrack::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        applyTheme();
    }
}

} // namespace TARN
