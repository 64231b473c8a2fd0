#include "export/ExportKml.h"
#include "export/ExportTest.h"
#include "export/PlaceMarks.h"

using namespace TARN;

namespace {

const QByteArray Position =
    "<Device name='NAV'><Parameter name='Lat' id='1036' dataType='FLOAT' startByte='4' "
    "kmlId='Latitude'/><Parameter name='Lon' id='1037' dataType='FLOAT' startByte='4' "
    "kmlId='Longitude'/><Parameter name='Alt' id='1038' channel='1' dataType='FLOAT' "
    "startByte='4' factor='0.5' offset='100' kmlId='Altitude'/></Device>";

const QByteArray Engine =
    "<EnumList><Enum name='WarningLamp'><Value val='1' label='an &amp; aus'/></Enum></EnumList>"
    "<ThresholdList><Threshold name='T'><Value val='20' state='WARNING'/>"
    "<Value val='30' state='LIMIT'/></Threshold></ThresholdList>"
    "<Device name='D'><Parameter name='Öl \"&lt;T&gt;\"' id='500' dataType='FLOAT' startByte='4' "
    "unit='°C' thresholdId='T'/><Parameter name='Lamp' id='501' dataType='BLONG' startByte='4' "
    "endBit='3' enumId='WarningLamp'/></Device>";

QString text(const PathPosition& position)
{
    return QString("%1,%2,%3")
        .arg(position.latitude)
        .arg(position.longitude)
        .arg(position.altitude);
}

QString text(const FlightPath& path)
{
    QStringList list;
    for (const auto& [slot, position] : path.points()) {
        list += QString("%1:%2").arg(slot).arg(text(position));
    }
    return list.join(' ');
}

/// "hh:mm:ss lat,lon,alt name=value ..."
QString text(const KmlMark& mark)
{
    QString line = mark.time + " " + text(mark.position);
    for (const KmlMark::Item& item : mark.items) {
        line += QString::fromStdString(" " + item.name + "=" + item.value);
    }
    return line;
}

} // namespace

class TestKml : public ExportTest
{
    Q_OBJECT

    static ExportInput engineOf(const std::shared_ptr<const Flight>& flight)
    {
        return {flight, select(*flight->profile(), {"Öl \"<T>\"", "Lamp"}), 0.0};
    }

private Q_SLOTS:
    void goldenFlight()
    {
        RecordingBuilder file;
        add(file.date(2021, 7, 9, 4, 5, 6),
            "1036@0.5=1 1036@0.75=48.5 1036@1.5=48.25 1036@3.5=48.75 1036@5.5=1 "
            "1037@1.2=11.5 1037@2.2=11.75 1038/1@0=800 1038/1@5=0 1038/1@4.9=1000.52 "
            "500@0.2=15 500@1.9=16 500@2.5=25 500@4=10 500@4.1=25 500@4.2=35 500@6.5=10 "
            "500@7=25 501@3.1=5:00000001");
        auto asked = optionsFor<KmlExportOptions>("out.kml", {0, 4.95});
        asked.timeStamp = 1000;
        asked.placeMarkInterval = 2;
        asked.lineWidth = 3;
        asked.lineColor = "112233";
        asked.lineAlpha = 128;
        asked.polygonAlpha = 5;
        asked.errorMarkColor = "AB160b";
        const auto input = engineOf(
            Flight::make(load({write("flight.CAN", file.bytes())}), profileOf(Engine + Position)));
        diagnostics();
        const ExportResult result = run(ExportKml(asked), input);
        QVERIFY2(result.done && result.message.isEmpty(), qUtf8Printable(result.message));
        QCOMPARE(read("out.kml"), golden("flight.kml"));
        QCOMPARE(diagnostics(), "new lons 11.500000\nmExportPlacemark size 3 step 2\n");
    }

    void positions()
    {
        const QByteArray other = "<Device name='X'><Parameter name='Other' id='1036' channel='3' "
                                 "dataType='USHORT' startByte='4' factor='2'/></Device>";
        const QByteArray none =
            "<Device name='D'><Parameter id='0' dataType='FLOAT' startByte='4'/></Device>";
        const std::tuple<const char*, const char*, const char*, QByteArray> rows[] = {
            {"the later sample of a slot", "1036@1.5=1 1036@1.25=2", "1:2,-1000,-1000", Position},
            {"ends of the range", "1036@0.9=1 1036@1=2 1036@4=3 1036@4.1=4",
             "1:2,-1000,-1000 4:3,-1000,-1000", Position},
            {"gaps inside and before", "1036@1=1 1037@2=2 1038/1@3=600 1036@4=3",
             "1:1,2,400 2:1,2,400 3:1,2,400 4:3,2,400", Position},
            {"what is seen but below -999", "1037@1=5 1037@2=-999 1037@3=-1500 1037@4=6",
             "1:-1000,5,-1000 2:-1000,-999,-1000 3:-1000,-999,-1000 4:-1000,6,-1000", Position},
            {"first and last below -999", "1037@1=-1500 1037@2=7 1036@2=1 1036@4=-2000",
             "1:1,7,-1000 2:1,7,-1000 4:1,7,-1000", Position},
            {"no number is a number seen", "1036@1=2:7FC00000 1036@2=5 1036@3=2:7FC00000 1037@4=1",
             "1:nan,1,-1000 2:5,1,-1000 3:nan,1,-1000 4:nan,1,-1000", Position},
            {"read as the profile last says of the identifier", "1036@1=7:0007 1036/3@2=7:0008",
             "1:14,-1000,-1000", Position + other},
            {"no parameter is a position", "0@1=5 0@3=6 0/1@2=7", "1:5,5,5 3:6,6,6", none}};
        for (const auto& [name, samples, positions, elements] : rows) {
            const FlightPath path(*flightOf(samples, elements), 0, 1, {1, 4}); // slots of a second
            QVERIFY2(text(path) == positions, qPrintable(name + (": " + text(path))));
        }
    }

    void marks()
    {
        // Samples, offset and end; slots of a second, marks every ten seconds: place marks, "|",
        // then those of limits, and what the user is told is left out.
        const std::tuple<const char*, const char*, double, double, const char*> rows[] = {
            {"a sample without position takes its mark away, what comes later stays",
             "1036@10=1 1036@11=2 500@10=1 500@11=2 500@12=3 500@15=3 500@10.5=4 501@11=5:00000001",
             0, 1e6,
             "00:00:10 2,-1000,-1000 Öl \"<T>\" [°C]=4 Lamp=1: an & aus\n|\n2 values, 0 events"},
            {"the last of several parameters too", "1036@10=1 500@10=1 501@12=5:00000001", 0, 1e6,
             "|\n1 values, 1 events"},
            {"only what lies in the range is missed",
             "1036@10=1 500@10=1 500@32=10 500@33=25 501@43=5:00000001", 0, 40,
             "00:00:10 1,-1000,-1000 Öl \"<T>\" [°C]=1\n|\n2 values, 1 events"},
            {"no position in the range", "500@1=10 500@2=25 501@2=5:00000001 1036@9=48", 0, 5,
             "|\nNo position lies in the time range, the flight path is empty"},
            {"names start again at midnight", "1036@86399=1 1036@86405=2 500@86399=25 500@86405=26",
             0, 1e6,
             "23:59:50 1,-1000,-1000 Öl \"<T>\" [°C]=25\n"
             "00:00:00 2,-1000,-1000 Öl \"<T>\" [°C]=26\n|\n"},
            {"the offset moves samples but no events",
             "1036@10=1 1036@21=2 500@10=10 500@21=25 500@30=1", 11, 1e6,
             "00:00:20 1,-1000,-1000 Öl \"<T>\" [°C]=10\n"
             "00:00:30 2,-1000,-1000 Öl \"<T>\" [°C]=25\n|\n"
             "00:00:21 1,-1000,-1000 D Öl \"<T>\"=25 °C\n1 values, 0 events"}};
        for (const auto& [name, samples, offset, stop, expected] : rows) {
            const auto record = load({writeRecording(samples, "REC_8000.CAN")});
            ExportInput input = engineOf(Flight::make(record, profileOf(Engine + Position)));
            input.offset = offset;
            auto asked = optionsFor<KmlExportOptions>("out.kml", {0, stop});
            asked.timeStamp = 1000;
            const FlightPath path(*input.flight, offset, 1, asked.range());
            PlaceMarks placeMarks(input, path, asked);
            QStringList marks;
            Progress none;
            for (KmlMark mark; placeMarks.next(mark, none);) {
                marks += text(mark);
            }
            marks += "|";
            std::size_t leftOut = 0;
            for (const KmlMark& mark :
                 errorMarks(input.flight->events().limits, path, asked.range(), leftOut)) {
                marks += text(mark);
            }
            const ExportResult result = run(ExportKml(asked), input);
            marks += result.message.section(": ", -1).section('.', 0, 0);
            QVERIFY2(result.done, name);
            QCOMPARE(marks.join('\n'), QString(expected));
        }
    }
};

QTEST_APPLESS_MAIN(TestKml)
#include "tst_kml.moc"
