#include "logbook/FlightTables.h"

#include "logbook/LogbookError.h"
#include "logbook/LogbookRows.h"

#include <QtCore/QCoreApplication>

namespace TARN {

namespace {

using namespace LogbookColumns;

struct TableTexts
{
    Q_DECLARE_TR_FUNCTIONS(FlightTables)
};

/// Rows that are numbered in their order.
template <typename Part>
void insertAll(SqlConnection& sql, const FlightHead& head, const char* table, const char* columns,
               const Part& parts, const auto& rowOf)
{
    QList<QVariantList> rows;
    for (const auto& part : parts) {
        rows += keyOf(head) + QVariantList{countValue(std::size_t(rows.size()))} + rowOf(part);
    }
    sql.insert(table, QString("aircraft, flight, place, ") + columns, rows);
}

void insertStatistics(SqlConnection& sql, const FlightEntry& entry)
{
    QList<QVariantList> rows;
    QList<QVariantList> thresholds;
    for (const KeptStatistics& kept : entry.statistics) {
        rows += keyOf(entry.head) + statisticsRow(kept);
        int step = 0;
        for (const Statistics::Above& above : kept.found.above) {
            thresholds +=
                keyOf(entry.head) +
                QVariantList{kept.isSteady ? 1 : 0,   kept.place,  step++,       above.value,
                             colorValue(above.color), above.state, above.seconds};
        }
    }
    sql.insert("statistics", QString("aircraft, flight, ") + StatisticsColumns, rows);
    sql.insert("thresholds", QString("aircraft, flight, ") + ThresholdColumns, thresholds);
}

QSqlQuery selectParts(SqlConnection& sql, const FlightHead& head, const char* table,
                      const char* columns, const char* order = "place")
{
    return sql.run(QString("SELECT %1 FROM %2 WHERE aircraft = ? AND flight = ? ORDER BY %3")
                       .arg(columns, table, order),
                   keyOf(head));
}

template <typename Part>
void selectAll(SqlConnection& sql, const FlightHead& head, const char* table, const char* columns,
               Part (*from)(Row&), std::vector<Part>& parts)
{
    for (QSqlQuery query = selectParts(sql, head, table, columns); query.next();) {
        Row row(query);
        parts.push_back(from(row));
    }
}

/// By place, of each the whole flight first, as they were made.
void selectStatistics(SqlConnection& sql, const FlightHead& head, FlightEntry& entry)
{
    constexpr const char* Order = "place, steady";
    std::map<std::pair<int, bool>, std::vector<Statistics::Above>> thresholds;
    for (QSqlQuery query = selectParts(sql, head, "thresholds", ThresholdColumns, "step");
         query.next();) {
        const bool isSteady = query.value(0).toInt() == 1;
        thresholds[{query.value(1).toInt(), isSteady}].push_back(
            {query.value(3).toDouble(), QColor(query.value(4).toString()), query.value(5).toInt(),
             query.value(6).toDouble()});
    }
    for (QSqlQuery query = selectParts(sql, head, "statistics", StatisticsColumns, Order);
         query.next();) {
        Row row(query);
        KeptStatistics& kept = entry.statistics.emplace_back(statisticsFrom(row));
        kept.found.above = std::move(thresholds[{kept.place, kept.isSteady}]);
    }
}

QString qualified(const char* columns, const QString& table)
{
    return table + "." + QString(columns).replace(", ", ", " + table + ".");
}

} // namespace

bool insertFlight(SqlConnection& sql, const FlightEntry& entry)
{
    sql.insert("aircraft", "aircraft, engine_type",
               {{textValue(entry.head.aircraft), textValue(entry.head.engineType)}});
    const bool isKnown =
        sql.run("SELECT 1 FROM flights WHERE aircraft = ? AND flight = ?", keyOf(entry.head))
            .next();
    if (isKnown) {
        return false;
    }
    const QVariantList values = headRow(entry.head) + headerRow(entry);
    const QSqlQuery inserted =
        sql.run(QString("INSERT INTO flights (%1, %2) VALUES (?%3) ON CONFLICT DO NOTHING")
                    .arg(HeadColumns, HeaderColumns, QString(", ?").repeated(values.size() - 1)),
                values);
    return inserted.numRowsAffected() == 1; // 0 where another has added it just now
}

void insertParts(SqlConnection& sql, const FlightEntry& entry)
{
    const FlightHead& head = entry.head;
    insertAll(sql, head, "recordings", RecordingColumns, entry.recordings, recordingRow);
    insertAll(sql, head, "remarks", "remark", entry.remarks,
              [](const QString& remark) { return QVariantList{remark}; });
    insertStatistics(sql, entry);
    insertAll(sql, head, "episodes", EpisodeColumns, entry.episodes, episodeRow);
    insertAll(sql, head, "lamps", LampColumns, entry.lamps, lampRow);
    insertAll(sql, head, "faults", FaultColumns, entry.faults, faultRow);
}

std::vector<FlightHead> selectFlights(SqlConnection& sql, const std::optional<QString>& aircraft)
{
    const QString all = "SELECT " + qualified(HeadColumns, "flights") +
                        ", aircraft.engine_type FROM flights JOIN aircraft ON "
                        "aircraft.aircraft = flights.aircraft";
    QSqlQuery query = aircraft
                          ? sql.run(all + " WHERE flights.aircraft = ?", {textValue(*aircraft)})
                          : sql.run(all);
    std::vector<FlightHead> heads;
    while (query.next()) {
        Row row(query);
        heads.push_back(headFrom(row));
    }
    return heads;
}

FlightEntry selectEntry(SqlConnection& sql, const FlightHead& head)
{
    FlightEntry entry;
    entry.head = head;
    QSqlQuery query = selectParts(sql, head, "flights", HeaderColumns, "flight");
    if (!query.next()) {
        throw LogbookError(TableTexts::tr("the logbook has no flight \"%1\"").arg(head.flight));
    }
    Row row(query);
    headerFrom(row, entry);
    selectAll(sql, head, "recordings", RecordingColumns, recordingFrom, entry.recordings);
    for (QSqlQuery remarks = selectParts(sql, head, "remarks", "remark"); remarks.next();) {
        entry.remarks += remarks.value(0).toString();
    }
    selectStatistics(sql, head, entry);
    selectAll(sql, head, "episodes", EpisodeColumns, episodeFrom, entry.episodes);
    selectAll(sql, head, "lamps", LampColumns, lampFrom, entry.lamps);
    selectAll(sql, head, "faults", FaultColumns, faultFrom, entry.faults);
    return entry;
}

} // namespace TARN
