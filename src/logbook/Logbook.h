#pragma once

#include "logbook/FlightEntry.h"
#include "logbook/LogbookTrend.h"
#include "logbook/SqlConnection.h"

namespace TARN {

/// What a trend shows of a parameter.
enum class Figure
{
    SteadyMean, ///< time mean over the steady stretch
    Maximum,
    WarningSeconds, ///< see secondsInWarning
    Episodes        ///< number of times out of range
};

/// The figures' names by which a user chooses, in their order: "steady max warning episodes".
const QStringList& figureNames();

/// A figure of a parameter over the flights of an aircraft.
struct ParameterTrend
{
    QString device;
    QString parameter;
    QString unit;                   ///< in the latest flight that knows it
    std::vector<TrendPoint> points; ///< of all flights by start, those without one first

    QString fullName() const { return device + "/" + parameter; }
};

/// The flights that are kept of engines, in one database. Belongs to the thread that made it; any
/// number of them, of any number of processes, may write to the same database at once. All throw
/// LogbookError.
class Logbook
{
public:
    /// Opens it and brings it to this program's version. For the URL see logbookPlace.
    Logbook(const QString& url, SqlConnection::Missing missing);

    const LogbookPlace& place() const { return mSql.place(); }

    /// Told why when the connection to a server was lost and is tried anew.
    void setLostListener(std::function<void(const QString&)> listener)
    {
        mSql.setLostListener(std::move(listener));
    }

    bool knows(const QString& aircraft, const QString& flight);
    /// Keeps all of it or nothing. False where it was known; it stays as it was.
    bool add(const FlightEntry& entry);
    /// With all that is kept of it.
    void remove(const FlightHead& head);

    /// Serial numbers of engines, sorted.
    QStringList aircraft();
    /// All flights, or those of an aircraft; by aircraft, then start, those without one first.
    std::vector<FlightHead> flights(const std::optional<QString>& aircraft = {});
    /// The one whose key begins so. Fails for none and for several.
    FlightHead find(const QString& beginning);
    FlightEntry entry(const FlightHead& head);

    /// Does nothing for one that is there. Fails for an aircraft that is not.
    void addMark(const MaintenanceMark& mark);
    /// By date.
    std::vector<MaintenanceMark> marks(const QString& aircraft);

    /// The flights of an aircraft with a figure of a parameter ("Device/Name"), by start, those
    /// without one first, and marked. Empty where no flight knows the parameter.
    std::vector<TrendPoint> trend(const QString& aircraft, const QString& parameter, Figure figure);

    /// The same of all parameters that have the figure in any of its flights, in the order of their
    /// profiles.
    std::vector<ParameterTrend> trends(const QString& aircraft, Figure figure);

private:
    /// Of those of which \p condition holds, all for an empty one.
    std::vector<ParameterTrend> found(const QString& aircraft, Figure figure,
                                      const QString& condition = {},
                                      const QVariantList& values = {});

    SqlConnection mSql;
};

} // namespace TARN
