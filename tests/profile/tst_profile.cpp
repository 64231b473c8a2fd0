#include "profile/Project.h"
#include "support/FlightTest.h"

#include <algorithm>
#include <numeric>

using namespace TARN;

namespace {

const QByteArray ProjectProfile =
    "<Device name='D1'><Parameter name='zebra'/><Parameter name='a&lt;b'/>"
    "<Parameter name=''/></Device><Device name='D2'><Parameter name='T\xC3\xBCr'/>"
    "<Parameter name='zebra'/></Device>";

QStringList fullNames(const Profile& profile, const Selection& selection)
{
    QStringList names;
    for (const ProfileParameter* parameter : selection.parameters(profile)) {
        names += parameter->fullName;
    }
    return names;
}

} // namespace

class TestProfile : public FlightTest
{
    Q_OBJECT

    static const ProfileParameter& parameter(const Profile& profile, std::size_t index)
    {
        return *profile.parameters().at(index).parameter;
    }

private Q_SLOTS:
    void everyAttribute()
    {
        const auto profile = Profile::load(write(
            "profile.xml",
            "<CanAerospaceProfile name='P'>"
            "<UnitList><Unit code='1' acronym='old'/><Unit code='1' acronym='rpm' name='R'/>"
            "</UnitList>"
            "<EnumList><Enum name='E'><Value val='-1' label='m'/><Value val='0x10' label='h'/>"
            "</Enum></EnumList>"
            "<ThresholdList><Threshold name='T'><Value val='1.5' color='red' state='LIMIT'/>"
            "<Value val='-2' color='#00ff00' state='WARNING'/><Value state='OK'/>"
            "<Value state='limit'/></Threshold></ThresholdList>"
            "<Device name='D'><Parameter name='N' unit='U' viewId='V' id='0x1F4' startByte='4' "
            "startBit='2' endBit='5' channel='1' offset='-40.5' factor='0.1' kmlId='Altitude' "
            "dataType='NMEA' enumId='E' thresholdId='T' errorType='Fault'/></Device>"
            "</CanAerospaceProfile>"));
        QCOMPARE(diagnostics(), "Load profile <" + path("profile.xml").toUtf8() + "> 1\n");
        QVERIFY(profile->isLoaded() && profile->fileName() == path("profile.xml"));
        const ProfileInfo& info = profile->data();
        QCOMPARE(info.name, QString("P"));
        QVERIFY(info.units.size() == 1 && info.units.at(1).acronym == "rpm");
        const auto& labels = info.enums.at(1).values;
        QCOMPARE(labels.at(16).label + labels.at(-1).label, QString("hm"));
        const auto& steps = info.thresholds.at(1).values;
        QCOMPARE(steps.size(), 4U);
        QVERIFY(steps[0].val == 1.5 && steps[1].val == -2.0 && steps[0].color == Qt::red);
        QVERIFY(steps[0].state == StateLimit && steps[1].state == StateWarning &&
                steps[2].state == StateOk && steps[3].state == StateOk);
        const ProfileParameter& p = parameter(*profile, 0);
        QCOMPARE(QStringList({p.name, p.fullName, p.unit, p.viewId, p.title()}),
                 QStringList({"N", "D/N", "U", "V", "N [U]"}));
        const int numbers[] = {p.id,       p.startByte, p.startBit,    p.endBit,   p.channel,
                               p.dataType, p.enumId,    p.thresholdId, p.errorType};
        const int expected[] = {500, 4, 2, 5, 1, 70, 1, 1, 3};
        QVERIFY(std::ranges::equal(numbers, expected) && p.offset == -40.5 && p.factor == 0.1);
        QCOMPARE(profile->kmlInfo().altitudeId + profile->kmlInfo().altitudeChannel, 501);
    }

    void numberingAndLookUp()
    {
        const auto profile = profileOf(
            "<Device><Parameter enumId='A'/></Device>" // what stands later is not seen
            "<EnumList><Enum name='A'/><Enum name='A'/></EnumList>"
            "<EnumList><Enum name='B'/></EnumList><ThresholdList><Threshold name='X'/>"
            "</ThresholdList><ThresholdList><Threshold name='Y'/></ThresholdList>"
            "<Device><Parameter enumId='A' thresholdId='Y'/>" // the later of two with one name
            "<Parameter enumId='B'/><Parameter enumId='C' thresholdId='x'/><Parameter/></Device>"
            "<EnumList><Enum/></EnumList><Device><Parameter/></Device>"); // the one without a name
        QStringList found;
        for (const auto& [device, p] : profile->parameters()) {
            found += QString("%1:%2.%3").arg(device->id).arg(p->enumId).arg(p->thresholdId);
        }
        QCOMPARE(found.join(' '), QString("1:0.0 2:2.2 2:3.0 2:0.0 2:0.0 3:4.0"));
        const ProfileParameter& bare = parameter(*profile, 5);
        QVERIFY(bare.fullName == "/" && bare.factor == 1.0 && bare.dataType == DataType::NoData);
    }

    void typeNames()
    {
        const QStringList names =
            QString("NODATA ERROR FLOAT LONG ULONG BLONG SHORT USHORT BSHORT CHAR UCHAR BCHAR "
                    "SHORT_2 USHORT_2 BSHORT_2 CHAR_4 UCHAR_4 BCHAR_4 CHAR_2 UCHAR_2 BCHAR_2 MEMID "
                    "CHKSUM ACHAR ACHAR_2 ACHAR_4 CHAR_3 UCHAR_3 BCHAR_3 ACHAR_3 LONG48 NMEA float")
                .split(' ');
        QByteArray device;
        for (const QString& name : names) {
            device += "<Parameter dataType='" + name.toUtf8() + "'/>";
        }
        const auto profile = profileOf("<Device>" + device + "</Device>");
        for (int i = 0; i < 33; ++i) {
            QCOMPARE(parameter(*profile, i).dataType, i < 31 ? i : i == 31 ? 70 : 0);
        }
    }

    void steadyMarks()
    {
        const std::tuple<const char*, double, double> rows[] = {
            {"", NAN, NAN},           {"steady='2.5' steadyAbove='-1e2'", 2.5, -100.0},
            {"steady='0'", 0.0, NAN}, {"steady='-1' steadyAbove='7'", NAN, 7.0},
            {"steady='x'", NAN, NAN}, {"steady='inf' steadyAbove='nan'", NAN, NAN},
            {"steady=''", NAN, NAN},  {"steady='1' steadyAbove='x'", 1.0, NAN}};
        const auto isSame = [](const std::optional<double>& found, double expected) {
            return std::isnan(expected) ? !found : found == expected;
        };
        for (const auto& [attributes, percent, above] : rows) {
            const auto profile =
                profileOf("<Device><Parameter " + QByteArray(attributes) + "/></Device>");
            const ProfileParameter& p = parameter(*profile, 0);
            QVERIFY2(isSame(p.steady, percent) && isSame(p.steadyAbove, above), attributes);
        }
    }

    void colors()
    {
        QByteArray values;
        for (const char* text : {"red", "DarkBlue", "#f00", "#FF8000", "#fff800000",
                                 "#ffff80000000", "", "#80ff0000", "#ff00", "ff0000", "reddish"}) {
            values += QByteArray("<Value color='") + text + "'/>";
        }
        const auto profile =
            profileOf("<ThresholdList><Threshold>" + values + "</Threshold></ThresholdList>");
        QStringList found;
        for (const ProfileThrValue& value : profile->data().thresholds.at(1).values) {
            found += value.color.isValid() ? value.color.name() : "-";
        }
        QCOMPARE(found.join(' '),
                 QString("#ff0000 #00008b #ff0000 #ff8000 #ff8000 #ff8000 - - - - -"));
    }

    void errorMatrices()
    {
        const auto profile = profileOf(
            "<Device><Parameter name='early' id='7' startBit='0'/>"
            "<ErrorMatrix id='7' name='M'/><ErrorMatrix id='8'/>"
            "<Parameter name='b' id='7' startBit='9' errorType='Info'/>"
            "<Parameter name='no bit' id='7' startBit='32'/>"
            "<Parameter name='replaced' id='7' startBit='2'/></Device>"
            "<Device><ErrorMatrix id='7'/><Parameter name='a' id='7' startBit='2'/></Device>");
        QStringList found;
        for (const FaultMatrix& matrix : profile->data().faultMatrices) {
            found += QString("%1 '%2'").arg(matrix.id).arg(matrix.name);
            for (const auto& [bit, p] : matrix.parameters) {
                found += QString("%1=%2/%3").arg(bit).arg(p.name).arg(p.errorType);
            }
        }
        QCOMPARE(found.join(' '), QString("7 'M' 2=a/0 9=b/1 8 '' 7 '' 2=a/0"));
    }

    void refused()
    {
        const auto isLoaded = [](const QString& file) {
            const auto profile = Profile::load(file);
            return profile->isLoaded() || !profile->data().devices.empty() ||
                   profile->fileName() != file;
        };
        QVERIFY(!isLoaded(write("other.xml", "<Profile><Device/></Profile>")));
        QVERIFY(diagnostics().contains("<" + path("other.xml").toUtf8() +
                                       ">: its root element is <Profile>"));
        QVERIFY(!isLoaded(write("cut.xml", "<CanAerospaceProfile><Device/>")));
        QVERIFY(
            diagnostics().contains("could not set content <" + path("cut.xml").toUtf8() + ">\n"));
        QVERIFY(!isLoaded(path("none.xml")));
    }

    void nextProfileKnowsWhatItDoesNotName()
    {
        const auto first = profileOf(
            "<EnumList><Enum name='E'/></EnumList><UnitList><Unit/></UnitList>"
            "<ThresholdList><Threshold name='T'/></ThresholdList><Device><ErrorMatrix/><Parameter "
            "id='900' channel='1' dataType='USHORT' startByte='4' factor='2' kmlId='Latitude'/>"
            "<Parameter dataType='float'/></Device>");
        const auto next = Profile::load(
            write("next.xml", "<CanAerospaceProfile><Device name='new'><Parameter enumId='E' "
                              "thresholdId='T'/></Device></CanAerospaceProfile>"),
            first.get());
        const ProfileInfo& info = next->data();
        QVERIFY(info.enums.empty() && info.units.empty() && info.thresholds.empty());
        QVERIFY(info.faultMatrices.empty() && info.devices.size() == 1);
        QCOMPARE(next->parameters().size(), 1U);
        QCOMPARE(parameter(*next, 0).enumId + parameter(*next, 0).thresholdId, 0);
        QVERIFY(parameter(*next, 0).uid > parameter(*first, 1).uid);
        QVERIFY(next->typeCodes().contains("float")); // known from now on, as nothing
        QCOMPARE(next->kmlInfo().latitudeId + next->kmlInfo().latitudeChannel, 901);
        RecordEntry entry{{0, 10, 0, 0, 1, 0, 0, 0}, 0, 0, 0, 900, 0, 0, 0, 0};
        QCOMPARE(next->getDouble(entry, true), 512.0);
        QCOMPARE(next->getInt(entry), 1);
        entry.id = 4711;
        QCOMPARE(next->getDouble(entry, true), 0.0);
        QCOMPARE(Profile::load(next->fileName())->parameterById(900).dataType, 0);
    }

    void projectFiles()
    {
        const std::pair<QByteArray, QByteArray> projects[] = {
            // in profile order, what is strange left out; all of a name; unknown names, once
            {"<Parameter name='T\xC3\xBCr'/><Other name='zebra'/></Parameters><Parameters>"
             "<Parameter name='a&lt;b'/>",
             "a&lt;b,T\xC3\xBCr"},
            {"<Parameter name='zebra'/>", "zebra,zebra"},
            {"<Parameter name='y'/><Parameter name='Zebra'/><Parameter/><Parameter name='b'/>"
             "<Parameter name='y'/>",
             ",y,Zebra,b"}};
        const auto profile = profileOf(ProjectProfile);
        for (const auto& [names, saved] : projects) {
            const QByteArray xml =
                "<x><Parameters>" + names + "</Parameters><Parameter name='zebra'/></x>";
            Project project;
            QVERIFY(project.readProject(write("p.xml", xml).toStdString()));
            const Selection selection = project.selection(*profile);
            QVERIFY(project.saveProject(path("saved.xml").toStdString(), *profile, selection));
            QByteArray list;
            for (const QByteArray& name : saved.split(',')) {
                list += "        <Parameter name=\"" + name + "\"/>\n";
            }
            QCOMPARE(read("saved.xml"), "<TarnProject>\n    <Parameters>\n" + list +
                                            "    </Parameters>\n</TarnProject>\n");
            QVERIFY(project.readProject(path("saved.xml").toStdString()));
            QVERIFY(project.selection(*profile) == selection);
        }
    }

    void projectKeepsLooks()
    {
        const auto profile = profileOf(ProjectProfile);
        const std::string file =
            write("p.xml",
                  "<x><Curves ordered='true'><Curve name='b'/><Curve name='gone' hidden='true'/>"
                  "<Curve name='a&lt;b' color='#ff8000' low='-1.5' high='0.1'/>"
                  "<Curve name='zebra' color='none' low='3' high='3' hidden='yes'/></Curves></x>")
                .toStdString();
        Project project;
        QVERIFY(project.readProject(file));
        CurveLooks looks = project.looks();
        QCOMPARE(looks.order, std::vector<std::string>({"b", "gone", "a<b", "zebra"}));
        QVERIFY(looks.byName.size() == 2 && looks.byName["gone"].hidden);
        QVERIFY(looks.byName["a<b"].color == QColor(255, 128, 0) &&
                looks.byName["a<b"].range == std::pair(-1.5, 0.1));
        for (const bool isOrdered : {true, false}) {
            looks.order.resize(isOrdered ? 4 : 0);
            project.setLooks(looks);
            QVERIFY(project.saveProject(file, *profile, {}));
            Project again;
            QVERIFY(again.readProject(file) && again.looks() == looks);
        }
        project.clear();
        QVERIFY(project.looks().empty());
    }

    void projectFollowsSelection()
    {
        const auto profile = profileOf(ProjectProfile);
        const std::string file =
            write("p.xml", "<x><Parameters><Parameter name='gone'/><Parameter name='zebra'/>"
                           "</Parameters></x>")
                .toStdString();
        Project project;
        QVERIFY(project.readProject(file));
        project.setSelection(*profile, select(*profile, {"a<b", "zebra"}));
        QCOMPARE(fullNames(*profile, project.selection(*profile)),
                 QStringList({"D1/zebra", "D1/a<b", "D2/zebra"}));
        // Another profile knows the name that this one does not, and not all that this one knows.
        const auto other = profileOf("<Device name='D'><Parameter name='gone'/></Device>");
        QCOMPARE(fullNames(*other, project.selection(*other)), QStringList("D/gone"));
        QCOMPARE(project.unknownNames(*other), std::vector<std::string>({"zebra", "a<b"}));
        QVERIFY(!project.saveProject(file + "/sub.xml", *profile, {}));
        QVERIFY(read("p.xml").contains("gone"));
        QVERIFY(!project.readProject(write("bad.xml", "<x><Parameters>").toStdString()));
        QVERIFY(project.selection(*profile).empty() && project.unknownNames(*other).empty());
    }

    void whatIsAProject()
    {
        QVERIFY(Project::mayReplace(path("none.xml").toStdString()));
        const std::tuple<const char*, bool, bool> files[] = {
            {"<TarnProject/>", true, true},
            {"<x><Parameters/></x>", true, false},
            {"<x><y><Parameters/></y></x>", false, false},
            {"<TarnProject>", false, false},
            {"", false, false}};
        for (const auto& [content, isProject, mayReplace] : files) {
            const std::string file = write("p.xml", content).toStdString();
            QVERIFY2(Project::isProject(file) == isProject, content);
            QVERIFY2(Project::mayReplace(file) == mayReplace, content);
        }
    }

    void selections()
    {
        const auto profile = profileOf(ProjectProfile);
        Selection selection = Selection::all(*profile);
        QCOMPARE(fullNames(*profile, selection).join(' '),
                 QString("D1/zebra D1/a<b D1/ D2/T\u00FCr D2/zebra"));
        for (const std::size_t place : {4, 0, 2, 2}) {
            selection.set(parameter(*profile, place), false);
        }
        QVERIFY(!selection.empty() && !selection.contains(parameter(*profile, 0)));
        QVERIFY(selection == select(*profile, {"a<b", "T\u00FCr"}));
        QVERIFY(selection.parameters(*profileOf(ProjectProfile)).empty()); // of another profile
    }

    void unknownIdentifiersAreCounted()
    {
        const auto flight = flightOf("500@1=1 500/1@1=1 500/1@2=1 501@1=1 502@1=1 700@1=1 1200@1=1 "
                                     "1206/1@1=1 700/1@1=1",
                                     "<Device><Parameter id='500'/><Parameter id='501'/>"
                                     "<ErrorMatrix id='700'/></Device>");
        QCOMPARE(flight->unknown().identifiers, 3U);
        QCOMPARE(flight->unknown().samples, 4U);
        QCOMPARE(flight->unknown().remark(),
                 QString("Identifiers that the profile does not describe: 3, their samples: 4"));
        QVERIFY(UnknownIdentifiers().remark().isEmpty());
    }

    /// A parameter's samples, which count themselves, at any times and with any offset.
    void seriesAsAPlainScanSeesIt()
    {
        const auto profile = profileOf("<Device><Parameter id='500' dataType='FLOAT' startByte='4' "
                                       "factor='2'/></Device>");
        std::mt19937 random(7);
        for (int round = 0; round < 300; ++round) {
            const bool isShifted = pick(random, 2) == 0;
            const double offset = pick(random, 9) - 4.25;
            const unsigned span = round % 3 == 0 ? 0 : 1 + pick(random, 60); // 0: in order
            QString samples = "501@0=0 501@200=0";
            std::vector<double> times;
            double time = 0.0;
            for (int i = pick(random, 60); i > 0; --i) {
                const double step =
                    pick(random, 8) == 0 ? pick(random, 40) : pick(random, 4) * 0.25;
                time = span == 0 ? time + step : pick(random, span) * 0.25;
                samples += QString(" 500@%1=%2").arg(time).arg(times.size());
                const auto stamp = [&](int shift) { return std::uint32_t(ticks(time) >> shift); };
                times.push_back(RecordEntry::secondsOf(stamp(32), stamp(0)) +
                                (isShifted ? offset : 0));
            }
            const auto record =
                load({writeRecording(samples, isShifted ? "REC_8000.CAN" : "REC_0000.CAN")});
            const Series series(record->recordData(), *profile, parameter(*profile, 0), offset);
            QCOMPARE(series.size(), times.size());
            std::vector<double> found(times.size());
            series.timesOf(series.entries(), found.data());
            QCOMPARE(found, times);
            std::vector<std::size_t> places(times.size());
            std::iota(places.begin(), places.end(), 0U);
            std::ranges::stable_sort(places, {}, [&](std::size_t place) { return times[place]; });
            std::ranges::sort(times);
            QCOMPARE(series.isInOrder(), found == times);
            std::vector<double> steps;
            for (std::size_t k = 0; k < times.size(); ++k) {
                QCOMPARE(series.time(k), times[k]);
                QCOMPARE(series.value(k), 2.0 * static_cast<double>(places[k]));
                if (k > 0 && times[k] > times[k - 1]) {
                    steps.push_back(times[k] - times[k - 1]);
                }
            }
            for (std::size_t k = 0; k <= 2 * times.size(); ++k) {
                const double at = k < times.size() ? times[k] : pick(random, 160) * 0.5 - 5.0;
                const auto [first, after] = std::ranges::equal_range(times, at);
                QCOMPARE(std::ptrdiff_t(series.firstNotBefore(at)), first - times.begin());
                QCOMPARE(std::ptrdiff_t(series.firstAfter(at)), after - times.begin());
            }
            for (std::size_t begin = 0; begin < places.size(); ++begin) {
                const std::size_t end = begin + 1 + random() % (places.size() - begin);
                const auto last = std::max_element(places.begin() + begin, places.begin() + end);
                QCOMPARE(&series.lastInList(begin, end), &series.entries()[*last]);
            }
            const auto silences = [&] {
                return std::make_shared<Silences>(record->recordData(), offset);
            };
            const GapRule rule = series.gapRule(silences);
            QCOMPARE(rule.limit(), GapRule(steps, silences).limit());
            QVERIFY(rule.limit() || rule.isGap(-1000.0, 1000.0)); // from the recording's silence
        }
    }
};

QTEST_GUILESS_MAIN(TestProfile)
#include "tst_profile.moc"
