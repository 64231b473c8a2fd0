#include "events/FlightBar.h"

namespace TARN {

namespace {

using Part = FlightSummary::Part;

/// A chip that leads somewhere, or words.
QString markupOf(const Part& part)
{
    if (part.kind == Part::Words) {
        return part.text.toHtmlEscaped();
    }
    return QString("<a href=\"%1:%2\" style=\"text-decoration:none;color:black;"
                   "background-color:%3\">&nbsp;%4&nbsp;</a>")
        .arg(int(part.kind))
        .arg(part.time, 0, 'f', 6)
        .arg(part.color.name(), part.text.toHtmlEscaped());
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
    const bool isCounted = mSession.flight() != nullptr && mEpisodes.troubles() != nullptr;
    mSummary = isCounted ? summaryOf(*mSession.flight(), mSession.offset(), *mEpisodes.troubles())
                         : FlightSummary();
    setText(isCounted && !mSession.flight()->samples().empty() ? text() : QString());
    setToolTip(tr("Click a part to go to the first of its kind"));
    Q_EMIT counted();
}

void FlightBar::follow(const QString& link)
{
    Q_EMIT wanted(static_cast<Part::Kind>(link.section(':', 0, 0).toInt()),
                  link.section(':', 1).toDouble());
}

QString FlightBar::text() const
{
    QStringList parts;
    for (const Part& part : mSummary.parts()) {
        parts += markupOf(part);
    }
    return parts.join("&nbsp;&nbsp; ");
}

} // namespace TARN
