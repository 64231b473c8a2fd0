#pragma once

#include "flight/EpisodeWatch.h"
#include "flight/FlightSummary.h"

#include <QtWidgets/QLabel>

namespace TARN {

/// One line that answers what happened: how long the flight was and what was exceeded, the worst
/// first, each a link to the first of its kind.
class FlightBar : public QLabel
{
    Q_OBJECT

public:
    /// Both live as long.
    FlightBar(const Session& session, const EpisodeWatch& episodes);

    /// What is counted now; of no flight while it is being looked for.
    const FlightSummary& summary() const { return mSummary; }

Q_SIGNALS:
    /// The counts are others.
    void counted();
    /// The user wants to see the first of a kind; \p time as it is in its view, seconds.
    void wanted(TARN::FlightSummary::Part::Kind kind, double time);

private:
    void count();
    void follow(const QString& link);
    QString text() const;

    const Session& mSession;
    const EpisodeWatch& mEpisodes;
    FlightSummary mSummary;
};

} // namespace TARN
