#include "logbook/Logbook.h"

#include "logbook/FlightTables.h"
#include "logbook/LogbookError.h"
#include "logbook/LogbookSchema.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cmath>
#include <limits>
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
            std::vector<TrendPoint> found = points(aircraft, device, name, figure);
            markTrend(found, marks(aircraft));
            return found;
        }
    }
    return {};
}

/// Of parameters of the same name the first counts. What has no samples has no figure.
std::vector<TrendPoint> Logbook::points(const QString& aircraft, const QString& device,
                                        const QString& parameter, Figure figure)
{
    QSqlQuery query =
        mSql.run("SELECT f.flight, f.start_utc, s.samples, " + columnOf(figure) +
                     " FROM flights f LEFT JOIN statistics s ON s.aircraft = f.aircraft AND "
                     "s.flight = f.flight AND s.device = ? AND s.parameter = ? AND s.steady = ? "
                     "WHERE f.aircraft = ? ORDER BY s.place",
                 {device, parameter, figure == Figure::SteadyMean ? 1 : 0, aircraft});
    std::vector<TrendPoint> found;
    std::set<QString> seen;
    while (query.next()) {
        TrendPoint point;
        point.flight = query.value(0).toString();
        if (!query.value(1).isNull()) {
            point.start = query.value(1).toLongLong();
        }
        const double value = query.value(3).toDouble();
        if (query.value(2).toLongLong() > 0 && !query.value(3).isNull() && std::isfinite(value)) {
            point.value = value;
        }
        if (seen.insert(point.flight).second) {
            found.push_back(point);
        }
    }
    std::ranges::sort(found, {}, [](const TrendPoint& point) {
        return std::tuple(orderOf(point.start), point.flight);
    });
    return found;
}

} // namespace TARN
