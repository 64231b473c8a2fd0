#include "events/EventModel.h"
#include "events/FlightSummary.h"
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
        EventModel model("Limits", true);
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QVERIFY(model.rowCount() == 0 && model.rowAt(3.0) == 0);
        model.setEvents(shown, &shown->events().limits);
        QStringList header;
        for (int column = 0; column < model.columnCount(); ++column) {
            header += model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        }
        QCOMPARE(header.join('|'), QString("Time|Limits|Until|Duration|Peak|Threshold"));
        QVERIFY(!model.headerData(6, Qt::Horizontal, Qt::DisplayRole).isValid());
        QVERIFY(model.headerData(0, Qt::Horizontal, Qt::FontRole).value<QFont>().bold());
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(rowOf(model, 0), QString("00:00:02.000|E up 15 bar|||||#e6e6e6|#ffff00|-|2000"));

        Progress progress;
        model.setEpisodes(std::make_shared<std::vector<Episode>>(shown->episodes(4.0, progress)));
        const QString expected[] = {
            "00:00:02.000|E up 15 bar|00:00:02.060|0.1 s|25.06 bar|\u2265 20"
            "|#e6e6e6|#ffff00|-|2000",
            "00:00:02.060|E up 25.06 bar|00:00:02.060|0.1 s|25.06 bar|\u2265 20"
            "|#e6e6e6|-|-|2060",
            "|Out of range without an event|||||#e6e6e6|-|-|",
            "00:00:05.000|E down in warning|00:00:06.500|1.5 s|12|< 20|#e6e6e6|-|-|5000",
            "00:00:07.000|E bad at its limit|00:00:07.000|0.0 s|||#e6e6e6|-|-|7000",
            "00:00:09.000|E level in warning|00:00:09.500|0.5 s|2.14285714286 %|\u2265 "
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
        QCOMPARE(model.textOf({5}), QString("Time\tLimits\tUntil\tDuration\tPeak\tThreshold\n"
                                            "00:00:09.000\tE level in warning\t00:00:09.500\t"
                                            "0.5 s\t2.14285714286 %\t\u2265 1.42857142857\n"));
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
        QCOMPARE(EventModel("Lamps", false).columnCount(), 2);
    }

    void summaryCounts()
    {
        const auto shown = flight();
        Progress progress;
        const FlightSummary found = summaryOf(*shown, 4.0, shown->episodes(4.0, progress));
        QCOMPARE(found.duration, 86401.5);
        // The one with an event is what to look at first, although another was earlier.
        QVERIFY(found.limits.times == 2 && found.limits.first == 6.0);
        QVERIFY(found.warnings.times == 2 && found.warnings.first == 5.0);
        QVERIFY(found.watched.parameters == 4 && found.watched.samples == 11);
        QVERIFY(found.lamps.times == 0 && found.faults.times == 0);
        const auto faulty = flightOf(
            "900@1=5:00000000 900@2=5:00000007 900@3=5:00000001 900@4=5:00000002 600@2=5:00000001",
            "<EnumList><Enum name='WarningLamp'/></EnumList><Device name='D'>"
            "<Parameter name='L' id='600' dataType='BLONG' startByte='4' endBit='3' "
            "enumId='WarningLamp'/><ErrorMatrix id='900' name='M'/>"
            "<Parameter name='i' id='900' startBit='0' errorType='Info'/>"
            "<Parameter name='w' id='900' startBit='1' errorType='Warning'/>"
            "<Parameter name='f' id='900' startBit='2' errorType='Fault'/></Device>");
        const FlightSummary other = summaryOf(*faulty, 0.0, {});
        QVERIFY(other.faults.times == 3 && other.faults.first == 2.0);
        QVERIFY(other.lamps.times == 1 && other.lamps.first == 2.0);
        QVERIFY(other.limits.times == 0 && other.watched.parameters == 0);
    }

    void rowOfATime()
    {
        auto events = std::make_shared<std::vector<RecordEvent>>();
        for (const int tenths : {10, 25, 25, 300}) {
            events->emplace_back().tenths = tenths;
        }
        EventModel model("Lamps", false);
        model.setEvents(events, events.get());
        const std::pair<double, int> times[] = {{-9, 0},   {0.5, 0},   {2.44, 0}, {2.45, 2},
                                                {29.9, 2}, {29.96, 3}, {1e300, 3}};
        for (const auto& [time, row] : times) {
            QCOMPARE(model.rowAt(time), row);
        }
    }
};

QTEST_GUILESS_MAIN(TestEventModel)
#include "tst_event_model.moc"
