#include "export/ExportGpx.h"
#include "export/ExportKml.h"
#include "export/ExportTest.h"
#include "export/GeoTrack.h"
#include "export/GpxRules.h"
#include "export/TrackValues.h"

#include <QtCore/QRegularExpression>
#include <QtXml/QDomDocument>

#include <cmath>

using namespace TARN;

namespace {

const QByteArray Position =
    "<Device name='NAV'><Parameter name='Lat' id='1036' dataType='FLOAT' startByte='4' "
    "kmlId='Latitude'/><Parameter name='Lon' id='1037' dataType='FLOAT' startByte='4' "
    "kmlId='Longitude'/><Parameter name='Alt' id='1038' dataType='FLOAT' startByte='4' "
    "unit='UNIT' kmlId='Altitude'/></Device>";

const QByteArray Engine =
    "<EnumList><Enum name='WarningLamp'><Value val='1' label='an &amp; aus'/></Enum></EnumList>"
    "<ThresholdList><Threshold name='T'><Value val='20' state='WARNING'/></Threshold>"
    "</ThresholdList><Device name='D'><Parameter name='Öl &lt;T>' id='500' dataType='FLOAT' "
    "startByte='4' unit='°C' thresholdId='T'/><Parameter name='Lamp' id='501' dataType='BLONG' "
    "startByte='4' endBit='3' enumId='WarningLamp'/></Device>";

QByteArray positionIn(const QByteArray& unit)
{
    return QByteArray(Position).replace("UNIT", unit);
}

/// Fixes as samples, "seconds:latitude,longitude" each. A latitude of "+3" is three steps of about
/// 100 m north of 48 degrees; the longitude is 11 degrees where none is given and follows the
/// latitude after 10 ms.
QString fixes(const QString& text)
{
    QString samples;
    for (const QString& fix : text.split(' ', Qt::SkipEmptyParts)) {
        const double time = fix.section(':', 0, 0).toDouble();
        const QString place = fix.section(':', 1);
        const QString latitude = place.section(',', 0, 0);
        const QString degrees = latitude.startsWith('+')
                                    ? QString::number(48 + latitude.toInt() / 1024.0, 'g', 12)
                                    : latitude;
        const QString longitude = place.contains(',') ? place.section(',', 1) : "11";
        samples += QString(" 1036@%1=%2 1037@%3=%4")
                       .arg(time)
                       .arg(degrees)
                       .arg(time + 0.01)
                       .arg(longitude);
    }
    return samples;
}

/// "time ... | time ..., left out: nowhere jumps"
QString text(const GeoTrack& track)
{
    QStringList stretches;
    for (const GeoTrack::Stretch& stretch : track.stretches()) {
        QStringList times;
        for (const TrackPoint& point : stretch) {
            times += QString::number(point.time);
        }
        stretches += times.join(' ');
    }
    return stretches.join(" | ") +
           QString("; %1 %2").arg(track.leftOut().nowhere).arg(track.leftOut().jumps);
}

constexpr TimeRange Always = {0.0, 1e6};

} // namespace

/// Tracks, and the files that are made of them.
class TestTracks : public ExportTest
{
    Q_OBJECT

    std::shared_ptr<const Flight> datedFlight(const QString& samples, const QByteArray& elements,
                                              bool isDated = true)
    {
        RecordingBuilder file;
        if (isDated) {
            file.date(2021, 7, 9, 4, 5, 6);
        }
        return Flight::make(load({write("flight.CAN", add(file, samples).bytes())}),
                            profileOf(elements));
    }

    /// A flight with a gap, with events, with what has no value and without a first altitude.
    ExportInput eventfulFlight()
    {
        return inputOf(datedFlight(fixes("10:+0 11:+1 12:+2 40:+30 41:+31 42:0,0") +
                                       " 1038@11=1000 1038@12=1100 500@10.5=10 500@11.5=25 "
                                       "500@41.2=7FC00000 500@41.3=12 500@60=30 "
                                       "501@10.8=5:00000001",
                                   Engine + positionIn("ft")));
    }

private Q_SLOTS:
    void stretches()
    {
        const std::tuple<const char*, QString, double, const char*> rows[] = {
            // name, samples, slot, stretches
            {"one", fixes("0:+0 1:+1 2:+2"), 1, "0 1 2; 0 0"},
            {"a single position", fixes("5:+0"), 1, "5; 0 0"},
            {"none", "500@1=2", 1, "; 0 0"},
            {"a gap of ten steps", fixes("0:+0 1:+1 2:+2 12.5:+12 13.5:+13"), 1,
             "0 1 2 | 12.5 13.5; 0 0"},
            {"no fix", fixes("0:0,0 1:+1 2:+2 3:0,0 4:+4 5:+5"), 1, "1 2 | 4 5; 2 0"},
            {"0 alone is a place", fixes("0:0,9 90000:+1,0"), 1, "0 90000; 0 0"},
            {"no numbers, no degrees", fixes("1:+1 2:91 3:-2000 4:+4 5:+5,361 6:nan 7:+7"), 1,
             "1 | 4 | 7; 4 0"},
            {"moved while nobody flies", fixes("0:+0 1:+1 2:+200 3:+201"), 1, "0 1 | 2 3; 0 0"},
            {"far, but with time for it", fixes("0:+0 60:+200 120:+201"), 1, "0 60 120; 0 0"},
            {"there and back", fixes("0:+0 1:+1 2:+200 3:+3 4:+4"), 1, "0 1 3 4; 0 1"},
            {"there, elsewhere and back", fixes("0:+0 1:+1 2:+200 3:+900 4:+4 5:+5"), 1,
             "0 1 4 5; 0 2"},
            {"there at the end, and before a gap", fixes("0:+0 1:+1 2:+200 30:+5 31:+6 32:+999"), 1,
             "0 1 | 30 31; 0 2"},
            {"over the date line", fixes("0:10,179.9995 1:10,-179.9995 2:10,180"), 1, "0 1 2; 0 0"},
            {"the last one of a slot", fixes("0:+0 1:+1 2:+2 3:+3 4:+4"), 2, "1 3 4; 0 0"},
            {"but of both sides of a gap", fixes("0:+0 1:+1 2:0,0 3:+3 4:+4"), 10, "1 | 4; 1 0"},
            {"a longitude that stays away",
             fixes("0:+0 1:+1") + " 1036@2=48.003 1036@12=48 1036@20=48", 1, "0 1 2; 2 0"},
            {"half of a fix where one is found again", fixes("0:0,0 1:0,0 2:+2,0 3:+3 4:+4"), 1,
             "3 4; 2 1"},
            {"lists that are not in order", fixes("2:+2 0:+0 1:+1"), 1, "0 1 2; 0 0"}};
        for (const auto& [name, samples, slot, expected] : rows) {
            const GeoTrack track(*flightOf(samples, positionIn("m")), 0, slot, Always);
            QVERIFY2(text(track) == expected, qPrintable(name + (": " + text(track))));
        }
    }

    void rangeAndSource()
    {
        const QString samples = fixes("0:+0 1:+1 2:+2 3:+3");
        const auto flight = flightOf(samples, positionIn("m"));
        QCOMPARE(text(GeoTrack(*flight, 0, 1, {1, 2})), "1 2; 0 0");
        QCOMPARE(text(GeoTrack(*flight, 0, 1, {2, 1})), "; 0 0");
        // Without a latitude and a longitude that are two things there is no place.
        const auto unnamed = flightOf(samples, "<Device name='D'><Parameter name='P' id='1036' "
                                               "dataType='FLOAT' startByte='4'/></Device>");
        QCOMPARE(text(GeoTrack(*unnamed, 0, 1, Always)), "; 0 0");
        // Messages of identifier 0 are no longitudes because nothing names any.
        const auto half =
            flightOf(samples + " 0@0=5 0@1=5",
                     "<Device name='D'><Parameter name='P' id='1036' dataType='FLOAT' "
                     "startByte='4' kmlId='Latitude'/></Device>");
        QCOMPARE(text(GeoTrack(*half, 0, 1, Always)), "; 0 0");
        // The offset holds for the files to which it applies, in positions as in everything.
        const auto high = Flight::make(load({writeRecording(samples, "REC_8000.CAN")}),
                                       profileOf(positionIn("m")));
        QCOMPARE(text(GeoTrack(*high, 100, 1, Always)), "100 101 102 103; 0 0");
        const GeoTrack east(*flightOf(fixes("0:10,190"), positionIn("m")), 0, 1, Always);
        QCOMPARE(east.points().front().place.longitude, -170.0);
    }

    void altitudes()
    {
        const std::tuple<const char*, double> units[] = {
            {"m", 100}, {"ft", 30.48}, {" Feet", 30.48}, {"FL", 3048}, {"bananas", 100}, {"", 100}};
        for (const auto& [unit, metres] : units) {
            const auto flight = flightOf(fixes("0:+0") + " 1038@0=100", positionIn(unit));
            QCOMPARE(GeoTrack(*flight, 0, 1, Always).points().front().altitude, metres);
        }
        GeoTrack track(*flightOf(fixes("0:+0 1:+1 2:+2 3:+3 4:0,0 5:+5 6:+6") +
                                     " 1038@1=5 1038@2=nan 1038@3=nan 1038@5=inf 1038@6=nan",
                                 positionIn("m")),
                       0, 1, Always);
        const auto text = [&track] {
            QStringList list;
            for (const TrackPoint& point : track.points()) {
                list += QString::number(point.altitude);
            }
            return list.join(' ');
        };
        QCOMPARE(text(), "5 5 nan nan nan nan"); // the first one's is a second away
        track.fillAltitudes();
        QCOMPARE(text(), "5 5 5 5 nan nan"); // not from one stretch to the next
    }

    void nearest()
    {
        // Of all positions, however few are written.
        const GeoTrack track(*flightOf(fixes("10:+0 11:+1 12:+2 40:+30"), positionIn("m")), 0, 100,
                             Always);
        for (const auto& [time, expected] : {std::pair(4.0, 0.0),
                                             {9.0, 10.0},
                                             {10.4, 10.0},
                                             {10.6, 11.0},
                                             {17.0, 12.0},
                                             {17.1, 0.0},
                                             {40.0, 40.0},
                                             {46.0, 0.0}}) {
            const TrackPoint* point = track.nearest(time);
            QCOMPARE(point == nullptr ? 0.0 : point->time, expected);
        }
    }

    void values()
    {
        // By number of the parameter, at times that ascend.
        const auto flight = datedFlight("500@1=1 500@2=2.5 500@2.5=2:7FC00000 500@3=4 500@14=5 "
                                        "500@3.2=2:7F800000 501@2=5:00000001",
                                        Engine);
        const ExportInput input = inputOf(flight);
        Progress none;
        auto values = trackValues(input, none);
        QCOMPARE(values.size(), std::size_t(2));
        QVERIFY(values[0].isNumber() && !values[1].isNumber());
        for (const auto& [time, number, state] : {std::tuple(0.5, "", ""),
                                                  {1.0, "1", ""},
                                                  {2.4, "2.5", "1: an & aus"},
                                                  {2.6, "", ""},
                                                  {3.0, "4", ""},
                                                  {3.2, "", ""},
                                                  {3.5, "", ""},
                                                  {14.0, "5", ""},
                                                  {16.0, "5", ""},
                                                  {30.0, "", ""}}) {
            QCOMPARE(values[0].at(time), std::string(number));
            QVERIFY(*state == '\0' || values[1].at(time) == state);
        }
    }

    /// From where the date is told, whatever else happens before.
    void moments()
    {
        const QString utc = " 1206@40=7:090707E5 1200@40=7:0C000000";
        const std::tuple<const char*, QString, QString, const char*> rows[] = {
            // name, samples of two files, when it is 100 on their clock
            {"header", "500@10=1", "500@60=1", "04:06:36.000"},
            {"header, files in another order", "500@60=1", "500@10=1", "04:05:46.000"},
            {"header, a damaged time", "500@10=1 500@0=1 500@11=1", "500@60=1", "04:06:36.000"},
            {"told later", "500@10=1" + utc, "500@60=1", "12:01:00.000"},
            {"told, a damaged time", "500@10=1 500@0=1" + utc, "500@60=1", "12:01:00.000"},
            {"told by the second file", "500@10.5=1", "500@39=1" + utc, "12:01:00.000"}};
        for (const auto& [name, first, second, expected] : rows) {
            RecordingBuilder files[2];
            files[0].date(2021, 7, 9, 4, 5, 6);
            const auto record = load({write("LOG_0001.CAN", add(files[0], first).bytes()),
                                      write("LOG_0002.CAN", add(files[1], second).bytes())});
            const std::string text = TrackClock(*record).text(100);
            QVERIFY2(text == std::string("2021-07-09T") + expected + "Z",
                     (name + (": " + text)).c_str());
        }
    }

    /// However little there is to be written for each position.
    void stop()
    {
        QString samples;
        for (int i = 0; i < 5000; ++i) {
            samples += fixes(QString("%1:+%2").arg(i).arg(i % 4));
        }
        ExportInput input = inputOf(datedFlight(samples, positionIn("m")));
        input.selection = {};
        auto options = optionsFor<KmlExportOptions>("stopped.kml", {0, 5000});
        options.isTimed = true;
        std::stop_source source;
        const auto stopIt = [&](int percent, const QString&) {
            percent < 10 || source.request_stop();
        };
        QVERIFY(!run(ExportKml(options), input, Progress(stopIt, source.get_token())).done);
        QVERIFY(!QFile::exists(path("stopped.kml")));
    }

    void goldenFiles()
    {
        const ExportInput input = eventfulFlight();
        auto kml = optionsFor<KmlExportOptions>("out.kml", {0, 50});
        kml.isTimed = true;
        kml.timeStamp = 1000;
        kml.placeMarkInterval = 2;
        const ExportResult timed = run(ExportKml(kml), input);
        QCOMPARE(read("out.kml"), golden("timed.kml"));
        QVERIFY2(timed.message.contains("tells no UTC") &&
                     timed.message.contains("1 positions at 0/0"),
                 qUtf8Printable(timed.message));
        const ExportResult gpx =
            run(ExportGpx(optionsFor<GpxExportOptions>("out.gpx", {0, 50})), input);
        QCOMPARE(read("out.gpx"), golden("flight.gpx"));
        QCOMPARE(gpx.message, timed.message);
    }

    void files_data()
    {
        QTest::addColumn<QString>("samples");
        QTest::addColumn<QByteArray>("unit");
        QTest::addColumn<bool>("isDated");
        QTest::addColumn<int>("points");
        QTest::addColumn<QString>("note");
        const QString utc = " 1206@0=7:09070021 1200@0=7:04050600";
        const QString header = "The recording tells no UTC";
        QTest::newRow("nothing") << "500@1=5" << QByteArray("m") << true << 0 << "No position";
        QTest::newRow("one position") << fixes("1:+0") << QByteArray("m") << true << 1 << header;
        QTest::newRow("no altitude")
            << fixes("1:+0 2:+1") << QByteArray("?") << true << 2 << header;
        QTest::newRow("odd unit") << fixes("1:+0 2:+1") + " 1038@1=5" << QByteArray("&lt;x") << true
                                  << 2 << "The unit \"<x\"";
        QTest::newRow("no date") << fixes("1:+0 2:+1") << QByteArray("m") << false << 2
                                 << "The recording tells no date";
        QTest::newRow("edges")
            << fixes("1:-90,180 50000:90,-180 100000:+0,179.9999999999 150000:+0,360")
            << QByteArray("m") << true << 4 << header;
        QTest::newRow("stretches") << fixes("1:+0 2:+1 3:0,0 3.9:+3 4:+3 5:+900 6:+901 40:+9") +
                                          " 1038@4=7 500@4=2 500@4.5=25 "
                                          "500@39=10 500@99=25"
                                   << QByteArray("ft") << true << 7 << header;
        QTest::newRow("UTC") << fixes("1:+0 2:+1") + utc << QByteArray("m") << true << 2 << "";
        QTest::newRow("times beyond all years")
            << fixes("1:+0 300000000000:+1") << QByteArray("m") << true << 2 << header;
    }

    /// Every GPX keeps the format's rules, every track has as many times, places and values as
    /// there are positions.
    void files()
    {
        QFETCH(const QString, samples);
        QFETCH(const QByteArray, unit);
        QFETCH(const bool, isDated);
        QFETCH(const int, points);
        QFETCH(const QString, note);
        const ExportInput input = inputOf(datedFlight(samples, Engine + positionIn(unit), isDated));
        const TimeRange range = input.flight->range(0);
        const ExportResult gpx =
            run(ExportGpx(optionsFor<GpxExportOptions>("out.gpx", range)), input);
        QVERIFY2(gpx.done && (note.isEmpty() ? gpx.message.isEmpty() : gpx.message.contains(note)),
                 qUtf8Printable(gpx.message));
        QCOMPARE(gpxFault(read("out.gpx")), QString());
        QCOMPARE(read("out.gpx").count("<trkpt "), points);
        auto options = optionsFor<KmlExportOptions>("out.kml", range);
        options.isTimed = true;
        const ExportResult kml = run(ExportKml(options), input);
        QCOMPARE(kml.done, isDated);
        QVERIFY2(kml.message.contains(note), qUtf8Printable(kml.message));
        if (!isDated) {
            return;
        }
        QCOMPARE(read("out.kml").count("<gx:coord>"), points);
        QDomDocument document;
        QVERIFY(document.setContent(read("out.kml")));
        const QDomNodeList tracks = document.elementsByTagName("gx:Track");
        for (int i = 0; i < tracks.size(); ++i) {
            const QDomElement track = tracks.at(i).toElement();
            const int size = track.elementsByTagName("gx:coord").size();
            const QDomNodeList columns = track.elementsByTagName("gx:SimpleArrayData");
            QCOMPARE(track.elementsByTagName("when").size(), size);
            QCOMPARE(track.elementsByTagName("gx:value").size(), columns.size() * size);
        }
    }

    /// The checker itself.
    void rulesAreKept_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        const auto row = [](const char* name, const char* from, const char* to) {
            QTest::newRow(name) << QByteArray(from) << QByteArray(to);
        };
        row("range of latitudes", "lat=\"48.", "lat=\"98.");
        row("180 degrees are -180", "lon=\"11.00000000\"", "lon=\"180\"");
        row("order", "<metadata>", "<trk/><metadata>");
        row("no such element", "<name>", "<mane/><name>");
        row("time", "T04:05:06.000Z", " 04:05:06");
        row("number", "<ele>304.8<", "<ele>nan<");
        row("twice", "<ele>304.8</ele>", "<ele>304.8</ele><ele>1</ele>");
        row("no such attribute", "<trkseg>", "<trkseg id=\"1\">");
        row("missing attribute", "minlat=\"48.00000000\" ", "");
        row("version", "version=\"1.1\"", "version=\"1.0\"");
        row("text", "<trkseg>", "<trkseg>x");
    }

    void rulesAreKept()
    {
        QFETCH(const QByteArray, from);
        QFETCH(const QByteArray, to);
        QByteArray gpx = golden("flight.gpx");
        QCOMPARE(gpxFault(gpx), QString());
        QVERIFY(gpx.contains(from));
        gpx.replace(gpx.indexOf(from), from.size(), to);
        QVERIFY(!gpxFault(gpx).isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestTracks)
#include "tst_tracks.moc"
