#include "support/FlightTest.h"

#include <cmath>

using namespace TARN;

namespace {

/// "1+ 3- 4-": times and states.
QString text(const std::vector<FaultPoint>& points)
{
    QStringList list;
    for (const FaultPoint& point : points) {
        list +=
            QString::number(static_cast<double>(point.time), 'g', 9) + (point.state ? "+" : "-");
    }
    return list.join(' ');
}

} // namespace

class TestFaultHistory : public FlightTest
{
    Q_OBJECT

    std::shared_ptr<const Flight> flightOf(const QString& messages) const
    {
        return FlightTest::flightOf(messages,
                                    "<Device name='D'><ErrorMatrix id='900' name='M'/>"
                                    "<Parameter id='900' startBit='0' errorType='Info'/>"
                                    "<Parameter id='900' startBit='1' errorType='Warning'/>"
                                    "<Parameter id='900' startBit='2' errorType='Warning'/>"
                                    "<Parameter id='900' startBit='31' errorType='Fault'/>"
                                    "<Parameter id='900' startBit='5'/>"
                                    "<Parameter id='900' startBit='6' errorType='FAULT'/>"
                                    "</Device>");
    }

private Q_SLOTS:
    void timelines_data()
    {
        QTest::addColumn<QString>("messages");
        QTest::addColumn<QString>("info");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("changes"); // of information and warnings
        const auto row = [](const char* name, const char* messages, const char* info,
                            const char* warning, const char* fault, const char* changes) {
            QTest::addRow("%s", name) << QString(messages) << QString(info) << QString(warning)
                                      << QString(fault) << QString(changes);
        };
        row("no message of it", "901@1=5:00000001 900/1@2=5:00000001", "", "", "", "");
        row("one message", "900@1=5:80000001", "1+ 1+", "1- 1-", "1+ 1+", "");
        row("one kind after another",
            "900@1=5:00000001 900@2=5:00000002 900@3=5:00000003 900@4=5:80000000", "1+ 2- 3+ 4- 4-",
            "1- 2+ 4- 4-", "1- 4+ 4+", "2+2-1 3+1-0 4+0-3");
        row("one warning takes over from the other",
            "900@1=5:00000000 900@2=5:00000002 900@3=5:00000006 900@4=5:00000004 "
            "900@5=5:00000000",
            "1- 5-", "1- 2+ 5- 5-", "1- 5-", "2+2-0 3+4-0 4+0-2 5+0-4");
        row("bits of no type, or of no parameter",
            "900@1=5:00000060 900@2=5:00FFFF00 900@3=5:7FFFFFF8", "1- 3-", "1- 3-", "1- 3-", "");
        row("falling times stay in file order",
            "900@3=5:00000001 900@1=5:00000000 900@2=5:00000001", "3+ 1- 2+ 2+", "3- 2-", "3- 2-",
            "1+0-1 2+1-0");
    }

    void timelines()
    {
        QFETCH(const QString, messages);
        const auto flight = flightOf(messages);
        const FaultHistory& history = flight->faults().at(0);
        QCOMPARE(history.isKnown(), !history.points(ErrorInfo).empty());
        QTEST(text(history.points(ErrorInfo)), "info");
        QTEST(text(history.points(ErrorWarning)), "warning");
        QTEST(text(history.points(ErrorFault)), "fault");
        QCOMPARE(history.bitsOfType(ErrorInfo) | history.bitsOfType(ErrorWarning), 7U);
        QStringList changes;
        for (const FaultChange& change : history.changes(7)) {
            changes += QString("%1+%2-%3").arg(change.time).arg(change.came).arg(change.went);
        }
        QTEST(changes.join(' '), "changes");
    }

    void runs()
    {
        const auto flight = flightOf("900@1=5:00000000 900@3=5:80000003 900@2=5:80010003 "
                                     "900@5=5:00000001 900@6=5:00000001");
        QStringList found; // a bit without a parameter, and a time that falls, make none
        for (const FaultRun& run : flight->faults().at(0).runs()) {
            found += QString("%1-%2:%3").arg(run.start).arg(run.stop).arg(run.bits, 0, 16);
        }
        QCOMPARE(found, QStringList({"1-3:0", "3-5:80000003", "5-6:1"}));
        const FaultHistory& history = flight->faults().at(0);
        const int types[] = {history.worstOf(0), history.worstOf(32), history.worstOf(1),
                             history.worstOf(5), history.worstOf(0x80000005)};
        QVERIFY(std::ranges::equal(
            types, std::array<int, 5>{ErrorNone, ErrorNone, ErrorInfo, ErrorWarning, ErrorFault}));
    }

    void pixelsAndColors()
    {
        // Changes at pixels 100 and 104 of a timeline of 10 pixels a second; no error at 300.
        const auto flight = flightOf("900@10=5:00000000 900@20=5:00000001 900@20.4=5:80000001 "
                                     "900@40=5:80000021 900@110=5:80000021");
        const FaultHistory& history = flight->faults().at(0);
        const std::pair<int, double> pixels[] = {{96, 0},     {97, 20}, {102, 20}, {103, 20.4},
                                                 {107, 20.4}, {108, 0}, {300, 0}};
        for (const auto& [x, time] : pixels) {
            QCOMPARE(history.changeNear(x, 10, 110, 1000).value_or(0), time);
        }
        QCOMPARE(FaultHistory::timelineX(60, 10, 110, 1000), 500);
        QCOMPARE(FaultHistory::timelineX(60, 60, 60, 1000), 0); // where all is one moment
        QVERIFY(history.changeNear(0, 10, 10, 1000).has_value());
        QVERIFY(errorColor(ErrorInfo) == QColor(150, 150, 255));
        QVERIFY(errorColor(ErrorNone) == Qt::white && !errorColor(4).isValid());
    }

    void bitsAsAPlainScanSeesThem()
    {
        std::mt19937 random(5);
        for (int round = 0; round < 100; ++round) {
            QString messages;
            for (int count = pick(random, 30); count > 0; --count) {
                const QString word = QString::number(0x100000000ULL + random(), 16).mid(1);
                const double time = round % 2 == 0 ? pick(random, 200) * 0.01 : count * -0.03 + 1.0;
                messages += QString("900@%1=5:%2 ").arg(time).arg(word);
            }
            const auto flight = flightOf(messages);
            for (double time = -0.02; time < 2.02; time += 0.005) {
                const RecordEntry* shown = nullptr;
                const RecordEntry* before = nullptr;
                for (std::size_t i = 0; i < flight->samples().count() && !shown; ++i) {
                    const RecordEntry& entry = flight->samples().inFileOrder(i);
                    if (entry.time() > time + 0.01) {
                        shown = before != nullptr ? before : &entry;
                    }
                    before = &entry;
                }
                std::uint32_t bits = 0;
                for (int i = 4; shown != nullptr && i < 8; ++i) {
                    bits = bits << 8 | shown->data[i];
                }
                QCOMPARE(flight->faults().at(0).bitsAt(time), bits);
            }
            QCOMPARE(flight->faults().at(0).bitsAt(1e300), 0U);
            QCOMPARE(flight->faults().at(0).bitsAt(std::nan("")), 0U);
        }
    }
};

QTEST_APPLESS_MAIN(TestFaultHistory)
#include "tst_fault_history.moc"
