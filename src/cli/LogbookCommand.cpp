#include "cli/LogbookCommand.h"

#include "base/ClockTime.h"
#include "cli/Inputs.h"
#include "cli/LogbookJson.h"
#include "cli/TextTable.h"
#include "logbook/FlightAdder.h"

#include <QtCore/QDateTime>

#include <ostream>

namespace TARN {

namespace {

constexpr qsizetype ShortKey = 12; ///< characters of a flight's key that tell it from others

Logbook openLogbook(const LogbookArguments& arguments)
{
    return Logbook(QString::fromStdString(arguments.database), SqlConnection::Refuse);
}

std::optional<QString> aircraftOf(const LogbookArguments& arguments)
{
    return arguments.aircraft ? std::optional(QString::fromStdString(*arguments.aircraft))
                              : std::nullopt;
}

QString startText(const std::optional<qint64>& start)
{
    return start ? utcText(*start).replace('T', ' ').chopped(1) : "-";
}

QString numberText(const std::optional<double>& value)
{
    return value ? QString::number(*value, 'g', 7) : "-";
}

QString namesOf(const QStringList& files)
{
    QStringList names = {files.front()};
    for (const QString& file : files.mid(1)) {
        names += file.section('/', -1);
    }
    return names.join(", ");
}

QString lineOf(const AddOutcome& outcome)
{
    const QString what = outcome.kind == AddOutcome::Added   ? "added"
                         : outcome.kind == AddOutcome::Known ? "already known"
                                                             : "damaged";
    const QString reason = outcome.reason.isEmpty() ? "" : " (" + outcome.reason + ")";
    const QString key = outcome.flight.isEmpty() ? "" : " " + outcome.flight.left(ShortKey);
    return onOneLine(what + key + ": " + namesOf(outcome.files) + reason);
}

AddListener listenerOf(std::ostream& out, std::ostream& error)
{
    AddListener listener;
    listener.done = [&out, &error, told = std::size_t(0)](const AddOutcome& outcome,
                                                          const AddTotals& soFar) mutable {
        out << lineOf(outcome).toStdString() << std::endl;
        const std::size_t percent = 100 * soFar.done / soFar.all;
        if (percent != told) {
            error << soFar.done << " of " << soFar.all << " flights (" << percent << " %)"
                  << std::endl;
        }
        told = percent;
    };
    listener.connectionLost = [&error](const QString& reason) {
        error << "trying again: " << onOneLine(reason).toStdString() << std::endl;
    };
    return listener;
}

QStringList rowOf(const FlightHead& head)
{
    static const QStringList States = {"", "warning", "limit"};
    return {startText(head.start),
            clockText(head.duration()),
            head.aircraft.isEmpty() ? "-" : head.aircraft,
            head.flight.left(ShortKey),
            States.value(head.worst),
            QString::number(head.limits),
            QString::number(head.warnings),
            QString::number(head.lamps),
            QString::number(head.faults),
            QString::number(head.remarks)};
}

QList<QStringList> headTable(const std::vector<FlightHead>& heads)
{
    QList<QStringList> rows = {{"start (UTC)", "duration", "engine", "flight", "worst", "limits",
                                "warnings", "lamps", "faults", "remarks"}};
    for (const FlightHead& head : heads) {
        rows += rowOf(head);
    }
    return rows;
}

QList<QStringList> statisticsTable(const FlightEntry& entry)
{
    QList<QStringList> rows = {{"parameter", "unit", "stretch", "samples", "min", "max",
                                "time mean", "stddev", "in warning [s]"}};
    const auto valueOf = [](const std::optional<Statistics::Moment>& moment) {
        return moment ? std::optional(moment->value) : std::nullopt;
    };
    for (const KeptStatistics& kept : entry.statistics) {
        const Statistics& found = kept.found;
        if (found.samples > 0) {
            rows += {kept.device + "/" + kept.parameter,  kept.unit,
                     kept.isSteady ? "steady" : "flight", QString::number(found.samples),
                     numberText(valueOf(found.min)),      numberText(valueOf(found.max)),
                     numberText(found.timeMean),          numberText(found.stddev),
                     numberText(kept.warningSeconds)};
        }
    }
    return rows;
}

QList<QStringList> troubleTable(const FlightEntry& entry)
{
    static const QStringList States = {"", "warning", "limit"};
    QList<QStringList> rows = {{"what", "state", "from", "until", "peak"}};
    const auto add = [&](const std::vector<KeptEpisode>& episodes) {
        for (const KeptEpisode& episode : episodes) {
            const auto peak = episode.peak ? std::optional(episode.peak->value) : std::nullopt;
            rows += {episode.device.isEmpty() ? episode.name : episode.device + "/" + episode.name,
                     States.value(episode.state), clockText(episode.start), clockText(episode.end),
                     peak ? numberText(peak) : ""};
        }
    };
    add(entry.episodes);
    add(entry.lamps);
    add(entry.faults);
    return rows;
}

void showTables(const FlightEntry& entry, std::ostream& out)
{
    printTable(headTable({entry.head}), out);
    out << "\nrecordings\n";
    for (const KeptRecording& recording : entry.recordings) {
        out << onOneLine(recording.path).toStdString() << '\n';
    }
    for (const QString& remark : entry.remarks) {
        out << "remark: " << onOneLine(remark).toStdString() << '\n';
    }
    out << '\n';
    printTable(troubleTable(entry), out);
    out << '\n';
    printTable(statisticsTable(entry), out);
}

void trendTable(const QString& aircraft, const std::vector<TrendPoint>& points, std::ostream& out)
{
    QList<QStringList> rows = {{"start (UTC)", "engine", "flight", "value", "median", "sigma", ""}};
    for (const TrendPoint& point : points) {
        rows += {startText(point.start),        aircraft.isEmpty() ? "-" : aircraft,
                 point.flight.left(ShortKey),   numberText(point.value),
                 numberText(point.median),      numberText(point.sigma),
                 point.isMarked ? "marked" : ""};
    }
    printTable(rows, out);
}

QDateTime dateOf(const std::string& text)
{
    const QString date = QString::fromStdString(text);
    QDateTime found = QDateTime::fromString(date, "yyyy-MM-dd");
    found = found.isValid() ? found : QDateTime::fromString(date, "yyyy-MM-ddTHH:mm");
    found.setTimeSpec(Qt::UTC);
    return found;
}

} // namespace

std::string markDateFault(const std::string& text)
{
    return dateOf(text).isValid() ? ""
                                  : "\"" + text +
                                        "\" is neither a date such as 2026-11-21 nor one "
                                        "with a time such as 2026-11-21T12:30";
}

void runLogbookAdd(const LogbookArguments& arguments, std::ostream& out, std::ostream& error)
{
    const auto profile = loadProfile(arguments.profile);
    QStringList folders;
    for (const std::string& folder : arguments.folders) {
        folders += QString::fromStdString(folder);
    }
    Progress none;
    const AddTotals totals = addFlights(folders, QString::fromStdString(arguments.database),
                                        profile, arguments.jobs, listenerOf(out, error), none);
    out << totals.added << " added, " << totals.known << " already known, " << totals.damaged
        << " damaged\n";
    if (totals.damaged > 0) {
        out.flush();
        throw CommandFailure(std::to_string(totals.damaged) + " of " + std::to_string(totals.all) +
                             " flights could not be added");
    }
}

void runLogbookList(const LogbookArguments& arguments, std::ostream& out)
{
    const std::vector<FlightHead> heads = openLogbook(arguments).flights(aircraftOf(arguments));
    if (!arguments.json) {
        printTable(headTable(heads), out);
        return;
    }
    for (const FlightHead& head : heads) {
        out << flightLine(head).dump() << '\n';
    }
}

void runLogbookShow(const LogbookArguments& arguments, std::ostream& out)
{
    Logbook logbook = openLogbook(arguments);
    const FlightEntry entry = logbook.entry(logbook.find(QString::fromStdString(arguments.flight)));
    if (!arguments.json) {
        showTables(entry, out);
        return;
    }
    for (const Json& line : entryLines(entry)) {
        out << line.dump() << '\n';
    }
}

void runLogbookRemove(const LogbookArguments& arguments)
{
    Logbook logbook = openLogbook(arguments);
    logbook.remove(logbook.find(QString::fromStdString(arguments.flight)));
}

void runLogbookTrend(const LogbookArguments& arguments, std::ostream& out)
{
    Logbook logbook = openLogbook(arguments);
    const auto only = aircraftOf(arguments);
    const auto figure =
        static_cast<Figure>(figureNames().indexOf(QString::fromStdString(arguments.figure)));
    bool isKnown = false;
    for (const QString& aircraft : only ? QStringList(*only) : logbook.aircraft()) {
        const std::vector<TrendPoint> points =
            logbook.trend(aircraft, QString::fromStdString(arguments.parameter), figure);
        isKnown = isKnown || !points.empty();
        if (!arguments.json && !points.empty()) {
            trendTable(aircraft, points, out);
            continue;
        }
        for (const TrendPoint& point : points) {
            out << trendLine(aircraft, point).dump() << '\n';
        }
    }
    if (!isKnown) {
        throw CommandFailure("no flight in the logbook has the parameter \"" + arguments.parameter +
                             "\"");
    }
}

void runLogbookMark(const LogbookArguments& arguments)
{
    openLogbook(arguments).addMark({QString::fromStdString(*arguments.aircraft),
                                    dateOf(arguments.date).toSecsSinceEpoch(),
                                    QString::fromStdString(arguments.text)});
}

} // namespace TARN
