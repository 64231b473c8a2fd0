#include "support/FlightTest.h"
#include "track/Graticule.h"
#include "track/HeightDrawing.h"
#include "track/SvgTrack.h"
#include "track/TrackDrawing.h"
#include "track/TrackSymbols.h"

#include <QtCore/QXmlStreamReader>

#include <cmath>

using namespace TARN;

namespace {

const QByteArray Positions =
    "<ThresholdList><Threshold name='T'><Value val='10' state='WARNING' color='#ffe28a'/>"
    "<Value val='20' state='LIMIT' color='#ff9a9a'/></Threshold></ThresholdList>"
    "<EnumList><Enum name='WarningLamp'><Value val='1' label='on'/></Enum></EnumList>"
    "<Device name='D'>"
    "<Parameter name='lat' id='500' dataType='FLOAT' startByte='4' kmlId='Latitude'/>"
    "<Parameter name='lon' id='501' dataType='FLOAT' startByte='4' kmlId='Longitude'/>"
    "<Parameter name='alt' unit='m' id='502' dataType='FLOAT' startByte='4' kmlId='Altitude'/>"
    "<Parameter name='hot' id='503' dataType='FLOAT' startByte='4' thresholdId='T'/></Device>";

PositionTrack trackOf(const Flight& flight, double offset = 0.0)
{
    Progress none;
    return flight.positions(offset, none);
}

QString placeText(const GeoPoint& point)
{
    return QString("%1/%2").arg(point.latitude, 0, 'f', 3).arg(point.longitude, 0, 'f', 3);
}

/// Positions by stretch: "time lat/lon, ... | ...".
QString textOf(const PositionTrack& track)
{
    QStringList stretches;
    for (const PositionTrack::Stretch& stretch : track.stretches()) {
        QStringList places;
        for (std::size_t k = stretch.begin; k < stretch.end; ++k) {
            places += QString::number(track.time(k)) + " " + placeText(track.point(k));
        }
        stretches += places.join(", ");
    }
    return stretches.join(" | ");
}

double apart(const QPointF& a, const QPointF& b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

double distanceTo(const QPointF& from, const QPointF& to, const QPointF& point)
{
    const QPointF way = to - from;
    const double square = QPointF::dotProduct(way, way);
    const double share =
        square > 0.0 ? std::clamp(QPointF::dotProduct(point - from, way) / square, 0.0, 1.0) : 0.0;
    return apart(from + share * way, point);
}

TrackScene sceneOf(PositionTrack track)
{
    TrackScene scene;
    scene.ground = std::make_shared<TrackGround>(std::move(track));
    return scene;
}

TrackView fitted(const TrackScene& scene)
{
    TrackView view;
    view.area = {0.0, 0.0, 800.0, 600.0};
    view.fit(scene.ground->path.bounds());
    return view;
}

/// Chart and heights as they are drawn; the texts in it.
QStringList textsOf(const TrackScene& scene, double time)
{
    const TrackStyle style;
    SvgTrack canvas({800.0, 800.0}, "label", 1);
    const TrackView view = fitted(scene);
    TrackDrawing drawing(scene, style, canvas);
    drawing.draw(view);
    drawKey(scene, style, {0.0, 600.0, 800.0, 20.0}, canvas);
    const HeightChart heights(scene, HeightProfile::Time, {60.0, 640.0, 700.0, 130.0});
    HeightDrawing(scene, style, heights, canvas).draw({0.0, 620.0, 800.0, 180.0});
    HeightDrawing(scene, style, heights, canvas).drawMoment(time);
    drawing.drawAircraft(view, time);
    const std::string picture = canvas.end();
    QStringList texts;
    QXmlStreamReader xml(QString::fromStdString(picture));
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement) {
            for (const QXmlStreamAttribute& attribute : xml.attributes()) {
                if (attribute.value().contains(u"nan") || attribute.value().contains(u"inf")) {
                    texts += "bad number";
                }
            }
            if (xml.name() == u"text") {
                texts += xml.readElementText();
            }
        }
    }
    return xml.hasError() ? QStringList("bad xml") : texts;
}

} // namespace

class TestTrack : public FlightTest
{
    Q_OBJECT

private Q_SLOTS:
    void stretches_data()
    {
        QTest::addColumn<QString>("samples");
        QTest::addColumn<QString>("track");
        QTest::addColumn<QString>("remarks");
        QTest::newRow("none") << "503@1=5"
                              << ""
                              << "";
        QTest::newRow("latitudes alone") << "500@1=48 500@2=48"
                                         << ""
                                         << "";
        QTest::newRow("one, the longitude later") << "500@1=48 501@1.5=11"
                                                  << "1 48.000/11.000"
                                                  << "";
        QTest::newRow("between longitudes")
            << "501@1=11 500@1.5=48 501@2=11.002 500@2.25=48.001 501@3=11.004"
            << "1.5 48.000/11.001, 2.25 48.001/11.002"
            << "";
        QTest::newRow("across 180 degrees")
            << "501@1=179.999 500@1=0.5 500@2=0.5 501@3=-179.999 500@3=0.5"
            << "1 0.500/179.999, 2 0.500/180.000, 3 0.500/-179.999"
            << "";
        QTest::newRow("longitudes to 360") << "501@1=359.999 500@1=51 501@2=0.001 500@2=51"
                                           << "1 51.000/-0.001, 2 51.000/0.001"
                                           << "";
        QTest::newRow("a gap of the latitude")
            << "500@1=48 501@1=11 500@2=48 501@2=11 501@9=11 501@16=11 501@23=11 500@30=48 "
               "501@30=11"
            << "1 48.000/11.000, 2 48.000/11.000 | 30 48.000/11.000"
            << "";
        QTest::newRow("a gap of the longitude")
            << "500@1=48 501@1=11 500@2=48 501@2=11 500@9=48 500@16=48 500@23=48 500@30=48 "
               "501@30=11"
            << "1 48.000/11.000, 2 48.000/11.000 | 30 48.000/11.000"
            << "";
        QTest::newRow("0/0 on the way, in two messages")
            << "500@1=48 501@1.1=11 500@2=0 501@2.1=0 500@3=0 501@3.1=0 500@4=48 501@4.1=11"
            << "1 48.000/11.000 | 4 48.000/11.000"
            << "Positions of 0/0, sent while the receiver knows none: 2";
        QTest::newRow("a jump")
            << "500@1=48 501@1=11 500@2=48.001 501@2=11 500@3=49 501@3=11 500@4=49.001 501@4=11"
            << "1 48.000/11.000, 2 48.001/11.000 | 3 49.000/11.000, 4 49.001/11.000"
            << "Jumps of the position faster than 500 m/s: 1, the first at 00:00:02";
        QTest::newRow("no places")
            << "500@1=48 501@1=11 500@2=95 501@2=11 500@3=48 501@3=11 500@4=48 501@4=1e30"
            << "1 48.000/11.000 | 3 48.000/11.000"
            << "";
        QTest::newRow("the equator and the first meridian")
            << "500@1=0 501@1=0.001 500@2=0.001 501@2=0"
            << "1 0.000/0.001, 2 0.001/0.000"
            << "";
    }

    void stretches()
    {
        QFETCH(QString, samples);
        const auto flight = flightOf(samples, Positions);
        QTEST(textOf(trackOf(*flight)), "track");
        QTEST(flight->remarks().join("; "), "remarks");
        QCOMPARE(trackOf(*flight).quality().remarks(), flight->remarks()); // counted in two ways
        QVERIFY(
            !namesPosition(*profileOf("<Device name='D'><Parameter name='a' id='1'/></Device>")));
    }

    void places()
    {
        const auto flight = flightOf("501@0=11 500@1=48 501@1=11 502@1=100 500@2=48.001 501@2=11 "
                                     "502@2=200 500@80=48.002 501@80=11 501@81=11",
                                     Positions);
        const PositionTrack track = trackOf(*flight, 0.0);
        QVERIFY(!track.at(-1.1) && track.at(-0.9)->isKnown);
        QCOMPARE(placeText(track.at(0.9)->point), placeText(track.point(0)));
        const auto half = track.at(1.5);
        QVERIFY(half && half->isKnown && half->index == 0);
        QCOMPARE(placeText(half->point), QString("48.000/11.000"));
        QCOMPARE(half->altitude, 150.0);
        QVERIFY(qAbs(half->metres - 55.6) < 0.1);
        QVERIFY(track.at(3.9)->isKnown && !track.at(4.1)->isKnown); // in the gap
        QCOMPARE(track.at(4.1)->index, std::size_t(1));
        QVERIFY(std::isnan(track.at(80.0)->altitude));
        QVERIFY(qAbs(track.metres(2) - 111.2) < 0.1); // not across the gap
        QCOMPARE(track.altitudeUnit(), QString("m"));
    }

    void courses_data()
    {
        QTest::addColumn<double>("north"); // metres between positions
        QTest::addColumn<double>("east");
        QTest::addColumn<GeoPoint>("from");
        QTest::addColumn<double>("course"); // -1 where it stands
        QTest::newRow("north") << 5.0 << 0.0 << GeoPoint{48.0, 11.0} << 0.0;
        QTest::newRow("east") << 0.0 << 5.0 << GeoPoint{48.0, 11.0} << 90.0;
        QTest::newRow("south-west") << -5.0 << -5.0 << GeoPoint{-48.0, 11.0} << 225.0;
        QTest::newRow("east at 85 degrees") << 0.0 << 5.0 << GeoPoint{85.0, 11.0} << 90.0;
        QTest::newRow("west across 180") << 0.0 << -5.0 << GeoPoint{10.0, -179.9998} << 270.0;
        QTest::newRow("standing") << 0.0 << 0.0 << GeoPoint{48.0, 11.0} << -1.0;
    }

    void courses()
    {
        QFETCH(double, north);
        QFETCH(double, east);
        QFETCH(GeoPoint, from);
        constexpr double Degree = 111195.0;
        PositionTrack track;
        for (int k = 0; k < 20; ++k) {
            const double noise = (k * 7 % 3 - 1) * 0.3 / Degree;
            const double longitude =
                from.longitude + k * east / Degree / std::cos(from.latitude * M_PI / 180.0);
            track.append(
                k, {from.latitude + k * north / Degree + noise, std::remainder(longitude, 360.0)});
        }
        const double found = track.courseAt(10).value_or(-1.0);
        QFETCH(double, course);
        QVERIFY2(qAbs(std::remainder(found - course, 360.0)) < 3.0,
                 qPrintable(QString::number(found)));
    }

    /// Distances from the centre and between neighbours are those on the earth, and the way back
    /// leads to where it came from.
    void projection_data()
    {
        QTest::addColumn<GeoPoint>("centre");
        QTest::addColumn<GeoPoint>("point");
        QTest::addColumn<double>("wrong"); // of lengths, share
        QTest::newRow("near") << GeoPoint{48.0, 11.0} << GeoPoint{48.3, 10.5} << 1e-5;
        QTest::newRow("250 km") << GeoPoint{48.0, 11.0} << GeoPoint{50.0, 9.0} << 3e-4;
        QTest::newRow("equator") << GeoPoint{0.0, 0.0} << GeoPoint{-1.0, 1.0} << 3e-4;
        QTest::newRow("across 180") << GeoPoint{10.0, 179.9} << GeoPoint{10.5, -179.5} << 3e-4;
        QTest::newRow("85 degrees") << GeoPoint{85.0, 20.0} << GeoPoint{85.5, 31.0} << 3e-4;
        QTest::newRow("across the pole") << GeoPoint{89.5, 0.0} << GeoPoint{89.4, 180.0} << 3e-4;
        QTest::newRow("south") << GeoPoint{-85.0, -179.0} << GeoPoint{-86.0, 179.0} << 3e-4;
        QTest::newRow("the pole itself") << GeoPoint{90.0, 0.0} << GeoPoint{89.0, 77.0} << 3e-4;
        QTest::newRow("4000 km") << GeoPoint{48.0, 11.0} << GeoPoint{40.0, -40.0} << 0.1;
    }

    void projection()
    {
        QFETCH(GeoPoint, centre);
        QFETCH(GeoPoint, point);
        QFETCH(double, wrong);
        const TrackProjection projection(centre);
        QVERIFY(apart(projection.toPlane(centre), {}) < 1e-6);
        const QPointF place = projection.toPlane(point);
        const double length = distanceBetween(centre, point);
        QVERIFY(qAbs(std::hypot(place.x(), place.y()) / length - 1.0) < 1e-6);
        QVERIFY(distanceBetween(projection.toEarth(place), point) < 0.01);
        for (const auto& [north, east] : {std::pair(0.01, 0.0), std::pair(0.0, 0.01)}) {
            const GeoPoint beside{point.latitude + north, point.longitude + east};
            const double there = apart(projection.toPlane(beside), place);
            const double here = distanceBetween(point, beside);
            QVERIFY2(qAbs(there / here - 1.0) <= wrong, qPrintable(QString::number(there / here)));
        }
        const GeoPoint up{point.latitude + 0.001, point.longitude};
        const QPointF way = projection.toPlane(up) - place;
        const double northwards = std::atan2(way.x(), way.y()) * 180.0 / M_PI;
        QVERIFY(qAbs(std::remainder(projection.northAt(place) - northwards, 360.0)) < 0.01);
    }

    /// All that a position did shows: none is farther than a pixel from the line, at any scale, and
    /// no line runs where nobody was.
    void simplified()
    {
        std::mt19937 random(7);
        PositionTrack track;
        GeoPoint point{48.0, 11.0};
        for (int k = 0; k < 20'000; ++k) {
            const double stride = pick(random, 50) == 0 ? 3e-4 : 2e-5;
            point.latitude += stride * (pick(random, 201) - 100) / 100.0;
            point.longitude += stride * (pick(random, 201) - 95) / 100.0;
            track.append(k, point, pick(random, 700) == 0);
        }
        const TrackScene scene = sceneOf(std::move(track));
        const TrackPath& path = scene.ground->path;
        TrackView view = fitted(scene);
        view.scale *= 100.0;
        std::size_t vertices = 0;
        for (const TrackPath::Line& line : path.lines(view, {}, 0, path.size())) {
            vertices += std::size_t(line.points.size());
        }
        QVERIFY2(vertices < 500, qPrintable(QString::number(vertices))); // some pixels
        view = fitted(scene);
        for (int step = 0; step < 12; ++step) {
            const auto lines = path.lines(view, {}, 0, path.size());
            std::vector<std::pair<QPointF, QPointF>> pieces;
            for (const TrackPath::Line& line : lines) {
                for (qsizetype k = 0; k < line.points.size(); ++k) {
                    pieces.emplace_back(line.points[k],
                                        line.points[std::min(k + 1, line.points.size() - 1)]);
                }
            }
            for (std::size_t k = 0; k < path.size(); k += 7) {
                const QPointF pixel = view.toPixel(path.point(k));
                if (!view.area.contains(pixel)) {
                    continue;
                }
                const bool isDrawn = std::ranges::any_of(pieces, [&](const auto& piece) {
                    return distanceTo(piece.first, piece.second, pixel) <= 1.0;
                });
                QVERIFY2(isDrawn, qPrintable(QString("step %1, position %2").arg(step).arg(k)));
            }
            for (const auto& [from, to] : pieces) {
                const QPointF middle = (from + to) / 2.0;
                const auto hit = path.nearest(view, middle, 5.0);
                QVERIFY2(hit && hit->distance < 1.01, qPrintable(QString::number(step)));
            }
            view.zoom(0.6, {300.0, 310.0});
        }
    }

    /// A shade of one position among thousands on a pixel is seen, and ends where it ends.
    void shades()
    {
        PositionTrack track;
        for (int k = 0; k < 10'000; ++k) {
            track.append(k, {48.0, 11.0 + k * 1e-6});
        }
        const TrackScene scene = sceneOf(std::move(track));
        std::vector<std::uint8_t> values(10'000, 0);
        values[5'001] = 2;
        const TrackShades shades(values);
        TrackView view = fitted(scene);
        for (const double scale : {view.scale, view.scale * 20.0, view.scale / 50.0}) {
            view.scale = scale;
            const auto lines = scene.ground->path.lines(view, shades, 0, 10'000);
            QCOMPARE(std::ranges::count(lines, 2, &TrackPath::Line::shade), 1);
            double length = 0.0;
            for (const TrackPath::Line& line : lines) {
                length += line.shade == 2 ? apart(line.points.first(), line.points.last()) : 0.0;
            }
            QVERIFY(length < 2.0 + apart(view.toPixel(scene.ground->path.point(5'001)),
                                         view.toPixel(scene.ground->path.point(5'002))));
        }
        // A part of it.
        const auto part = scene.ground->path.lines(view, {}, 5'000, 5'003);
        QCOMPARE(part.size(), std::size_t(1));
        QVERIFY(apart(part[0].points.first(), view.toPixel(scene.ground->path.point(5'000))) <
                1e-6);
        QVERIFY(apart(part[0].points.last(), view.toPixel(scene.ground->path.point(5'002))) < 1e-6);
    }

    /// What is episode, lamp or fault stands where it happened; what has no position is counted.
    void marks()
    {
        QString samples;
        for (int k = 0; k < 60; ++k) {
            if (k < 8 || k >= 50) {
                samples += QString("500@%1=%2 501@%1=11 502@%1=%3 ")
                               .arg(k)
                               .arg(48.0 + k * 1e-3)
                               .arg(100 * k);
            }
            const int hot = k == 3 ? 15 : k == 4 ? 25 : k == 30 ? 12 : 5;
            samples += QString("503@%1=%2 ").arg(k).arg(hot);
        }
        const auto flight = flightOf(samples, Positions);
        Progress none;
        const TrackScene scene = sceneOf(trackOf(*flight));
        const Troubles troubles = flight->troubles(0.0, none);
        const TrackMarks marks = marksOf(troubles, scene.ground->track, scene.ground->projection);
        QCOMPARE(marks.elsewhere, std::size_t(1));
        QCOMPARE(marks.marks.size(), std::size_t(1));
        const TrackMark& mark = marks.marks.front();
        QCOMPARE(mark.text, QString("00:00:03, 2.0 s, D hot, Limit, peak 25 at 00:00:04, "
                                    "threshold \u2265 20"));
        QCOMPARE(mark.altitude, 400.0);
        QVERIFY(apart(mark.place, scene.ground->path.point(4)) < 0.01);
        QVERIFY(mark.begin == 3 && mark.end == 5);

        const TrackColors states = TrackColors::ofStates(scene.ground->track, troubles.limits);
        const ProfileParameter& hot = *flight->profile()->parameters()[3].parameter;
        const TrackColors values =
            TrackColors::ofValues(scene.ground->track, *flight, 0.0, hot, none);
        QString seen;
        for (std::size_t k = 0; k < 7; ++k) {
            seen += QString("%1:%2 ").arg(states.shades().at(k)).arg(values.shades().at(k));
        }
        QCOMPARE(seen, QString("0:1 0:1 0:1 2:31 2:60 0:1 0:1 "));
        QCOMPARE(values.legend().low + " " + values.legend().high, QString("5 25"));
    }

    void heights()
    {
        PositionTrack track;
        for (int k = 0; k < 100'000; ++k) {
            const double altitude = k == 77'777 ? 900.0 : k == 33'333 ? -50.0 : 500.0;
            const bool isMissing = k >= 50'000 && k < 52'000;
            track.append(k * 0.1, {48.0 + std::min(k, 90'000) * 1e-6, 11.0}, k == 20'000,
                         isMissing ? NAN : altitude);
        }
        for (const auto axis : {HeightProfile::Time, HeightProfile::Distance}) {
            const HeightProfile profile(track, axis, 300);
            double lowest = 1e9;
            double highest = -1e9;
            for (const QPolygonF& line : profile.lines()) {
                for (const QPointF& point : line) {
                    QVERIFY(point.x() >= 0.0 && point.x() < 300.0);
                    lowest = std::min(lowest, point.y());
                    highest = std::max(highest, point.y());
                }
            }
            QCOMPARE(lowest, -50.0);
            QCOMPARE(highest, 900.0);
            QCOMPARE(profile.lines().size(), std::size_t(3));
        }
        QVERIFY(qAbs(timeAtMetres(track, track.metres(40'000)) - 4'000.0) < 0.2);
        QCOMPARE(timeAtMetres(track, -1.0), 0.0);
    }

    void degrees_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("isLongitude");
        QTest::addColumn<double>("step"); // seconds
        QTest::addColumn<QString>("text");
        QTest::newRow("degrees") << 48.0 << false << 3600.0 << "48\u00b0N";
        QTest::newRow("minutes") << -48.0833333333 << false << 300.0 << "48\u00b005'S";
        QTest::newRow("seconds") << 11.9999999 << true << 10.0 << "12\u00b000'00\"E";
        QTest::newRow("tenths") << -11.50002777 << true << 0.1 << "11\u00b030'00.1\"W";
        QTest::newRow("past 180") << 190.0 << true << 3600.0 << "170\u00b0W";
        QTest::newRow("180") << -180.0 << true << 3600.0 << "180\u00b0";
        QTest::newRow("equator") << 0.0 << false << 3600.0 << "0\u00b0";
    }

    void degrees()
    {
        QFETCH(double, value);
        QFETCH(bool, isLongitude);
        QFETCH(double, step);
        QTEST(degreesText(value, isLongitude, step), "text");
    }

    /// Whatever was flown, the chart can be drawn and read.
    void pictures_data()
    {
        QTest::addColumn<QString>("samples");
        QTest::addColumn<QString>("expected"); // some of the texts
        const auto flown = [](double latitude, double longitude, double north, double east) {
            QString samples;
            for (int k = 0; k < 50; ++k) {
                double there = longitude + k * east;
                there -= there > 180.0 ? 360.0 : 0.0;
                samples += QString("500@%1=%2 501@%1=%3 502@%1=%1 ")
                               .arg(k)
                               .arg(latitude + k * north, 0, 'f', 6)
                               .arg(there, 0, 'f', 6);
            }
            return samples;
        };
        QTest::newRow("across the date line")
            << flown(10.0, 179.95, 1e-4, 2e-3) << "180\u00b000'|179\u00b058'W|10\u00b000'N|1 km";
        QTest::newRow("over 85 degrees") << flown(84.95, 20.0, 2e-3, 1e-2) << "85\u00b000'N|N";
        QTest::newRow("over the pole") << flown(89.9, 20.0, 2e-3, 0.0) << "89\u00b058'N|N";
        QTest::newRow("standing") << flown(48.0, 11.0, 0.0, 0.0) << "50 m|N";
        QTest::newRow("a single position") << "500@1=48 501@1=11"
                                           << "50 m|N";
        QTest::newRow("none") << "503@1=5"
                              << "";
        QTest::newRow("all around the earth") << flown(10.0, -180.0, 0.0, 4.5) << "N";
    }

    void pictures()
    {
        QFETCH(QString, samples);
        QFETCH(QString, expected);
        const auto flight = flightOf(samples, Positions);
        const TrackScene scene = sceneOf(trackOf(*flight));
        const QStringList texts = scene.empty() ? QStringList() : textsOf(scene, 25.0);
        for (const QString& text : expected.split('|', Qt::SkipEmptyParts)) {
            QVERIFY2(texts.contains(text), qPrintable(text + " is not in " + texts.join(", ")));
        }
        QVERIFY(!texts.contains("bad number") && !texts.contains("bad xml"));
        QCOMPARE(QSet<QString>(texts.begin(), texts.end()).size(), texts.size());
    }
};

QTEST_GUILESS_MAIN(TestTrack)
#include "tst_track.moc"
