#include "export/RecordTest.h"
#include "faults/FaultHistory.h"

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

class TestFaultHistory : public RecordTest
{
    Q_OBJECT

    const FaultMatrix& matrix() const
    {
        const auto bit = [](int number, const char* type) {
            return QString("<Parameter name='bit%1' id='900' startBit='%1' errorType='%2'/>")
                .arg(number)
                .arg(type)
                .toLatin1();
        };
        return useProfile("<Device name='D'><ErrorMatrix id='900' name='M'/>" + bit(0, "Info") +
                          bit(1, "Warning") + bit(2, "Warning") + bit(31, "Fault") + bit(5, "") +
                          bit(6, "FAULT") + "</Device>")
            .data()
            .faultMatrices.at(0);
    }

private Q_SLOTS:
    void bitsAt_data()
    {
        QTest::addColumn<QString>("messages");
        QTest::addColumn<double>("time");
        QTest::addColumn<unsigned>("bits");
        const QString three = "900@1=5:00000001 900@2=5:80000002 900@3=5:00000004";
        QTest::newRow("no message") << "901@1=5:00000001 900/1@1=5:00000001" << 1.0 << 0U;
        QTest::newRow("before the first") << three << -5.0 << 1U;
        QTest::newRow("at the first") << three << 1.0 << 1U;
        QTest::newRow("between") << three << 1.98 << 1U;
        QTest::newRow("within the tolerance") << three << 1.995 << 0x80000002U;
        QTest::newRow("at the second") << three << 2.0 << 0x80000002U;
        QTest::newRow("still before the last") << three << 2.98 << 0x80000002U;
        QTest::newRow("the last within the tolerance") << three << 2.995 << 0U;
        QTest::newRow("at the last") << three << 3.0 << 0U;
        QTest::newRow("long after") << three << 1e300 << 0U;
        QTest::newRow("no time") << three << std::nan("") << 0U;
        QTest::newRow("one message, before it") << "900@1=5:FFFFFFFF" << 0.98 << 0xFFFFFFFFU;
        QTest::newRow("one message, at it") << "900@1=5:FFFFFFFF" << 1.0 << 0U;
        QTest::newRow("whatever its type") << "900@1=2:0A0B0C0D 900@2=0" << 1.5 << 0x0A0B0C0DU;
    }

    void bitsAt()
    {
        QFETCH(const QString, messages);
        QFETCH(const double, time);
        const FaultHistory history(load(messages).recordData(), matrix());
        QTEST(history.bitsAt(time), "bits");
    }

    void timelines_data()
    {
        QTest::addColumn<QString>("messages");
        QTest::addColumn<QString>("info");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QString>("fault");
        QTest::newRow("no message") << ""
                                    << ""
                                    << ""
                                    << "";
        QTest::newRow("one message") << "900@1=5:80000000"
                                     << "1- 1-"
                                     << "1- 1-"
                                     << "1+ 1+";
        QTest::newRow("one kind after another")
            << "900@1=5:00000001 900@2=5:00000002 900@3=5:00000003 900@4=5:80000000"
            << "1+ 2- 3+ 4- 4-"
            << "1- 2+ 4- 4-"
            << "1- 4+ 4+";
        QTest::newRow("one warning takes over from the other")
            << "900@1=5:00000000 900@2=5:00000002 900@3=5:00000006 900@4=5:00000004 "
               "900@5=5:00000000"
            << "1- 5-"
            << "1- 2+ 5- 5-"
            << "1- 5-";
        QTest::newRow("bits of no type, or of no parameter")
            << "900@1=5:00000060 900@2=5:00FFFF00 900@3=5:7FFFFFF8"
            << "1- 3-"
            << "1- 3-"
            << "1- 3-";
        QTest::newRow("falling times stay in file order")
            << "900@3=5:00000001 900@1=5:00000000 900@2=5:00000001"
            << "3+ 1- 2+ 2+"
            << "3- 2-"
            << "3- 2-";
    }

    void timelines()
    {
        QFETCH(const QString, messages);
        const FaultHistory history(load(messages).recordData(), matrix());
        QTEST(text(history.info()), "info");
        QTEST(text(history.warning()), "warning");
        QTEST(text(history.fault()), "fault");
    }

    void fallingTimesAsAPlainScanSeesThem()
    {
        const FaultMatrix& faults = matrix();
        std::mt19937 random(5);
        for (int round = 0; round < 100; ++round) {
            RecordingBuilder file;
            for (int count = pick(random, 30); count > 0; --count) {
                const QByteArray word = QByteArray::number(0x100000000ULL + random(), 16).mid(1);
                file.add({900, ticks(pick(random, 200) * 0.01), "00050000" + word});
            }
            Record& record = loadFiles({write("a.CAN", file.bytes())});
            const FaultHistory history(record.recordData(), faults);
            for (double time = -0.02; time < 2.02; time += 0.005) {
                const RecordEntry* shown = nullptr;
                const RecordEntry* before = nullptr;
                for (std::size_t i = 0; i < record.recordData().count() && !shown; ++i) {
                    const RecordEntry& entry = record.recordData().inFileOrder(i);
                    if (entry.time() > time + 0.01) {
                        shown = before != nullptr ? before : &entry;
                    }
                    before = &entry;
                }
                std::uint32_t bits = 0;
                for (int i = 4; shown != nullptr && i < 8; ++i) {
                    bits = bits << 8 | shown->data[i];
                }
                QCOMPARE(history.bitsAt(time), bits);
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestFaultHistory)
#include "tst_fault_history.moc"
