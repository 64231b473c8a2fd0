#include "events/FlightBar.h"

#include "base/ClockTime.h"
#include "base/CountText.h"

namespace TARN {

namespace {

/// A chip that says how often; \p color of its ground.
QString chip(FlightBar::Kind kind, double time, const char* color, const QString& text)
{
    return QString("<a href=\"%1:%2\" style=\"text-decoration:none;color:black;"
                   "background-color:%3\">&nbsp;%4&nbsp;</a>")
        .arg(int(kind))
        .arg(time, 0, 'f', 6)
        .arg(color, text.toHtmlEscaped());
}

} // namespace

FlightBar::FlightBar(const Session& session, const EpisodeWatch& episodes)
    : mSession(session), mEpisodes(episodes)
{
    setObjectName("flightBar");
    setTextFormat(Qt::RichText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setMinimumHeight(fontMetrics().height() + 6);
    setAccessibleName(tr("What happened"));
    connect(&session, &Session::profileChanged, this, &FlightBar::count);
    connect(&session, &Session::flightChanged, this, &FlightBar::count);
    connect(&episodes, &EpisodeWatch::changed, this, &FlightBar::count);
    connect(this, &QLabel::linkActivated, this, &FlightBar::follow);
}

void FlightBar::count()
{
    const bool isCounted = mSession.flight() != nullptr && mEpisodes.episodes() != nullptr;
    mSummary = isCounted ? summaryOf(*mSession.flight(), mSession.offset(), *mEpisodes.episodes())
                         : FlightSummary();
    setText(isCounted && !mSession.flight()->samples().empty() ? text() : QString());
    setToolTip(tr("Click a part to go to the first of its kind"));
    Q_EMIT counted();
}

void FlightBar::follow(const QString& link)
{
    Q_EMIT wanted(static_cast<Kind>(link.section(':', 0, 0).toInt()),
                  link.section(':', 1).toDouble());
}

QString FlightBar::text() const
{
    const FlightSummary& found = mSummary;
    const auto number = [](std::size_t count) { return countText(static_cast<qint64>(count)); };
    QStringList parts = {tr("Duration %1").arg(clockText(found.duration))};
    if (!mSession.profile()->isLoaded()) {
        parts += tr("no profile, so nothing was checked");
    }
    const auto add = [&](const FlightSummary::Count& count, Kind kind, const char* color,
                         const QString& words) {
        if (count.times > 0) {
            parts += chip(kind, count.first, color, words.arg(number(count.times)));
        }
    };
    add(found.limits, Exceedances, "#ff9a9a", tr("%1 at the limit"));
    add(found.warnings, Exceedances, "#ffe28a", tr("%1 in warning"));
    add(found.lamps, Lamps, "#ffc896", tr("Lamps: %1"));
    add(found.faults, Faults, "#ff9696", tr("Faults and warnings: %1"));
    if (found.limits.times + found.warnings.times == 0 && found.watched.parameters > 0) {
        parts += tr("nothing out of range in %1 samples of %2 watched parameters")
                     .arg(number(found.watched.samples), number(found.watched.parameters));
    } else if (found.watched.parameters == 0 && mSession.profile()->isLoaded()) {
        parts += tr("no parameter was watched for limits");
    }
    if (found.remarks > 0) {
        parts += chip(Remarks, 0.0, "#d0d0d0", tr("Remarks: %1").arg(number(found.remarks)));
    }
    return parts.join("&nbsp;&nbsp; ");
}

} // namespace TARN
