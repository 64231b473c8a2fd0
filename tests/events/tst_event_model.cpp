#include "events/EventOrder.h"
#include "flight/FlightSummary.h"
#include "support/FlightTest.h"

#include <QtGui/QBrush>
#include <QtGui/QFont>
#include <QtTest/QAbstractItemModelTester>

using namespace TARN;

class TestEventModel : public FlightTest
{
    Q_OBJECT

    /// Texts of a row, its two backgrounds and the moment that a click on it goes to.
    static QString rowOf(const EventModel& model, int row)
    {
        QStringList parts;
        for (int column = 0; column < model.columnCount(); ++column) {
            parts += model.index(row, column).data().toString();
        }
        for (const int column : {0, 1, 2}) {
            const QVariant brush = model.index(row, column).data(Qt::BackgroundRole);
            parts += brush.isValid() ? brush.value<QBrush>().color().name() : "-";
        }
        return parts.join('|') + "|" + model.index(row, 0).data(Qt::UserRole).toString();
    }

    /// "up" enters its warning, then its limit, and goes back; "down" starts below its normal
    /// range; "bad" is never a number; "level" is of a type that is not watched.
    std::shared_ptr<const Flight> flight() const
    {
        const QString samples = "500@1=5 500@2=15 500@2.06=25.06 500@86401.5=5 501@1=15 501@1.5=12 "
                                "501@2.5=50 502@3=2:7FC00000 503@0=10:05 503@5=10:0F 503@5.5=10:00";
        return Flight::make(
            load({writeRecording(samples, "REC_8000.CAN")}),
            profileOf("<ThresholdList><Threshold name='U'>"
                      "<Value val='10' state='WARNING' color='#ffff00'/>"
                      "<Value val='20' state='LIMIT'/></Threshold>"
                      "<Threshold name='D'><Value val='10.5' state='WARNING'/><Value val='20'/>"
                      "</Threshold></ThresholdList><Device name='E'>"
                      "<Parameter name='up' id='500' dataType='FLOAT' startByte='4' unit='bar' "
                      "thresholdId='U'/>"
                      "<Parameter name='down' id='501' dataType='FLOAT' startByte='4' "
                      "thresholdId='D'/>"
                      "<Parameter name='bad' id='502' dataType='FLOAT' startByte='4' "
                      "thresholdId='U'/>"
                      "<Parameter name='level' id='503' dataType='UCHAR' startByte='4' unit='%' "
                      "factor='0.142857142857142857' thresholdId='U'/></Device>"));
    }

private Q_SLOTS:
    void rows()
    {
        const auto shown = flight();
        EventModel model(EventKind::Limits, "Limits");
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(model.rowCount() == 0 && model.rows().rowAt(3.0) == 0);
        model.setEvents(shown, &shown->events().limits);
        QStringList header;
        for (int column = 0; column < model.columnCount(); ++column) {
            header += model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        }
        QCOMPARE(header.join('|'), QString("Time|Limits|Severity|Until|Duration|Peak|Threshold"));
        QVERIFY(!model.headerData(7, Qt::Horizontal, Qt::DisplayRole).isValid());
        QVERIFY(model.headerData(0, Qt::Horizontal, Qt::FontRole).value<QFont>().bold());
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(rowOf(model, 0), QString("00:00:02.000|E up 15 bar||||||#e6e6e6|#ffff00|-|2000"));

        Progress progress;
        model.setEpisodes(std::make_shared<std::vector<Episode>>(shown->episodes(4.0, progress)));
        const QString expected[] = {
            "00:00:02.000|E up 15 bar|Limit|00:00:02.060|0.1 s|25.06 bar|\u2265 20"
            "|#e6e6e6|#ffff00|-|2000",
            "00:00:02.060|E up 25.06 bar|Limit|00:00:02.060|0.1 s|25.06 bar|\u2265 20"
            "|#e6e6e6|-|-|2060",
            "|Out of range without an event||||||#e6e6e6|-|-|",
            "00:00:05.000|E down in warning|Warning|00:00:06.500|1.5 s|12|< 20|#e6e6e6|-|-|5000",
            "00:00:07.000|E bad at its limit|Limit|00:00:07.000|0.0 s|||#e6e6e6|-|-|7000",
            "00:00:09.000|E level in warning|Warning|00:00:09.500|0.5 s|2.14285714286 %|\u2265 "
            "1.42857142857"
            "|#e6e6e6|#ffff00|-|9000"};
        QCOMPARE(model.rowCount(), 6);
        for (int row = 0; row < 6; ++row) {
            QCOMPARE(rowOf(model, row), expected[row]);
            const QModelIndex index = model.index(row, EventModel::TextColumn);
            const bool isHeading = row == 2; // which can't be picked
            QCOMPARE(index.flags().testFlag(Qt::ItemIsSelectable), !isHeading);
            QCOMPARE(index.data(Qt::FontRole).value<QFont>().bold(), isHeading);
        }
        QVERIFY(!model.placeOf(2, *shown, 4.0));
        const auto place = model.placeOf(1, *shown, 4.0); // in the graph the offset counts
        QVERIFY(place->parameter->name == "up" && std::fabs(place->start - 6.06) < 1e-6);
        QVERIFY(std::fabs(*place->peak - 6.06) < 1e-6 && !model.placeOf(4, *shown, 4.0)->peak);
        EventOrder order(model);
        order.setFilter("LEVEL", {});
        QCOMPARE(order.text(), QString("Time\tLimits\tSeverity\tUntil\tDuration\tPeak\tThreshold\n"
                                       "00:00:09.000\tE level in warning\tWarning\t00:00:09.500\t"
                                       "0.5 s\t2.14285714286 %\t\u2265 1.42857142857\n"));
        const auto timesOf = [&] {
            QStringList times;
            for (int row = 0; row < order.rowCount(); ++row) {
                times += order.index(row, 0).data().toString().mid(7);
            }
            return times.join(' ');
        };
        order.setFilter({}, {});
        QCOMPARE(timesOf(), QString("2.000 2.060  5.000 7.000 9.000"));
        QVERIFY(order.rowAt(2.06) == 1 && order.rowAt(99.0) == 1 && order.rowAt(0.0) == 0);
        order.setFilter({}, StateWarning);
        QCOMPARE(timesOf(), QString("5.000 9.000"));
        QCOMPARE(order.rowAt(99.0), -1); // no event is left
        order.setFilter({}, {});
        order.sort(EventModel::PeakColumn, Qt::DescendingOrder); // a value less comes last
        QCOMPARE(timesOf(), QString("2.000 2.060 5.000 9.000 7.000"));
        order.sort(EventModel::DurationColumn);
        QCOMPARE(timesOf(), QString("7.000 2.000 2.060 9.000 5.000"));
        order.sort(-1);
        QCOMPARE(timesOf(), QString("2.000 2.060  5.000 7.000 9.000"));
        const auto text = [&](int role) {
            return model.index(1, EventModel::TextColumn).data(role).toString();
        };
        QCOMPARE(text(Qt::ToolTipRole), QString("E up 25.0599994659 bar"));
        model.setAllDigits(true);
        QCOMPARE(text(Qt::DisplayRole), QString("E up 25.0599994659 bar"));
        model.setEvents(shown, &shown->events().limits); // without those of the last flight
        QCOMPARE(model.rowCount(), 2);
        model.setEvents(nullptr, nullptr);
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(EventModel(EventKind::Lamps, "Lamps").columnCount(), 5);
    }

    void summaryCounts()
    {
        const auto shown = flight();
        Progress progress;
        const FlightSummary found = summaryOf(*shown, 4.0, shown->troubles(4.0, progress));
        QCOMPARE(found.duration, 86401.5);
        // The one with an event is what to look at first, although another was earlier.
        QVERIFY(found.limits.times == 2 && found.limits.first == 6.0);
        QVERIFY(found.warnings.times == 2 && found.warnings.first == 5.0);
        QVERIFY(found.watched.parameters == 4 && found.watched.samples == 11);
        QVERIFY(found.lamps.times == 0 && found.faults.times == 0);
        const auto faulty =
            flightOf("900@1=5:00000000 900@2=5:00000007 900@3=5:00000001 900@4=5:00000002 "
                     "600@2=5:00000001 600@3=5:00000000 "
                     "600@4=5:00000001 600@5=5:00000002 600@99=5:00000002",
                     "<EnumList><Enum name='WarningLamp'/></EnumList><Device name='D'>"
                     "<Parameter name='L' id='600' dataType='BLONG' startByte='4' endBit='3' "
                     "enumId='WarningLamp'/><ErrorMatrix id='900' name='M'/>"
                     "<Parameter name='i' id='900' startBit='0' errorType='Info'/>"
                     "<Parameter name='w' id='900' startBit='1' errorType='Warning'/>"
                     "<Parameter name='f' id='900' startBit='2' errorType='Fault'/></Device>");
        const FlightSummary other = summaryOf(*faulty, 0.0, faulty->troubles(0.0, progress));
        QVERIFY(other.faults.times == 3 && other.faults.first == 2.0);
        QVERIFY(other.lamps.times == 4 && other.lamps.first == 2.0);
        EventModel lamps(EventKind::Lamps, "Lamps"); // a lamp that comes on again makes no event
        EventModel faults(EventKind::Faults, "Errors");
        const auto troubles = std::make_shared<Troubles>(faulty->troubles(0.0, progress));
        const auto listOf = [&](std::vector<Episode> Troubles::*list) {
            return std::shared_ptr<const std::vector<Episode>>(troubles, &(*troubles.*list));
        };
        lamps.setEvents(faulty, &faulty->events().warnings);
        lamps.setEpisodes(listOf(&Troubles::lamps));
        faults.setEpisodes(listOf(&Troubles::faults));
        const auto rowsOf = [](const EventModel& model) {
            QStringList rows;
            for (int row = 0; row < model.rowCount(); ++row) {
                QStringList cells;
                for (int column = 0; column < model.columnCount(); ++column) {
                    cells += model.index(row, column).data().toString().section(':', -1);
                }
                rows += cells.join('|');
            }
            return rows.join(' ');
        };
        QCOMPARE(rowsOf(lamps), QString("02.000| Invalid ENUM Value |Caution|03.000|1.0 s 05.000| "
                                        "Invalid ENUM Value |Warning|"
                                        "05.000|0.0 s |On without an event||| "
                                        "04.000|D L on|Caution|05.000|1.0 s "
                                        "39.000|D L on|Warning|39.000|0.0 s"));
        QCOMPARE(rowsOf(faults),
                 QString("02.000|i|Information|04.000|2.0 s 02.000|w|Warning|03.000|"
                         "1.0 s 02.000|f|Fault|03.000|1.0 s "
                         "04.000|w|Warning|04.000|0.0 s"));
        QVERIFY(faults.rows().rowAt(3.0) == 2 && faults.rows().rowAt(99.0) == 3);
        QVERIFY(other.limits.times == 0 && other.watched.parameters == 0);

        // Those of a reference stand between them, on their clock; 3.5 s have the offset.
        const Episode& error = troubles->faults[1];
        faults.setReference(troubles, {{&error, 2.5, 0.5}, {&error, 99.0, 0.0}});
        QCOMPARE(rowsOf(faults).count("|Information|"), 1);
        QCOMPARE(faults.rowCount(), 6);
        QCOMPARE(faults.index(4, 0).data().toString(), QString("00:00:04.000"));
        QCOMPARE(faults.index(4, 3).data().toString(), QString("00:00:05.000"));
        QVERIFY(faults.rows().isOfReference(4) != faults.rows().isOfReference(3));
        QVERIFY(faults.rows().isOfReference(5) && faults.rows().rowAt(99.0) < 5);
        const int row = faults.rows().isOfReference(4) ? 4 : 3;
        QCOMPARE(faults.placeOf(row, *faulty, 0.0)->start, 4.5);
        QCOMPARE(faults.index(row, 1).data(Qt::ForegroundRole).value<QColor>(), QColor(Qt::gray));
        EventOrder order(faults);
        QCOMPARE(order.rowAt(99.0), faults.rows().rowAt(99.0));
        faults.setReference(nullptr, {});
        QCOMPARE(faults.rowCount(), 4);
    }

    void rowOfATime()
    {
        auto events = std::make_shared<std::vector<RecordEvent>>();
        for (const int tenths : {10, 25, 25, 300}) {
            events->emplace_back().tenths = tenths;
        }
        EventModel model(EventKind::Lamps, "Lamps");
        model.setEvents(events, events.get());
        const std::pair<double, int> times[] = {{-9, 0},   {0.5, 0},   {2.44, 0}, {2.45, 2},
                                                {29.9, 2}, {29.96, 3}, {1e300, 3}};
        for (const auto& [time, row] : times) {
            QCOMPARE(model.rows().rowAt(time), row);
        }
    }
};

QTEST_GUILESS_MAIN(TestEventModel)
#include "tst_event_model.moc"
