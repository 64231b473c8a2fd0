#include "logbook/LogbookSchema.h"

#include "logbook/LogbookError.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <array>
#include <chrono>
#include <span>
#include <thread>

namespace TARN {

namespace {

struct SchemaTexts
{
    Q_DECLARE_TR_FUNCTIONS(LogbookSchema)
};

// The steps from one version to the next; a step that was released never changes. Every key begins
// with the aircraft, so that a cluster can distribute each table by it.
constexpr const char* First[] = {
    "CREATE TABLE aircraft (aircraft TEXT PRIMARY KEY, engine_type TEXT NOT NULL)",

    "CREATE TABLE flights (aircraft TEXT NOT NULL REFERENCES aircraft (aircraft), "
    "flight TEXT NOT NULL, start_utc BIGINT, start_source TEXT NOT NULL, "
    "header_date TEXT NOT NULL, start_time DOUBLE PRECISION NOT NULL, "
    "stop_time DOUBLE PRECISION NOT NULL, time_offset DOUBLE PRECISION NOT NULL, "
    "steady_start DOUBLE PRECISION, steady_stop DOUBLE PRECISION, samples BIGINT NOT NULL, "
    "bus_type BIGINT NOT NULL, ecu_serial BIGINT NOT NULL, ecu_type TEXT NOT NULL, "
    "software_a TEXT NOT NULL, software_b TEXT NOT NULL, emu_version TEXT NOT NULL, "
    "profile TEXT NOT NULL, limits BIGINT NOT NULL, warnings BIGINT NOT NULL, "
    "lamps BIGINT NOT NULL, faults BIGINT NOT NULL, remarks BIGINT NOT NULL, "
    "worst INTEGER NOT NULL, PRIMARY KEY (aircraft, flight))",
    "CREATE INDEX flights_by_start ON flights (aircraft, start_utc)",

    "CREATE TABLE recordings (aircraft TEXT NOT NULL, flight TEXT NOT NULL, "
    "place INTEGER NOT NULL, path TEXT NOT NULL, samples BIGINT NOT NULL, "
    "missing_header_bytes BIGINT NOT NULL, ignored_bytes BIGINT NOT NULL, "
    "other_channels BIGINT NOT NULL, impossible_times BIGINT NOT NULL, gaps BIGINT NOT NULL, "
    "longest_gap DOUBLE PRECISION NOT NULL, PRIMARY KEY (aircraft, flight, place), "
    "FOREIGN KEY (aircraft, flight) REFERENCES flights (aircraft, flight) ON DELETE CASCADE)",

    "CREATE TABLE remarks (aircraft TEXT NOT NULL, flight TEXT NOT NULL, "
    "place INTEGER NOT NULL, remark TEXT NOT NULL, PRIMARY KEY (aircraft, flight, place), "
    "FOREIGN KEY (aircraft, flight) REFERENCES flights (aircraft, flight) ON DELETE CASCADE)",

    "CREATE TABLE statistics (aircraft TEXT NOT NULL, flight TEXT NOT NULL, "
    "steady INTEGER NOT NULL, place INTEGER NOT NULL, device TEXT NOT NULL, "
    "parameter TEXT NOT NULL, unit TEXT NOT NULL, channel BIGINT NOT NULL, "
    "can_id BIGINT NOT NULL, samples BIGINT NOT NULL, invalid BIGINT NOT NULL, "
    "first_value DOUBLE PRECISION, last_value DOUBLE PRECISION, "
    "min_value DOUBLE PRECISION, min_time DOUBLE PRECISION, "
    "max_value DOUBLE PRECISION, max_time DOUBLE PRECISION, mean DOUBLE PRECISION, "
    "stddev DOUBLE PRECISION, time_mean DOUBLE PRECISION, integral DOUBLE PRECISION, "
    "gaps BIGINT NOT NULL, gap_seconds DOUBLE PRECISION NOT NULL, "
    "gap_limit DOUBLE PRECISION, warning_seconds DOUBLE PRECISION, "
    "PRIMARY KEY (aircraft, flight, steady, place), "
    "FOREIGN KEY (aircraft, flight) REFERENCES flights (aircraft, flight) ON DELETE CASCADE)",
    "CREATE INDEX statistics_by_parameter ON statistics "
    "(aircraft, device, parameter, steady)",

    "CREATE TABLE thresholds (aircraft TEXT NOT NULL, flight TEXT NOT NULL, "
    "steady INTEGER NOT NULL, place INTEGER NOT NULL, step INTEGER NOT NULL, "
    "value DOUBLE PRECISION, color TEXT, state INTEGER NOT NULL, "
    "seconds DOUBLE PRECISION NOT NULL, PRIMARY KEY (aircraft, flight, steady, place, step), "
    "FOREIGN KEY (aircraft, flight) REFERENCES flights (aircraft, flight) ON DELETE CASCADE)",

    "CREATE TABLE episodes (aircraft TEXT NOT NULL, flight TEXT NOT NULL, "
    "place INTEGER NOT NULL, device TEXT NOT NULL, parameter TEXT NOT NULL, "
    "state INTEGER NOT NULL, start_time DOUBLE PRECISION NOT NULL, "
    "end_time DOUBLE PRECISION NOT NULL, samples BIGINT NOT NULL, announced INTEGER NOT NULL, "
    "peak DOUBLE PRECISION, peak_time DOUBLE PRECISION, threshold DOUBLE PRECISION, "
    "color TEXT, PRIMARY KEY (aircraft, flight, place), "
    "FOREIGN KEY (aircraft, flight) REFERENCES flights (aircraft, flight) ON DELETE CASCADE)",

    "CREATE TABLE lamps (aircraft TEXT NOT NULL, flight TEXT NOT NULL, "
    "place INTEGER NOT NULL, name TEXT NOT NULL, state INTEGER NOT NULL, "
    "start_time DOUBLE PRECISION NOT NULL, end_time DOUBLE PRECISION NOT NULL, "
    "samples BIGINT NOT NULL, announced INTEGER NOT NULL, "
    "PRIMARY KEY (aircraft, flight, place), "
    "FOREIGN KEY (aircraft, flight) REFERENCES flights (aircraft, flight) ON DELETE CASCADE)",

    "CREATE TABLE faults (aircraft TEXT NOT NULL, flight TEXT NOT NULL, "
    "place INTEGER NOT NULL, name TEXT NOT NULL, state INTEGER NOT NULL, "
    "start_time DOUBLE PRECISION NOT NULL, end_time DOUBLE PRECISION NOT NULL, "
    "PRIMARY KEY (aircraft, flight, place), "
    "FOREIGN KEY (aircraft, flight) REFERENCES flights (aircraft, flight) ON DELETE CASCADE)",

    "CREATE TABLE maintenance (aircraft TEXT NOT NULL REFERENCES aircraft (aircraft), "
    "date_utc BIGINT NOT NULL, note TEXT NOT NULL, "
    "PRIMARY KEY (aircraft, date_utc, note))"};

constexpr std::array<std::span<const char* const>, 1> Steps = {First};

/// 0 where there are no tables yet.
int versionOf(SqlConnection& connection)
{
    const QStringList tables = connection.tables();
    if (!tables.contains("logbook_version")) {
        if (connection.place().isFile() && !tables.isEmpty()) {
            throw LogbookError(SchemaTexts::tr("\"%1\" is no logbook: another program's tables are "
                                               "in it")
                                   .arg(connection.place().file));
        }
        return 0;
    }
    QSqlQuery query = connection.run("SELECT max(version) FROM logbook_version");
    return query.next() ? query.value(0).toInt() : 0;
}

void check(SqlConnection& connection, int version)
{
    if (version > logbookVersion()) {
        throw LogbookError(SchemaTexts::tr("the logbook %1 is of version %2, this program knows "
                                           "versions up to %3; a newer program is needed")
                               .arg(connection.place().text())
                               .arg(version)
                               .arg(logbookVersion()));
    }
}

/// From a version to the next. The number comes first: where another does the same, one of the two
/// waits here for the other and then fails.
void stepFrom(SqlConnection& connection, int version)
{
    if (version == 0) {
        connection.run("CREATE TABLE logbook_version (version INTEGER PRIMARY KEY)");
    }
    connection.run("INSERT INTO logbook_version (version) VALUES (?)", {version + 1});
    for (const char* statement : Steps[static_cast<std::size_t>(version)]) {
        connection.run(statement);
    }
}

void tryToMigrate(SqlConnection& connection)
{
    int version = versionOf(connection);
    check(connection, version);
    while (version < logbookVersion()) {
        connection.transaction(SqlConnection::Write, [&] {
            version = versionOf(connection); // another may have been faster
            check(connection, version);
            if (version < logbookVersion()) {
                stepFrom(connection, version);
            }
        });
        ++version;
    }
}

/// Who reads need not wait for who writes. Where it can't be had all works without.
void letReadersIn(SqlConnection& connection)
{
    try {
        connection.run("PRAGMA journal_mode = WAL");
    } catch (const LogbookError&) { // another does it now
    }
}

} // namespace

int logbookVersion()
{
    return static_cast<int>(Steps.size());
}

void migrateLogbook(SqlConnection& connection, SqlConnection::Missing missing)
{
    using namespace std::chrono_literals;
    constexpr int Tries = 10;
    const bool isNew = versionOf(connection) == 0;
    if (isNew && missing == SqlConnection::Refuse) {
        throw LogbookError(
            SchemaTexts::tr("there is no logbook in %1").arg(connection.place().text()));
    }
    if (connection.place().isFile()) {
        tryToMigrate(connection);
        if (isNew) {
            letReadersIn(connection);
        }
        return;
    }
    // Servers let two make the same table until one of them has: then the other fails.
    for (int left = Tries; true; --left) {
        try {
            tryToMigrate(connection);
            return;
        } catch (const LogbookError&) {
            if (left == 1 || versionOf(connection) > logbookVersion()) {
                throw;
            }
            std::this_thread::sleep_for(100ms);
        }
    }
}

} // namespace TARN
