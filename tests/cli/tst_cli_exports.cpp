#include "export/RecordTest.h"
#include "support/CommandRun.h"

using namespace TARN;

namespace {

struct Run
{
    int status;
    QByteArray out;
    QByteArray error;
};

Run run(const QStringList& arguments)
{
    const CommandRun done = runCommand(arguments);
    return {done.status, QByteArray::fromStdString(done.out),
            QByteArray::fromStdString(done.error)};
}

} // namespace

class TestCliExports : public RecordTest
{
    Q_OBJECT

    /// Runs a command line in which P is a profile, R a recording and T/ the test's folder.
    Run runLine(const QString& line) const
    {
        const QString profile = write(
            "profile.xml",
            "<CanAerospaceProfile><EnumList><Enum name='WarningLamp'><Value val='1' label='on'/>"
            "</Enum></EnumList><ThresholdList><Threshold name='T'>"
            "<Value val='10' state='WARNING' color='#FFFF00'/><Value val='20' state='LIMIT'/>"
            "</Threshold></ThresholdList><Device name='ECU'><ErrorMatrix id='900' name='Faults'/>"
            "<ErrorMatrix id='901' name='Silent'/>"
            "<Parameter name='Oil' id='500' dataType='FLOAT' startByte='4' unit='bar' "
            "thresholdId='T'/>"
            "<Parameter name='Lamp' id='501' channel='1' dataType='BLONG' startByte='4' "
            "endBit='3' enumId='WarningLamp'/>"
            "<Parameter name='E1' id='900' startBit='1' errorType='Warning'/>"
            "<Parameter name='E31' id='900' startBit='31' errorType='Fault'/></Device>"
            "<Device name='NAV'><Parameter name='Lat' id='1036' dataType='FLOAT' startByte='4' "
            "kmlId='Latitude'/></Device></CanAerospaceProfile>");
        RecordingBuilder file;
        add(file, "1036@0.5=48.5 500@1=5 500@2.25=12 900@1=5:00000000 900@2=5:80000002 "
                  "900@3=5:80000000 501/1@3.125=5:00000001 500@3=20 1036@3.25=48.25");
        const QString recording = write("one.CAN", file.bytes());
        QStringList list;
        for (const QString& argument : line.split(' ', Qt::SkipEmptyParts)) {
            list += argument == "P"             ? profile
                    : argument == "R"           ? recording
                    : argument.startsWith("T/") ? path(argument.mid(2))
                                                : argument;
        }
        return run(list);
    }

private Q_SLOTS:
    void events()
    {
        const Run result = runLine("events --profile P R");
        QCOMPARE(result.error, "");
        QCOMPARE(result.status, 0);
        QCOMPARE(result.out,
                 quoted("{'kind':'limit','time':2.25,'name':'ECU Oil','value':'12 bar',"
                        "'text':'ECU Oil 12 bar','color':'#ffff00','tenths':23}\n"
                        "{'kind':'limit','time':3.0,'name':'ECU Oil','value':'20 bar',"
                        "'text':'ECU Oil 20 bar','color':null,'tenths':30}\n"
                        "{'kind':'warning','time':3.125,'name':'ECU Lamp','value':'1: on ',"
                        "'text':'ECU Lamp 1: on ','color':'#ff9664','tenths':31}\n"));
    }

    void faults_data()
    {
        QTest::addColumn<QString>("time");
        QTest::addColumn<QByteArray>("bits");
        QTest::newRow("at the recording's start") << "" << QByteArray("[]");
        QTest::newRow("at a time") << "--time 2.5" << QByteArray("[1,31]");
        QTest::newRow("after the last message") << "--time 99" << QByteArray("[]");
    }

    void faults()
    {
        QFETCH(const QString, time);
        QFETCH(const QByteArray, bits);
        const Run result = runLine("faults --profile P " + time + " R");
        QCOMPARE(result.status, 0);
        QCOMPARE(result.out,
                 quoted("{'id':900,'name':'Faults','info':[[1.0,false],[3.0,false]],"
                        "'warning':[[1.0,false],[2.0,true],[3.0,false],[3.0,false]],"
                        "'fault':[[1.0,false],[2.0,true],[3.0,true]],'bits':" +
                        bits +
                        "}\n{'id':901,'name':'Silent','info':[],'warning':[],'fault':[],"
                        "'bits':[]}\n"));
    }

    void csv_data()
    {
        QTest::addColumn<QString>("options");
        QTest::addColumn<QByteArray>("head"); // what the table begins with
        QTest::addColumn<int>("rows");
        QTest::newRow("the whole recording")
            << "" << QByteArray("Time;Oil;Lamp;E1;E31;Lat\n0:00:00.000;;;;;48.5\n") << 29;
        QTest::newRow("a range, one parameter")
            << "--parameter ECU/Oil --start 2.25 --stop 3"
            << QByteArray("Time;Oil\n0:00:00.100;12\n0:00:00.200;12\n") << 8;
        QTest::newRow("tabs, 10 ms") << "--separator tab --resolution 10 --stop 1 --parameter "
                                        "NAV/Lat --parameter ECU/Oil"
                                     << QByteArray("Time\tOil\tLat\n0:00:00.000\t\t48.5\n"
                                                   "0:00:00.010\t\t48.5\n")
                                     << 51;
        QTest::newRow("commas, 1 ms")
            << "--separator , --resolution 1 --start 3 --stop 3.002 --parameter ECU/Oil"
            << QByteArray("Time,Oil\n0:00:00.000,20\n0:00:00.001,20\n0:00:00.002,20\n") << 3;
    }

    void csv()
    {
        QFETCH(const QString, options);
        QFETCH(const QByteArray, head);
        QFETCH(const int, rows);
        const Run result = runLine("csv --profile P " + options + " -o T/out.csv R");
        QCOMPARE(result.error, "");
        QCOMPARE(result.status, 0);
        QCOMPARE(result.out, "");
        QCOMPARE(read("out.csv").left(head.size()), head);
        QCOMPARE(read("out.csv").count('\n'), 1 + rows);
    }

    void kml()
    {
        // Positions lie in the slots 0 and 3 of a second; events in between don't show.
        const auto document = [this](const QString& options) {
            const Run result =
                runLine("kml --profile P -o T/out.kml --timestamp 1000 R " + options);
            return result.status == 0 && result.out.isEmpty() && result.error.isEmpty()
                       ? read("out.kml").simplified().replace("> <", "><")
                       : "failed: " + result.error;
        };
        const QByteArray position =
            "<coordinates>-1000.00000000,48.50000000,-1000.0 -1000.00000000,48.25000000,-1000.0 <";
        const QByteArray plain = document("");
        for (const QByteArray& part :
             {QByteArray("<IconStyle><color>ff00ccff<"), QByteArray("<IconStyle><color>ff0000ff<"),
              QByteArray("<LineStyle><color>ff0000ff</color><width>1<"),
              QByteArray("<PolyStyle><color>64ff0000<"), QByteArray("<extrude>1<"), position,
              QByteArray(">&lt;b>Lat&lt;/b></displayName><value>48.25<"),
              QByteArray(">&lt;b>ECU Oil&lt;/b></displayName><value>20 bar<")}) {
            QVERIFY2(plain.contains(part), part + " in " + plain);
        }
        const QByteArray other = document(
            "--line-width 4 --line-color 010203 --line-alpha 16 --polygon-color 040506 "
            "--polygon-alpha 0 --placemark-color 070809 --error-color 0A0b0C --no-polygon "
            "--no-limits --placemark-interval 3 --start 1 --stop 3.25 --parameter ECU/Oil");
        for (const QByteArray& part :
             {QByteArray("<LineStyle><color>10030201</color><width>4<"),
              QByteArray("<PolyStyle><color>00060504<"), QByteArray("<IconStyle><color>ff090807<"),
              QByteArray("<IconStyle><color>ff0c0b0a<"), QByteArray("<extrude>0<"),
              QByteArray("<coordinates>-1000.00000000,48.25000000,-1000.0 <"),
              QByteArray("<name>00:00:03</name><styleUrl>normalPlacemark<")}) {
            QVERIFY2(other.contains(part), part + " in " + other);
        }
        QCOMPARE(other.count("<styleUrl>"), 2); // a place mark and a lamp
        QVERIFY(!document("--no-placemarks --no-errors").contains("<styleUrl>"));
        const QByteArray limitsOnly = document("--no-placemarks --no-warnings");
        QVERIFY(limitsOnly.contains(">20 bar<") && !limitsOnly.contains(">1: on <"));
        const QByteArray warningsOnly = document("--no-placemarks --no-limits");
        QVERIFY(warningsOnly.contains(">1: on <") && !warningsOnly.contains(">20 bar<"));
    }

    void can()
    {
        const Run result = runLine("can --start 1 --stop 2.5 -o T/out.CAN R");
        QCOMPARE(result.error, "");
        QCOMPARE(result.status, 0);
        Record excerpt;
        QVERIFY(excerpt.readRecordData({path("out.CAN")}));
        QCOMPARE(excerpt.recordData().count(), 4U);
        QCOMPARE(qRound(excerpt.recordInfo().stopTime * 1e6), 1250000);
        QCOMPARE(runLine("can -o T/all.CAN R").status, 0);
        QVERIFY(excerpt.readRecordData({path("all.CAN")}));
        QCOMPARE(excerpt.recordData().count(), 9U);
    }

    void failures_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("message");
        const auto row = [](const char* line, int status, const char* message) {
            QTest::addRow("%s", line) << QString(line) << status << QByteArray(message);
        };
        row("events R", 2, "--profile");
        row("faults --profile P --time noon R", 2, "--time");
        row("csv --profile P R", 2, "--out");
        row("csv --profile P --resolution 50 -o T/out R", 2, "--resolution");
        row("csv --profile P --separator : -o T/out R", 2, "--separator");
        row("csv --profile P --start early -o T/out R", 2, "--start");
        row("csv --profile P --all --parameter ECU/Oil -o T/out R", 2, "excludes");
        row("kml --profile P --line-color red -o T/out R", 2, "--line-color");
        row("kml --profile P --timestamp 0 -o T/out R", 2, "--timestamp");
        row("kml --profile P --placemark-interval 0 -o T/out R", 2, "--placemark-interval");
        row("kml --profile P --line-alpha 256 -o T/out R", 2, "--line-alpha");
        row("can --profile P -o T/out R", 2, "--profile");
        row("events --profile gone.xml R", 1, "\"gone.xml\"");
        row("faults --profile P gone.CAN", 1, "recording");
        row("csv --profile P --parameter ECU/Fuel -o T/out R", 1, "\"ECU/Fuel\"");
        row("csv --profile P -o T/gone/out R", 1, "/gone/out\"");
        row("csv --profile P --stop 1e9 -o T/out R", 1, "1000000000.000 s");
        row("kml --profile P -o T/gone/out R", 1, "/gone/out\"");
        row("can -o T/gone/out R", 1, "/gone/out\"");
        row("can -o T/out R gone.CAN", 1, "recording");
    }

    void failures()
    {
        QFETCH(const QString, line);
        QFETCH(const QByteArray, message);
        const Run result = runLine(line);
        QTEST(result.status, "status");
        QCOMPARE(result.out, "");
        QVERIFY2(result.error.contains(message), result.error.constData());
        QVERIFY2(result.status == 2 || result.error.startsWith("orna-cli: "),
                 result.error.constData());
        QVERIFY(result.status == 2 || result.error.count('\n') == 1);
        QCOMPARE(read("out"), "(no file)");
    }
};

QTEST_APPLESS_MAIN(TestCliExports)
#include "tst_cli_exports.moc"
