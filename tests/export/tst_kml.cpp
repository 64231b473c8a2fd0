#include "export/ExportKml.h"
#include "export/RecordTest.h"
#include "faults/EventDetector.h"

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
    for (const auto& [slot, position] : path.positions()) {
        list += QString("%1:%2").arg(slot).arg(text(position));
    }
    return list.join(' ');
}

/// "4:lat,lon,alt hh:mm:ss name=value ..." for each mark.
QStringList text(const KmlMarks& marks)
{
    QStringList list;
    for (const auto& [number, mark] : marks) {
        list += QString("%1:%2 %3").arg(number).arg(text(mark.position), mark.time);
        for (const KmlMark::Item& item : mark.items) {
            list.back() += QString::fromStdString(" " + item.name + "=" + item.value);
        }
    }
    return list;
}

} // namespace

class TestKml : public RecordTest
{
    Q_OBJECT

    Profile& useSelected(const QByteArray& elements) const
    {
        Profile& profile = useProfile(elements);
        profile.forEachParameter([](const ProfileDevice& device, ProfileParameter& parameter) {
            parameter.selected = device.name == "D";
        });
        return profile;
    }

    KmlExportOptions options() const
    {
        KmlExportOptions options;
        options.directory = folder().toStdString();
        options.fileName = "out.kml";
        options.stopTime = 5;
        return options;
    }

private Q_SLOTS:
    /// The first, as what a profile said about the position is kept when another is loaded.
    void withoutPositionParameters()
    {
        const Profile& profile =
            useProfile("<Device name='D'><Parameter id='0' dataType='FLOAT' startByte='4'/>"
                       "</Device>");
        const Record& record = load("0@1=5 0@3=6 0/1@2=7");
        QCOMPARE(text(FlightPath(profile, record.recordData(), 1, 0, 5)), "1:5,5,5 3:6,6,6");
    }

    void goldenFlight()
    {
        RecordingBuilder file;
        add(file.date(2021, 7, 9, 4, 5, 6),
            "1036@0.5=1 1036@0.75=48.5 1036@1.5=48.25 1036@3.5=48.75 1036@5.5=1 "
            "1037@1.2=11.5 1037@2.2=11.75 1038/1@0=800 1038/1@5=0 1038/1@4.9=1000.52 "
            "500@0.2=15 500@1.9=16 500@2.5=25 500@4=10 500@4.1=25 500@4.2=35 500@6.5=10 "
            "500@7=25 501@3.1=5:00000001");
        const Profile& profile = useSelected(Engine + Position);
        Record& record = loadFiles({write("flight.CAN", file.bytes())});
        detectEvents(record, profile);
        KmlExportOptions asked = options();
        asked.stopTime = 4.95;
        asked.timeStamp = 1000;
        asked.placeMarkInterval = 2;
        asked.lineWidth = 3;
        asked.lineColor = "112233";
        asked.lineAlpha = 128;
        asked.polygonAlpha = 5;
        asked.errorMarkColor = "AB160b";
        diagnostics();
        const ExportResult result = ExportKml(profile).exportData(record, asked);
        QVERIFY2(result.done && result.message.isEmpty(), qUtf8Printable(result.message));
        QCOMPARE(read("out.kml"), golden("flight.kml"));
        QCOMPARE(diagnostics(), "new lons 11.500000\nmExportPlacemark size 3 step 2\n");
    }

    void goldenNoFlight()
    {
        const Profile& profile = useSelected(Engine + Position);
        Record& record = load("500@1=10 500@2=25 501@2=5:00000001 1036@9=48");
        detectEvents(record, profile);
        KmlExportOptions asked = options();
        asked.polygonOn = false;
        const ExportResult result = ExportKml(profile).exportData(record, asked);
        QVERIFY(result.done);
        QVERIFY(result.message.contains("position"));
        QCOMPARE(read("out.kml"), golden("no_flight.kml"));
    }

    void positions_data()
    {
        QTest::addColumn<QString>("samples");
        QTest::addColumn<QString>("positions"); // slots of a second from 1 s to 4 s
        QTest::newRow("the later sample of a slot") << "1036@1.5=1 1036@1.25=2"
                                                    << "1:2,-1000,-1000";
        QTest::newRow("ends of the range") << "1036@0.9=1 1036@1=2 1036@4=3 1036@4.1=4"
                                           << "1:2,-1000,-1000 4:3,-1000,-1000";
        QTest::newRow("gaps inside and before") << "1036@1=1 1037@2=2 1038/1@3=600 1036@4=3"
                                                << "1:1,2,400 2:1,2,400 3:1,2,400 4:3,2,400";
        QTest::newRow("what is seen but below -999")
            << "1037@1=5 1037@2=-999 1037@3=-1500 1037@4=6"
            << "1:-1000,5,-1000 2:-1000,-999,-1000 3:-1000,-999,-1000 4:-1000,6,-1000";
        QTest::newRow("first and last below -999") << "1037@1=-1500 1037@2=7 1036@2=1 1036@4=-2000"
                                                   << "1:1,7,-1000 2:1,7,-1000 4:1,7,-1000";
        QTest::newRow("no number is a number seen")
            << "1036@1=2:7FC00000 1036@2=5 1036@3=2:7FC00000 1037@4=1"
            << "1:nan,1,-1000 2:5,1,-1000 3:nan,1,-1000 4:nan,1,-1000";
    }

    void positions()
    {
        QFETCH(const QString, samples);
        const Profile& profile = useProfile(Position);
        QTEST(text(FlightPath(profile, load(samples).recordData(), 1, 1, 4)), "positions");
    }

    void positionsAreReadAsTheProfileLastSays()
    {
        const Profile& profile =
            useProfile(Position + "<Device name='X'><Parameter name='Other' id='1036' channel='3' "
                                  "dataType='USHORT' startByte='4' factor='2'/></Device>");
        const Record& record = load("1036@1=7:0007 1036/3@2=7:0008");
        QCOMPARE(text(FlightPath(profile, record.recordData(), 1, 0, 4)), "1:14,-1000,-1000");
    }

    void offsetMovesSamplesButNoEvents()
    {
        write("Offset.xml", "<TarnOffset><Offset value='2'/></TarnOffset>");
        const Profile& profile = useSelected(Engine + Position);
        Record& record = load("1036@1=1 1036@3=2 500@1=10 500@3=25", "REC_8000.CAN");
        detectEvents(record, profile);
        const RecordData& data = record.recordData();
        const FlightPath path(profile, data, 1, 0, 9);
        QCOMPARE(text(path), "3:1,-1000,-1000 5:2,-1000,-1000");
        KmlExportOptions asked = options();
        asked.placeMarkInterval = 1;
        const QStringList marks = {"3:1,-1000,-1000 00:00:03 Öl \"<T>\" [°C]=10",
                                   "5:2,-1000,-1000 00:00:05 Öl \"<T>\" [°C]=25"};
        QCOMPARE(text(placeMarks(profile, data, path, asked)), marks);
        QCOMPARE(text(errorMarks(data.limits, path)),
                 QStringList("3:1,-1000,-1000 00:00:03 D Öl \"<T>\"=25 °C"));
    }

    void aSampleWithoutPositionTakesItsMarkAway()
    {
        const Profile& profile = useSelected(Engine + Position);
        const Record& record = load("1036@10=1 1036@11=2 1036@86400=3 "
                                    "500@10=1 500@11=2 500@12=3 500@15=3 500@10.5=4 "
                                    "501@11=5:00000001 501@86400=5:00000000");
        const FlightPath path(profile, record.recordData(), 1, 0, 1e6);
        KmlExportOptions asked = options();
        asked.placeMarkInterval = 10; // one mark for 10 to 19
        // What came after the loss stays; names start again at midnight.
        const QStringList marks = {"1:2,-1000,-1000 00:00:10 Öl \"<T>\" [°C]=4 Lamp=1: an & aus",
                                   "8640:3,-1000,-1000 00:00:00 Lamp=0: Invalid ENUM Value"};
        QCOMPARE(text(placeMarks(profile, record.recordData(), path, asked)), marks);
        const Record& lost = load("1036@10=1 500@10=1 501@12=5:00000001");
        const FlightPath shortPath(profile, lost.recordData(), 1, 0, 1e6);
        QCOMPARE(text(placeMarks(profile, lost.recordData(), shortPath, asked)), QStringList());
    }
};

QTEST_APPLESS_MAIN(TestKml)
#include "tst_kml.moc"
