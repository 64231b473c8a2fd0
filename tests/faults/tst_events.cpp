#include "export/RecordTest.h"
#include "faults/EventDetector.h"

using namespace TARN;

namespace {

/// Times of the events, which are whole seconds below 10 here.
template <typename Event>
QString timesOf(const std::vector<Event>& events)
{
    QString times;
    for (const Event& event : events) {
        times += QString::number(event.time);
    }
    return times;
}

template <typename Event>
QStringList described(const std::vector<Event>& events)
{
    QStringList list;
    for (const Event& event : events) {
        list += QString("%1|%2|%3|%4|%5|%6")
                    .arg(event.time)
                    .arg(QString::fromStdString(event.name), QString::fromStdString(event.value),
                         event.text, event.color.isValid() ? event.color.name() : "none")
                    .arg(event.tenths);
    }
    return list;
}

const QByteArray Thresholds =
    "<ThresholdList><Threshold name='T'><Value val='10' state='WARNING' color='#ffff00'/>"
    "<Value val='20' state='LIMIT'/></Threshold></ThresholdList>";

} // namespace

class TestEvents : public RecordTest
{
    Q_OBJECT

private Q_SLOTS:
    void limits_data()
    {
        QTest::addColumn<QString>("states"); // one sample a second
        QTest::addColumn<QString>("events"); // the seconds that make one
        const auto row = [](const char* name, const char* states, const char* events) {
            QTest::addRow("%s", name) << QString(states) << QString(events);
        };
        row("no samples", "", "");
        row("rises step by step", "012102", "125");
        row("jumps to the limit", "0020", "2");
        row("comes back", "0201010", "135");
        row("wavers between warning and limit", "012121", "124");
        row("in warning from the start", "1111", "");
        row("in warning from the start, then ok", "1101", "3");
        row("warning then limit at the start", "122", "1");
        row("at the limit from the start", "2221", "");
        row("at the limit from the start, wavers", "212", "2");
    }

    void limits()
    {
        QFETCH(const QString, states);
        QString samples;
        for (qsizetype i = 0; i < states.size(); ++i) {
            samples += QString("500@%1=%2 ").arg(i).arg(5 + 10 * states[i].digitValue());
        }
        const Profile& profile =
            useProfile(Thresholds + "<Device name='D'><Parameter name='P' id='500' "
                                    "dataType='FLOAT' startByte='4' thresholdId='T'/></Device>");
        Record& record = load(samples);
        detectEvents(record, profile);
        detectEvents(record, profile); // replaces what it found before
        QTEST(timesOf(record.recordData().limits), "events");
        QVERIFY(record.recordData().warnings.empty());
    }

    void lamps_data()
    {
        QTest::addColumn<QString>("values"); // one sample a second
        QTest::addColumn<QString>("events");
        QTest::addColumn<QByteArray>("enumeration");
        const auto row = [](const char* values, const char* events,
                            const char* enumeration = "WarningLamp") {
            QTest::addRow("%s %s", values, enumeration)
                << QString(values) << QString(events) << QByteArray(enumeration);
        };
        row("0", "");
        row("101", "0");
        row("12", "01");
        row("1021", "023");
        row("011022033", "147");
        row("101", "", "warningLamp");
        row("101", "", "WarningLamps");
        row("101", "", "");
    }

    void lamps()
    {
        QFETCH(const QString, values);
        QFETCH(const QByteArray, enumeration);
        QString samples;
        for (qsizetype i = 0; i < values.size(); ++i) {
            samples += QString("501/1@%1=5:0000000%2 ").arg(i).arg(values[i]);
        }
        const Profile& profile = useProfile(
            "<EnumList><Enum name='" + enumeration + "'/></EnumList><Device name='D'>" +
            "<Parameter name='P' id='501' channel='1' dataType='BLONG' startByte='4' endBit='31' "
            "enumId='" +
            enumeration + "'/></Device>");
        Record& record = load(samples);
        detectEvents(record, profile);
        QTEST(timesOf(record.recordData().warnings), "events");
    }

    void textsColoursAndTenths()
    {
        const Profile& profile = useProfile(
            "<EnumList><Enum name='WarningLamp'><Value val='1' label='on'/></Enum></EnumList>" +
            Thresholds +
            "<Device name='Engine 1'>"
            "<Parameter name='Öl' id='500' dataType='FLOAT' startByte='4' unit='°C' factor='2' "
            "thresholdId='T'/>"
            "<Parameter name='Bare' id='501' dataType='FLOAT' startByte='4' thresholdId='T'/>"
            "<Parameter name='Lamp' id='502' dataType='BLONG' startByte='4' endBit='3' "
            "enumId='WarningLamp'/>"
            "<Parameter name='Level' id='503' dataType='USHORT' startByte='4' unit='%' "
            "enumId='WarningLamp' thresholdId='T'/></Device>");
        Record& record = load("500@0=5 500@0.5=12.5 500@0.0499=5 500@12.36=25 "
                              "501@0=0 501@0.049=10 501@0.06=20 "
                              "502@1=5:00000001 502@2=5:00000002 502@3=5:00000003 "
                              "503@4=7:0001 503@5=7:000B 503@6=7:0014");
        detectEvents(record, profile);
        const QStringList limits = {
            "0.049|Engine 1 Bare|10 |Engine 1 Bare 10 |#ffff00|0",
            "0.06|Engine 1 Bare|20 |Engine 1 Bare 20 |none|1",
            "0.5|Engine 1 Öl|25 °C|Engine 1 Öl 25 °C|#ffff00|5",
            "12.36|Engine 1 Öl|50 °C|Engine 1 Öl 50 °C|none|124",
        };
        QCOMPARE(described(record.recordData().limits), limits);
        const QStringList lamps = {
            "1|Engine 1 Lamp|1: on |Engine 1 Lamp 1: on |#ff9664|10",
            "2|Engine 1 Lamp|2: Invalid ENUM Value |Engine 1 Lamp 2: Invalid ENUM Value |#ff6464"
            "|20",
            "3|Engine 1 Lamp|3: Invalid ENUM Value |Engine 1 Lamp 3: Invalid ENUM Value |#ffffff"
            "|30",
            "4|Engine 1 Level|1 %|Engine 1 Level 1 %|#ff9664|40",
            "5|Engine 1 Level|11 %|Engine 1 Level 11 %|#ffff00|50",
            "6|Engine 1 Level|20 %|Engine 1 Level 20 %|none|60",
        };
        QCOMPARE(described(record.recordData().warnings), lamps);
    }

    void equalTimesKeepTheProfilesOrder()
    {
        const QByteArray parameter = "dataType='FLOAT' startByte='4' thresholdId='T'/>";
        const Profile& profile =
            useProfile(Thresholds + "<Device name='Z'><Parameter name='b' id='502' " + parameter +
                       "<Parameter name='a' id='501' " + parameter +
                       "</Device><Device name='A'><Parameter name='a' id='500' channel='1' " +
                       parameter + "<Parameter name='twin' id='501' " + parameter + "</Device>");
        Record& record = load("500/1@0=0 501@0=0 502@0=0 500/1@1.96=15 501@2=15 502@2=15 "
                              "501@2=25 502@3=0 502@1=15");
        detectEvents(record, profile);
        QStringList order;
        for (const RecordLimit& event : record.recordData().limits) {
            order += QString("%1 %2").arg(event.time).arg(QString::fromStdString(event.name));
        }
        const QStringList expected = {"1 Z b", "1.96 A a", "2 Z b",   "2 Z a",
                                      "2 Z a", "2 A twin", "2 A twin"};
        QCOMPARE(order, expected);
    }
};

QTEST_APPLESS_MAIN(TestEvents)
#include "tst_events.moc"
