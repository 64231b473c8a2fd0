#include "logbook/FlightAdder.h"
#include "logbook/FlightListModel.h"
#include "logbook/LogbookError.h"
#include "logbook/RecordingFinder.h"
#include "logbook/TrendLayout.h"
#include "logbook/TrendListModel.h"
#include "support/FlightTest.h"

#include <QtTest/QAbstractItemModelTester>

#include <algorithm>
#include <cmath>
#include <limits>

using namespace TARN;

/// What the window on a logbook shows, and how it finds what it opens.
class TestLogbookView : public FlightTest
{
    Q_OBJECT

    static FlightHead flight(const QString& aircraft, const QString& key,
                             std::optional<qint64> start, double seconds, std::size_t limits)
    {
        FlightHead head;
        head.aircraft = aircraft;
        head.flight = key;
        head.start = start;
        head.stopTime = seconds;
        head.limits = limits;
        head.worst = limits > 0 ? StateLimit : StateOk;
        return head;
    }

    static std::shared_ptr<const std::vector<FlightHead>> flights()
    {
        return std::make_shared<const std::vector<FlightHead>>(std::vector<FlightHead>{
            flight("A", "a2", 2 * 86'400, 60.0, 11), flight("B", "b1", 86'400, 3600.0 * 30, 0),
            flight("A", "a1", 0, 90.0, 2), flight("", "c1", {}, 61.0, 0)});
    }

    static QString keys(const FlightListModel& model)
    {
        QStringList all;
        for (int row = 0; row < model.rowCount(); ++row) {
            all += model.flight(row).flight;
        }
        return all.join(' ');
    }

    /// Of values in sigmas from a median of 10, sigma 2; "!" marks one, "-" is none.
    static ParameterTrend trend(const QString& name, const QString& values)
    {
        ParameterTrend made{"D", name, "u", {}};
        for (const QString& text : values.split(' ')) {
            TrendPoint point{QString::number(made.points.size()), {}, {}, {}, {}, false};
            if (text != "-") {
                point.value = 10.0 + 2.0 * QString(text).remove('!').toDouble();
                point.median = 10.0;
                point.sigma = 2.0;
                point.isMarked = text.endsWith('!');
            }
            made.points.push_back(point);
        }
        return made;
    }

    static QString names(const TrendListModel& model)
    {
        QStringList all;
        for (int row = 0; row < model.rowCount(); ++row) {
            all += model.trend(row).parameter;
        }
        return all.join(' ');
    }

    QString recording(const QString& name, int second, const QString& value) const
    {
        QDir(path("")).mkpath(QFileInfo(path(name)).path());
        RecordingBuilder file;
        file.date(2026, 1, 1, 0, 0, 0).text(2, "E1");
        return write(name,
                     add(file, QString("500@%1=%2 500@%3=1").arg(second).arg(value).arg(second + 9))
                         .bytes());
    }

    QString url() const { return "sqlite:" + path("book.sqlite"); }

    AddTotals addOf(const QStringList& recordings) const
    {
        const AddListener listener{[](const AddOutcome&, const AddTotals&) {}, {}};
        Progress none;
        return addFlightsOf(recordings, url(), profileOf("<Device name='D'/>"), listener, none);
    }

private Q_SLOTS:
    void flightOrder_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("ascending");
        QTest::newRow("start") << int(FlightListModel::StartColumn) << "c1 a1 b1 a2";
        QTest::newRow("duration") << int(FlightListModel::DurationColumn) << "a2 c1 a1 b1";
        QTest::newRow("engine") << int(FlightListModel::EngineColumn) << "c1 a2 a1 b1";
        QTest::newRow("limits, not as texts")
            << int(FlightListModel::LimitsColumn) << "b1 c1 a1 a2";
    }
    void flightOrder()
    {
        QFETCH(const int, column);
        QFETCH(const QString, ascending);
        FlightListModel model;
        const QAbstractItemModelTester tester(&model);
        model.setFlights(flights());
        QCOMPARE(keys(model), "a2 b1 a1 c1"); // the latest first
        model.sort(column, Qt::AscendingOrder);
        QCOMPARE(keys(model), ascending);
        model.setFlights(flights());
        QCOMPARE(keys(model), ascending);
    }

    void flightFilter()
    {
        FlightListModel model;
        model.setFlights(flights());
        model.setFilter({}, "LIMIT");
        QCOMPARE(keys(model), "a2 a1");
        model.setFilter({}, "30:00:00"); // longer than a day
        QCOMPARE(keys(model), "b1");
        model.setFilter("A", "1970-01-03");
        QCOMPARE(keys(model), "a2");
        QCOMPARE(model.rowOf("a2"), 0);
        QCOMPARE(model.rowOf("a1"), -1);
        model.setFilter("", "");
        QCOMPARE(keys(model), "c1");
        QCOMPARE(model.index(0, FlightListModel::StartColumn).data().toString(), "-");
    }

    void trendOrder()
    {
        TrendListModel model;
        const QAbstractItemModelTester tester(&model);
        ParameterTrend odd = trend("odd", "0 0 1!");
        odd.points.back().sigma = 0.0; // all the others are the same
        model.setTrends({trend("quiet", "0 1 -0.5"), trend("back", "0 9! 0.7"),
                         trend("none", "- -"), odd, trend("drift", "0 1 -2! -"),
                         trend("hot", "0 1 6!"), trend("far", "0 -1.2e100")});
        QCOMPARE(names(model), "odd hot drift far back quiet none");
        QCOMPARE(model.markedNow(), 3);
        const auto cell = [&](const char* name, int column) {
            return model.index(model.rowOf(QString("D/%1").arg(name)), column).data().toString();
        };
        QCOMPARE(cell("odd", TrendListModel::AwayColumn), QString("+") + QChar(0x221E));
        QCOMPARE(cell("drift", TrendListModel::AwayColumn), "-2.0");
        QCOMPARE(cell("none", TrendListModel::AwayColumn), "---");
        QCOMPARE(cell("back", TrendListModel::MarkedColumn), "1");
        QCOMPARE(cell("hot", TrendListModel::LatestColumn), "22");
        QCOMPARE(cell("far", TrendListModel::AwayColumn), "-1.2e+100");
        model.sort(TrendListModel::LatestColumn, Qt::AscendingOrder);
        QCOMPARE(names(model), "none far drift quiet back odd hot");
        model.setFilter("D/H");
        QCOMPARE(names(model), "hot");
    }

    void places_data()
    {
        QTest::addColumn<QString>("values");
        QTest::newRow("one") << "0";
        QTest::newRow("all the same") << "0 0 0";
        QTest::newRow("without a value") << "- -";
        QTest::newRow("some") << "-7 - 2 3! 1e3!";
        QTest::newRow("too far apart") << "1e308 -1e308";
    }
    /// Every value is in sight, and is found where it stands.
    void places()
    {
        QFETCH(const QString, values);
        const ParameterTrend of = trend("T", values);
        for (const QSizeF size : {QSizeF(600, 300), QSizeF(20, 10)}) {
            const TrendLayout layout(of, size, 15.0, 7.0);
            for (std::size_t k = 0; k < of.points.size(); ++k) {
                const double x = layout.xOf(k);
                QVERIFY(layout.plot().left() <= x && x <= layout.plot().right());
                const double y = of.points[k].value && !values.contains("e308")
                                     ? layout.yOf(*of.points[k].value)
                                     : layout.plot().center().y();
                QVERIFY(layout.plot().top() <= y && y <= layout.plot().bottom());
                if (size.width() > 100) {
                    QCOMPARE(layout.pointAt({x, y}), std::optional(k));
                }
            }
            QVERIFY(!layout.pointAt({layout.plot().left() - 1.0, layout.plot().center().y()}));
        }
    }

    /// A point out of its column is nearer than the column that the finger is in.
    void finger()
    {
        const ParameterTrend of = trend("T", QString("0 ").repeated(200) + "9!");
        const TrendLayout layout(of, {600, 300}, 15.0, 7.0);
        const QPointF last(layout.xOf(200), layout.yOf(28.0));
        QCOMPARE(layout.pointAt(last - QPointF(8.0, 3.0)), std::optional<std::size_t>(200));
        QVERIFY(layout.pointAt(last - QPointF(12.0, 3.0)) < std::optional<std::size_t>(199));
    }

    void findsRecordings()
    {
        recording("card/A1.CAN", 0, "5");
        recording("card/A2.CAN", 20, "6");
        recording("card/B1.CAN", 4000, "7"); // another flight
        const AddTotals totals = addOf({path("card/A2.CAN")});
        QCOMPARE(totals.added, std::size_t(1));
        QCOMPARE(addOf({path("card/A1.CAN")}).known, std::size_t(1));
        Logbook logbook(url(), SqlConnection::Refuse);
        QCOMPARE(logbook.flights().size(), std::size_t(1));
        const FlightEntry entry = logbook.entry(logbook.flights().front());
        Progress none;
        const auto found = [&](const QString& folder) {
            return findRecordings(entry, folder, none).files.join(' ').remove(path(""));
        };
        QCOMPARE(found({}), "/card/A1.CAN /card/A2.CAN");
        recording("card/A2.CAN", 20, "6.5"); // the card was used again
        QVERIFY(findRecordings(entry, {}, none).reason.startsWith("Files named A1.CAN ... A2.CAN"));
        recording("archive/x/A1.CAN", 0, "5");
        recording("archive/y/A1.CAN", 0, "5");
        QVERIFY(findRecordings(entry, path("archive"), none).reason.startsWith("Files named"));
        recording("archive/y/A2.CAN", 20, "6");
        QCOMPARE(found(path("archive")), "/archive/y/A1.CAN /archive/y/A2.CAN");
        QDir(path("card")).removeRecursively();
        QCOMPARE(findRecordings(entry, {}, none).reason,
                 "The files A1.CAN ... A2.CAN were not found.");
    }
};

QTEST_GUILESS_MAIN(TestLogbookView)
#include "tst_logbook_view.moc"
