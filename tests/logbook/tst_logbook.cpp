#include "logbook/FlightDigest.h"
#include "logbook/Logbook.h"
#include "logbook/LogbookError.h"
#include "logbook/LogbookSchema.h"
#include "support/CommandRun.h"
#include "support/FlightTest.h"
#include "support/PostgresServer.h"
#include "support/ResourceLimit.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QUrl>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <nlohmann/json.hpp>
#include <set>

using namespace TARN;
using nlohmann::json;

namespace {

/// What a piece of work threw.
QString failureOf(const std::function<void()>& work)
{
    try {
        work();
        return "nothing";
    } catch (const LogbookError& error) {
        return QString::fromUtf8(error.what());
    }
}

double medianOf(std::vector<double> values)
{
    std::ranges::sort(values);
    const std::size_t n = values.size();
    return n % 2 == 1 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2.0;
}

} // namespace

/// What is kept of flights, on both kinds of databases.
class TestLogbook : public FlightTest
{
    Q_OBJECT

    static constexpr int Flights = 50;
    static constexpr int Worse = 35; ///< from this flight on, counted from 0, the cylinder is

    std::unique_ptr<PostgresServer> mServer; ///< null where it is not asked for

    QString file() const { return "sqlite:" + path("book.sqlite"); }

    /// The names hold all that could end a statement, a tag or a line.
    QString profile() const
    {
        return write(
            "profile.xml",
            "<CanAerospaceProfile><EnumList><Enum name='WarningLamp'><Value val='1' label='on'/>"
            "</Enum></EnumList><ThresholdList><Threshold name='T'>"
            "<Value val='10' state='LIMIT'/><Value val='20' state='WARNING'/>"
            "<Value val='30' state='OK'/><Value val='200' state='WARNING' color='#FFFF00'/>"
            "<Value val='220' state='LIMIT'/></Threshold></ThresholdList>"
            "<Device name='O&apos;Neil/&lt;b&gt;'><ErrorMatrix id='900' name='Faults'/>"
            "<Parameter name='CHT &quot;6&quot;; --' id='500' dataType='FLOAT' startByte='4' "
            "unit='&#176;C' thresholdId='T'/>"
            "<Parameter name='RPM' id='501' dataType='FLOAT' startByte='4' steady='5' "
            "steadyAbove='1000'/>"
            "<Parameter name='Silent' id='502' dataType='FLOAT' startByte='4' thresholdId='T'/>"
            "<Parameter name='Lamp' id='503' dataType='BLONG' startByte='4' endBit='3' "
            "enumId='WarningLamp'/>"
            "<Parameter name='E%1 &apos;' id='900' startBit='1' errorType='Warning'/>"
            "</Device></CanAerospaceProfile>");
    }
    static QString cht() { return "O'Neil/<b>/CHT \"6\"; --"; }

    /// A flight of four minutes whose cylinder has this temperature.
    QString writeFlight(const QString& name, int day, double temperature) const
    {
        RecordingBuilder recording;
        recording.date(2026, 1 + day / 28, 1 + day % 28, 12, 0, 0).text(2, "EN'1\";<x>");
        add(recording, "503@0.5=5:00000001 900@1=5:00000002 900@9=5:00000000");
        for (int second = 0; second < 240; ++second) {
            add(recording, QString("500@%1=%2 501@%1=2400")
                               .arg(second)
                               .arg(temperature + 0.01 * ((second * 7 + day * 3) % 11)));
        }
        return write(name, recording.bytes());
    }

    QString writeFleet() const
    {
        for (int day = 0; day < Flights; ++day) {
            const QString folder = QString("cards/%1/it's").arg(day);
            QDir(path("")).mkpath(folder);
            const int worse = std::max(0, day - Worse + 1);
            writeFlight(folder + "/LOG_0001.CAN", day, 180.0 + day * 7 % 3 + 12.0 * worse);
        }
        return path("cards");
    }

    CommandRun add(const QString& url, const QString& folder, const QStringList& more = {}) const
    {
        return runCommand(
            QStringList{"logbook", "add", "--database", url, "--profile", profile(), folder} +
            more);
    }
    using FlightTest::add;

    static std::vector<json> list(const QString& url)
    {
        return linesOf(runCommand({"logbook", "list", "--json", "--database", url}).out);
    }

    /// What is shown of a flight is what the other commands say of its recordings.
    void compareWithCommands(const QString& url, const json& flight) const
    {
        const auto shown = linesOf(runCommand({"logbook", "show", "--json", "--database", url,
                                               QString::fromStdString(flight["flight"])})
                                       .out);
        const QString recording =
            QString::fromStdString(shown.front()["recordings"][0]["file"].get<std::string>());
        QFile content(recording);
        QVERIFY(content.open(QIODevice::ReadOnly));
        QCOMPARE(flight["flight"].get<std::string>(),
                 QCryptographicHash::hash(content.readAll(), QCryptographicHash::Sha256)
                     .toHex()
                     .toStdString());
        const auto expect = [&](QStringList command, const json& kind, const json& stretch) {
            command += {"--profile", profile(), recording};
            std::vector<json> expected = linesOf(runCommand(command).out);
            std::erase_if(expected, [&](json& line) { return line.value("kind", kind) != kind; });
            std::vector<json> kept = shown;
            std::erase_if(kept, [&](json& line) {
                return line["kind"] != kind || line.value("stretch", stretch) != stretch;
            });
            std::ranges::for_each(kept, [&](json& line) { line.erase("stretch"); });
            std::ranges::for_each(expected, [&](json& line) { line["kind"] = kind; });
            QVERIFY(!expected.empty());
            QCOMPARE(json(kept).dump(), json(expected).dump());
        };
        expect({"stats"}, "statistics", "flight");
        const auto number = [&](const char* field) {
            return QString::number(shown.front()[field].get<double>(), 'g', 17);
        };
        expect({"stats", "--start", number("steadyStart"), "--stop", number("steadyStop")},
               "statistics", "steady");
        if (flight["limits"].get<int>() + flight["warnings"].get<int>() > 0) {
            expect({"events", "--episodes"}, "episode", {});
        }
    }

    /// Four at once, of which one is killed in the middle; then once more.
    void fleetAt(const QString& url)
    {
        const QString folder = writeFleet();
        const QStringList arguments = {"logbook",   "add",     "--database", url,
                                       "--profile", profile(), folder};
        std::vector<std::unique_ptr<QProcess>> four;
        for (int k = 0; k < 4; ++k) {
            four.push_back(std::make_unique<QProcess>());
            four.back()->start(QCoreApplication::applicationDirPath() + "/orna-cli", arguments);
        }
        QVERIFY(four.front()->waitForReadyRead());
        four.front()->kill();
        for (const auto& process : four) {
            QVERIFY(process->waitForFinished(120'000));
            QVERIFY2(process == four.front() || process->exitCode() == 0,
                     process->readAllStandardError().constData());
        }
        const CommandRun again = add(url, folder);
        QVERIFY(again.error.starts_with("1 of 50 flights (2 %)\n"));
        QVERIFY(again.out.ends_with("0 added, 50 already known, 0 damaged\n"));
        const auto flights = list(url);
        QCOMPARE(flights.size(), std::size_t(Flights));
        for (const json& flight : flights) {
            compareWithCommands(url, flight);
        }
        trendAt(url);
    }

    /// What is the same in every worse flight is the smallest step there is, and no more than that.
    static void trendAt(const QString& url)
    {
        struct Expected
        {
            QString figure;
            int firstMarked;
            double last; ///< truncated
        };
        for (const auto& [figure, firstMarked, last] :
             {Expected{"steady", Worse, 361.0}, Expected{"max", Worse, 361.0},
              Expected{"warning", Flights, 239.0}, Expected{"episodes", Flights, 1.0}}) {
            const CommandRun run = runCommand({"logbook", "trend", "--json", "--database", url,
                                               "--parameter", cht(), "--figure", figure});
            const auto points = linesOf(run.out);
            const auto first = std::ranges::find_if(
                points, [](const json& point) { return point["marked"].get<bool>(); });
            QCOMPARE(int(first - points.begin()), firstMarked);
            QCOMPARE(std::floor(points.back()["value"].get<double>()), last);
        }
    }

private Q_SLOTS:
    void initTestCase()
    {
        std::setlocale(LC_NUMERIC, "C"); // as the program does
        if (!qEnvironmentVariableIsEmpty("ORNA_SERVERS")) {
            qputenv("PGPASSWORD", PostgresServer::Password);
            mServer = std::make_unique<PostgresServer>();
            mServer->start();
        }
    }
    void cleanupTestCase() { mServer.reset(); }

    void places_data()
    {
        QTest::addColumn<QString>("shown");
        const QString unknown = "the logbook's URL is neither sqlite:PATH nor "
                                "postgresql://user@host:port/database";
        QTest::newRow("sqlite:/a b/%20'c") << "sqlite:/a b/%20'c";
        QTest::newRow("sqlite:///abs.db") << "sqlite:/abs.db";
        QTest::newRow("postgresql://u:se%40cret@h:12/d") << "postgresql://u@h:12/d";
        QTest::newRow("postgres://h/d?sslmode=require&password=secret")
            << "postgresql://h/d?sslmode=require";
        QTest::newRow("postgresql://u:secret@h") << unknown;
        QTest::newRow("postgresql://u:se cret@h:x/d") << unknown;
        QTest::newRow("mysql://u:secret@h/d") << unknown;
        QTest::newRow("sqlite:") << unknown;
        QTest::newRow("postgresql://h/d?secret=secret")
            << "the logbook's URL has an option that is not understood; known are sslmode, "
               "sslrootcert, sslcert, sslkey, connect_timeout";
    }
    void places()
    {
        QFETCH(const QString, shown);
        QString text;
        const QString failure =
            failureOf([&] { text = logbookPlace(QTest::currentDataTag()).text(); });
        QCOMPARE(text.isEmpty() ? failure : text, shown);
    }

    void refused_data()
    {
        QTest::addColumn<QString>("statement"); ///< empty: the file holds this instead
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("told");
        QTest::newRow("newer") << "INSERT INTO logbook_version (version) VALUES (4711)"
                               << QByteArray() << "is of version 4711";
        QTest::newRow("no database") << "" << QByteArray(5000, 'x') << "is no database";
        QTest::newRow("half a database")
            << "" << QByteArray("SQLite format 3\0\x10\0\1\1\0@  ", 24) << "book.sqlite";
        QTest::newRow("another's")
            << "DROP TABLE logbook_version" << QByteArray() << "another program's tables are in it";
    }
    void refused()
    {
        QFETCH(const QString, statement);
        QFETCH(const QByteArray, content);
        QFETCH(const QString, told);
        QVERIFY(failureOf([&] {
                    Logbook(file(), SqlConnection::Refuse);
                }).startsWith("there is no logbook"));
        if (statement.isEmpty()) {
            write("book.sqlite", content);
        } else {
            Logbook(file(), SqlConnection::Create);
            SqlConnection(logbookPlace(file()), SqlConnection::Refuse).run(statement);
        }
        const QByteArray before = read("book.sqlite");
        const QString failure = failureOf([&] { Logbook(file(), SqlConnection::Create); });
        QVERIFY2(failure.contains(told), qPrintable(failure));
        QCOMPARE(read("book.sqlite"), before);
    }

    void fleet() { fleetAt(file()); }

    void remembersAndForgets()
    {
        QDir(path("")).mkpath("cards");
        writeFlight("cards/LOG_0001.CAN", 1, 190.0);
        write("cards/LOG_0002.CAN", RecordingBuilder().bytes());
        QDir(path("")).mkpath("cards/LOG_0003.CAN");
        const CommandRun added = add(file(), path("cards"));
        QCOMPARE(added.status, 1);
        QVERIFY(added.error.ends_with("orna-cli: 1 of 2 flights could not be added\n"));
        QVERIFY(added.out.find("LOG_0002.CAN (there is no sample in it)\n") != added.out.npos);
        const auto flights = list(file());
        QCOMPARE(flights.size(), std::size_t(1));
        const auto key = QString::fromStdString(flights[0]["flight"]);
        for (const QString& wrong : {QString("%"), "x" + key, QString()}) {
            const CommandRun none = runCommand({"logbook", "show", "--database", file(), wrong});
            QCOMPARE(none.error,
                     "orna-cli: the logbook has no flight \"" + wrong.toStdString() + "\"\n");
        }
        QCOMPARE(runCommand({"logbook", "remove", "--database", file(), key.left(9)}).status, 0);
        QVERIFY(list(file()).empty());
        SqlConnection sql(logbookPlace(file()), SqlConnection::Refuse);
        for (const QString& table : sql.tables()) {
            QSqlQuery query = sql.run("SELECT count(*) FROM " + table);
            QVERIFY(query.next());
            const bool stays = table == "aircraft" || table == "logbook_version";
            QVERIFY2(query.value(0).toInt() == (stays ? 1 : 0), qPrintable(table));
        }
    }

    void manyOfTheSameMinute()
    {
        constexpr int Many = 1000;
        QDir(path("")).mkpath("cards");
        for (int k = 0; k < Many; ++k) {
            RecordingBuilder recording;
            recording.date(2026, 1, 1, 12, 0, 0);
            write(QString("cards/LOG_%1.CAN").arg(k, 4, 10, QChar('0')),
                  add(recording, QString("500@1=%1 500@9=1").arg(k)).bytes());
        }
        const CommandRun added = add(file(), path("cards"), {"--jobs", "3"});
        QVERIFY(added.out.ends_with("1000 added, 0 already known, 0 damaged\n"));
        QCOMPARE(std::ranges::count(added.error, '\n'), 100);
        QCOMPARE(list(file()).size(), std::size_t(Many));
    }

    void fullDisk()
    {
        if (!ResourceLimit::isPossible()) {
            QSKIP("the sanitizers write files, too");
        }
        const QString folder = writeFleet();
        {
            const auto limit = ResourceLimit::fullDisk(300'000);
            const CommandRun full = add(file(), folder, {"--jobs", "1"});
            QCOMPARE(full.status, 1);
            QVERIFY2(full.error.find("orna-cli: logbook sqlite:") != full.error.npos,
                     full.error.c_str());
        }
        const auto kept = list(file());
        QVERIFY(!kept.empty() && kept.size() < Flights);
        for (const json& flight : kept) {
            compareWithCommands(file(), flight);
        }
        QCOMPARE(add(file(), folder).status, 0);
        QCOMPARE(list(file()).size(), std::size_t(Flights));
    }

    void warningSeconds_data()
    {
        QTest::addColumn<QList<int>>("states");
        QTest::addColumn<double>("place"); ///< NaN: nothing
        QTest::newRow("upwards") << QList<int>{0, 1, 2} << 1.0;
        QTest::newRow("twice") << QList<int>{1, 1, 2} << 0.0;
        QTest::newRow("both ways") << QList<int>{2, 1, 0, 1, 2} << 3.0;
        QTest::newRow("downwards") << QList<int>{2, 1, 0} << std::nan("");
        QTest::newRow("limit alone") << QList<int>{0, 2} << std::nan("");
        QTest::newRow("none") << QList<int>{} << std::nan("");
    }
    void warningSeconds()
    {
        QFETCH(const QList<int>, states);
        QFETCH(const double, place);
        Statistics statistics;
        for (qsizetype k = 0; k < states.size(); ++k) {
            statistics.above.push_back({0.0, {}, states[k], static_cast<double>(k)});
        }
        QCOMPARE(secondsInWarning(statistics).value_or(std::nan("")), place);
    }

    /// Against the definition, read word for word.
    void marks()
    {
        std::mt19937 random(1);
        for (int round = 0; round < 300; ++round) {
            std::vector<TrendPoint> points;
            const unsigned steps = round % 3 == 0 ? 3 : 1000;
            for (int k = pick(random, 40); k > 0; --k) {
                TrendPoint point;
                point.start = qint64(points.size() * 10);
                if (pick(random, 8) != 0) {
                    point.value = pick(random, steps) + (pick(random, 9) == 0 ? 2000.0 : 0.0);
                }
                points.push_back(point);
            }
            std::vector<MaintenanceMark> marks;
            for (int k = pick(random, 3); k > 0; --k) {
                marks.push_back({"", pick(random, 400), ""});
            }
            markTrend(points, marks);
            for (std::size_t k = 0; k < points.size(); ++k) {
                compareWithWords(points, marks, k);
            }
        }
    }

    void marksBeginAnew()
    {
        const QString folder = writeFleet();
        QCOMPARE(add(file(), folder).status, 0);
        const auto mark = [&](const QString& aircraft, const QString& date) {
            return runCommand(
                {"logbook", "mark", "--database", file(), aircraft, date, "it's <b>"});
        };
        QCOMPARE(mark("EN'1\";<x>", "1.2.2026").status, 2);
        QCOMPARE(mark("other", "2026-02-08").error,
                 "orna-cli: the logbook has no flight of the engine \"other\"\n");
        QCOMPARE(mark("EN'1\";<x>", "2026-02-08").status, 0); // day 35
        QCOMPARE(mark("EN'1\";<x>", "2026-02-08").status, 0);
        Logbook logbook(file(), SqlConnection::Refuse);
        QCOMPARE(logbook.marks("EN'1\";<x>").size(), std::size_t(1));
        const auto points = logbook.trend("EN'1\";<x>", cht(), Figure::SteadyMean);
        QVERIFY(*points[34].median < 183.0);
        QVERIFY(*points[35].median > 200.0);
        QVERIFY(logbook.trend("EN'1\";<x>", "RPM", Figure::Maximum).empty());
        for (const Figure figure : {Figure::SteadyMean, Figure::Maximum, Figure::Episodes}) {
            const auto all = logbook.trends("EN'1\";<x>", figure);
            // One has no sample, one none in the steady stretch.
            QCOMPARE(all.size(), std::size_t(figure == Figure::SteadyMean ? 3 : 4));
            for (const ParameterTrend& of : all) {
                const auto one = logbook.trend("EN'1\";<x>", of.fullName(), figure);
                QVERIFY(std::ranges::equal(of.points, one, [](const auto& a, const auto& b) {
                    return a.flight == b.flight && a.value == b.value && a.median == b.median &&
                           a.isMarked == b.isMarked;
                }));
            }
        }
    }

    void server()
    {
        if (mServer == nullptr) {
            QSKIP("no server is asked for");
        }
        QVERIFY(failureOf([&] {
                    Logbook(mServer->url(), SqlConnection::Refuse);
                }).startsWith("there is no logbook in postgresql://orna@127.0.0.1:"));
        fleetAt(mServer->url());
        Logbook logbook(mServer->url(), SqlConnection::Create);
        QString lost;
        logbook.setLostListener([&](const QString& reason) {
            lost = reason;
            mServer->start();
        });
        mServer->stop();
        QCOMPARE(logbook.flights().size(), std::size_t(Flights));
        QVERIFY(!lost.isEmpty());
        logbook.remove(logbook.flights().front());
        QCOMPARE(logbook.flights().size(), std::size_t(Flights - 1));
        qunsetenv("PGPASSWORD");
        const QString refused =
            failureOf([&] { Logbook(mServer->url("orna:wrong%20one"), SqlConnection::Create); });
        QVERIFY2(refused.contains("password authentication failed") && !refused.contains("wrong"),
                 qPrintable(refused));
        SqlConnection(logbookPlace(mServer->url(QString("orna:") +
                                                QUrl::toPercentEncoding(PostgresServer::Password))),
                      SqlConnection::Create)
            .run("INSERT INTO logbook_version (version) VALUES (4711)");
        qputenv("PGPASSWORD", PostgresServer::Password);
        QVERIFY(failureOf([&] {
                    Logbook(mServer->url(), SqlConnection::Create);
                }).contains("version 4711"));
    }

private:
    static void compareWithWords(const std::vector<TrendPoint>& points,
                                 const std::vector<MaintenanceMark>& marks, std::size_t k)
    {
        const auto lastMark = [&](const TrendPoint& point) {
            qint64 last = -1;
            for (const MaintenanceMark& mark : marks) {
                last = mark.date <= *point.start ? std::max(last, mark.date) : last;
            }
            return last;
        };
        const TrendPoint& point = points[k];
        std::vector<double> baseline;
        std::vector<double> before;
        for (std::size_t j = 0; j < points.size(); ++j) {
            if (points[j].value && j != k && lastMark(points[j]) == lastMark(point)) {
                baseline.push_back(*points[j].value);
                if (j < k) {
                    before.push_back(*points[j].value);
                }
            }
        }
        if (!point.value || baseline.size() < 5) {
            QVERIFY(!point.median && !point.sigma && !point.isMarked);
            return;
        }
        const double m = medianOf(baseline);
        std::vector<double> deviations;
        double smallest = INFINITY;
        for (const double a : baseline) {
            deviations.push_back(std::fabs(a - m));
            for (const double b : baseline) {
                smallest = a != b ? std::min(smallest, std::fabs(a - b)) : smallest;
            }
        }
        double s = 1.4826 * medianOf(deviations);
        s = s > 0.0 ? s : std::isinf(smallest) ? 0.0 : smallest;
        const double away = *point.value - m;
        int sameSide = 0;
        for (std::size_t j = before.size() > 4 ? before.size() - 4 : 0; j < before.size(); ++j) {
            sameSide += (away > s && before[j] - m > s) || (away < -s && before[j] - m < -s);
        }
        QCOMPARE(*point.median, m);
        QCOMPARE(*point.sigma, s);
        QCOMPARE(point.isMarked, std::fabs(away) > 3.0 * s || sameSide >= 3);
    }
};

QTEST_GUILESS_MAIN(TestLogbook)

#include "tst_logbook.moc"
