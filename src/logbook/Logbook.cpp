#include "logbook/Logbook.h"

#include "logbook/FlightTables.h"
#include "logbook/LogbookError.h"
#include "logbook/LogbookSchema.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QHash>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <tuple>

namespace TARN {

namespace {

struct LogbookTexts
{
    Q_DECLARE_TR_FUNCTIONS(Logbook)
};

qint64 orderOf(const std::optional<qint64>& start)
{
    return start.value_or(std::numeric_limits<qint64>::min());
}

/// Of "Device/Name" the ways to split it: names may hold slashes.
std::vector<std::pair<QString, QString>> splitsOf(const QString& fullName)
{
    std::vector<std::pair<QString, QString>> splits;
    for (qsizetype at = fullName.indexOf('/'); at >= 0; at = fullName.indexOf('/', at + 1)) {
        splits.emplace_back(fullName.left(at), fullName.mid(at + 1));
    }
    return splits;
}

QString columnOf(Figure figure)
{
    switch (figure) {
    case Figure::SteadyMean:
        return "s.time_mean";
    case Figure::Maximum:
        return "s.max_value";
    case Figure::WarningSeconds:
        return "s.warning_seconds";
    case Figure::Episodes:
        break;
    }
    return "(SELECT count(*) FROM episodes e WHERE e.aircraft = s.aircraft AND "
           "e.flight = s.flight AND e.device = s.device AND e.parameter = s.parameter)";
}

/// Of all flights, in the order of time, without values yet.
std::vector<TrendPoint> pointsOf(const std::vector<FlightHead>& flights)
{
    std::vector<TrendPoint> points;
    std::ranges::transform(flights, std::back_inserter(points), [](const FlightHead& head) {
        return TrendPoint{head.flight, head.start, {}, {}, {}, false};
    });
    return points;
}

/// Puts the figures of one parameter into its trend.
struct TrendBuilder
{
    std::size_t trend;          ///< its place
    std::set<std::size_t> seen; ///< flights
    std::size_t latest;         ///< flight that its unit is of

    void take(ParameterTrend& to, std::size_t flight, const QSqlQuery& query)
    {
        if (!seen.insert(flight).second) {
            return;
        }
        if (flight >= latest) {
            latest = flight;
            to.unit = query.value(2).toString();
        }
        const double value = query.value(5).toDouble();
        if (query.value(4).toLongLong() > 0 && !query.value(5).isNull() && std::isfinite(value)) {
            to.points[flight].value = value;
        }
    }
};

} // namespace

const QStringList& figureNames()
{
    static const QStringList Names = {"steady", "max", "warning", "episodes"};
    return Names;
}

Logbook::Logbook(const QString& url, SqlConnection::Missing missing)
    : mSql(logbookPlace(url), missing)
{
    migrateLogbook(mSql, missing);
}

bool Logbook::knows(const QString& aircraft, const QString& flight)
{
    bool isKnown = false;
    mSql.transaction(SqlConnection::Read, [&] {
        isKnown =
            mSql.run("SELECT 1 FROM flights WHERE aircraft = ? AND flight = ?", {aircraft, flight})
                .next();
    });
    return isKnown;
}

bool Logbook::add(const FlightEntry& entry)
{
    bool isNew = false;
    mSql.transaction(SqlConnection::Write, [&] {
        isNew = insertFlight(mSql, entry);
        if (isNew) {
            insertParts(mSql, entry);
        }
    });
    return isNew;
}

void Logbook::remove(const FlightHead& head)
{
    mSql.transaction(SqlConnection::Write, [&] {
        mSql.run("DELETE FROM flights WHERE aircraft = ? AND flight = ?",
                 {head.aircraft, head.flight});
    });
}

QStringList Logbook::aircraft()
{
    QStringList all;
    for (QSqlQuery query = mSql.run("SELECT aircraft FROM aircraft"); query.next();) {
        all += query.value(0).toString();
    }
    std::ranges::sort(all);
    return all;
}

std::vector<FlightHead> Logbook::flights(const std::optional<QString>& aircraft)
{
    std::vector<FlightHead> all;
    mSql.transaction(SqlConnection::Read, [&] { all = selectFlights(mSql, aircraft); });
    // Here, because databases sort texts and what is missing each in its own way.
    std::ranges::sort(all, {}, [](const FlightHead& head) {
        return std::tuple(head.aircraft, orderOf(head.start), head.flight);
    });
    return all;
}

FlightHead Logbook::find(const QString& beginning)
{
    const QString wanted = beginning.toLower();
    std::vector<FlightHead> all = flights();
    std::erase_if(all, [&](const FlightHead& head) { return !head.flight.startsWith(wanted); });
    if (wanted.isEmpty() || all.empty()) {
        throw LogbookError(LogbookTexts::tr("the logbook has no flight \"%1\"").arg(beginning));
    }
    if (all.size() > 1) {
        throw LogbookError(
            LogbookTexts::tr("the keys of several flights begin with \"%1\"").arg(beginning));
    }
    return all.front();
}

FlightEntry Logbook::entry(const FlightHead& head)
{
    FlightEntry entry;
    mSql.transaction(SqlConnection::Read, [&] { entry = selectEntry(mSql, head); });
    return entry;
}

void Logbook::addMark(const MaintenanceMark& mark)
{
    if (!aircraft().contains(mark.aircraft)) {
        throw LogbookError(
            LogbookTexts::tr("the logbook has no flight of the engine \"%1\"").arg(mark.aircraft));
    }
    mSql.transaction(SqlConnection::Write, [&] {
        mSql.insert("maintenance", "aircraft, date_utc, note",
                    {{mark.aircraft, mark.date, mark.note}});
    });
}

std::vector<MaintenanceMark> Logbook::marks(const QString& aircraft)
{
    std::vector<MaintenanceMark> all;
    for (QSqlQuery query =
             mSql.run("SELECT date_utc, note FROM maintenance WHERE aircraft = ?", {aircraft});
         query.next();) {
        all.push_back({aircraft, query.value(0).toLongLong(), query.value(1).toString()});
    }
    std::ranges::sort(all, {},
                      [](const MaintenanceMark& mark) { return std::tuple(mark.date, mark.note); });
    return all;
}

std::vector<TrendPoint> Logbook::trend(const QString& aircraft, const QString& parameter,
                                       Figure figure)
{
    for (const auto& [device, name] : splitsOf(parameter)) {
        const bool isKnown = mSql.run("SELECT 1 FROM statistics WHERE aircraft = ? AND device = ? "
                                      "AND parameter = ? LIMIT 1",
                                      {aircraft, device, name})
                                 .next();
        if (isKnown) {
            const auto all =
                found(aircraft, figure, " AND s.device = ? AND s.parameter = ?", {device, name});
            return all.empty() ? pointsOf(flights(aircraft)) : all.front().points;
        }
    }
    return {};
}

std::vector<ParameterTrend> Logbook::trends(const QString& aircraft, Figure figure)
{
    std::vector<ParameterTrend> all = found(aircraft, figure);
    std::erase_if(all, [](const ParameterTrend& trend) {
        return std::ranges::none_of(
            trend.points, [](const TrendPoint& point) { return point.value.has_value(); });
    });
    return all;
}

/// Of parameters of the same name the first of a profile counts. What has no samples has no figure.
std::vector<ParameterTrend> Logbook::found(const QString& aircraft, Figure figure,
                                           const QString& condition, const QVariantList& values)
{
    const std::vector<TrendPoint> empty = pointsOf(flights(aircraft));
    QHash<QString, std::size_t> places;
    for (std::size_t k = 0; k < empty.size(); ++k) {
        places.insert(empty[k].flight, k);
    }
    QSqlQuery query =
        mSql.run("SELECT s.device, s.parameter, s.unit, s.flight, s.samples, " + columnOf(figure) +
                     " FROM statistics s WHERE s.aircraft = ? AND s.steady = ?" + condition +
                     " ORDER BY s.place, s.flight",
                 QVariantList{aircraft, figure == Figure::SteadyMean ? 1 : 0} + values);
    std::vector<ParameterTrend> all;
    std::map<std::pair<QString, QString>, TrendBuilder> known;
    while (query.next()) {
        const std::pair name(query.value(0).toString(), query.value(1).toString());
        const auto place = places.constFind(query.value(3).toString());
        if (place == places.cend()) {
            continue; // added meanwhile
        }
        auto at = known.find(name);
        if (at == known.end()) {
            at = known.emplace(name, TrendBuilder{all.size(), {}, 0}).first;
            all.push_back({name.first, name.second, {}, empty});
        }
        at->second.take(all[at->second.trend], *place, query);
    }
    const std::vector<MaintenanceMark> notes = marks(aircraft);
    std::ranges::for_each(all, [&](ParameterTrend& trend) { markTrend(trend.points, notes); });
    return all;
}

} // namespace TARN
