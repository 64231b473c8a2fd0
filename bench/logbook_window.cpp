#include "EventLoop.h"
#include "Suite.h"
#include "Window.h"
#include "base/Property.h"
#include "logbook/DialogLogbook.h"
#include "logbook/FlightTables.h"
#include "logbook/Logbook.h"

#include <QtGui/QGuiApplication>
#include <QtWidgets/QTableView>

namespace TARN::Bench {

namespace {

constexpr int Flights = 10'000;
constexpr int FlightsOfEngine = 50;
constexpr int ParameterCount = 117;

FlightEntry entryOf(int number)
{
    FlightEntry entry;
    entry.head.aircraft = QString("E%1").arg(number / FlightsOfEngine, 4, 10, QChar('0'));
    entry.head.flight = QString("%1").arg(number, 64, 16, QChar('0'));
    entry.head.start = 1'500'000'000 + 7200 * number;
    entry.head.startSource = "data";
    entry.head.stopTime = 3600.0;
    entry.head.limits = static_cast<std::size_t>(number % 3);
    entry.head.worst = number % 3 > 0 ? StateLimit : StateOk;
    // Those of the engine that is shown first are enough: the window does not read the others'.
    if (number >= Flights - FlightsOfEngine) {
        for (int k = 0; k < ParameterCount; ++k) {
            KeptStatistics& kept = entry.statistics.emplace_back();
            kept.isSteady = true;
            kept.place = k;
            kept.device = "Engine";
            kept.parameter = QString("Parameter %1").arg(k);
            kept.found.samples = 1000;
            kept.found.timeMean = 100.0 + (number * 7 + k * 3) % 11;
        }
    }
    return entry;
}

QString makeLogbook(Suite& suite)
{
    const QString url =
        "sqlite:" + QString::fromStdString((suite.folder() / "Many.sqlite").string());
    Logbook(url, SqlConnection::Create);
    SqlConnection sql(logbookPlace(url), SqlConnection::Refuse);
    sql.transaction(SqlConnection::Write, [&] {
        for (int number = 0; number < Flights; ++number) {
            const FlightEntry entry = entryOf(number);
            insertFlight(sql, entry);
            insertParts(sql, entry);
        }
    });
    return url;
}

double paintSeconds(QWidget& window)
{
    constexpr int Paints = 20;
    std::vector<double> seconds;
    for (int k = 0; k < Paints; ++k) {
        seconds.push_back(secondsOf([&] {
            window.repaint();
            QGuiApplication::sync();
        }));
    }
    return median(seconds);
}

/// The longest hold while the window opens, reads and shows all, against one paint of it.
double openRatio()
{
    Session session;
    const Heartbeat heart;
    DialogLogbook window(session);
    window.show();
    liveUntilDone();
    live(100); // what comes into sight is measured last
    const double hold = heart.longestHold();
    require(window.findChild<QTableView*>("flights")->model()->rowCount() == Flights &&
                window.findChild<QTableView*>("parameterTrends")->model()->rowCount() ==
                    ParameterCount,
            "the logbook was not read");
    return hold / paintSeconds(window);
}

} // namespace

void logbookWindowFigures(Suite& suite)
{
    if (!suite.isWanted("logbook.hold")) {
        return;
    }
    constexpr int Rounds = 5;
    Property::instance()->setString("LogbookUrl", makeLogbook(suite).toStdString());
    std::vector<double> ratios;
    for (int round = 0; round < Rounds; ++round) {
        ratios.push_back(openRatio());
    }
    suite.figure("logbook.hold", 5.0, [&] { return median(ratios); });
}

} // namespace TARN::Bench
