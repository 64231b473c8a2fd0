#include "profile/Profile.h"
#include "profile/Project.h"
#include "support/CoreTest.h"

using namespace TARN;

namespace {

const QByteArray ProjectProfile =
    "<Device name='D1'><Parameter name='zebra'/><Parameter name='a&lt;b'/>"
    "<Parameter name=''/></Device><Device name='D2'><Parameter name='T\xC3\xBCr'/>"
    "<Parameter name='zebra'/></Device>";

} // namespace

class TestProfile : public CoreTest
{
    Q_OBJECT

    Profile& mProfile = *Profile::instance();
    ProfileInfo& mInfo = mProfile.data();

    bool load(const QByteArray& content, const QByteArray& root = "CanAerospaceProfile name='P'")
    {
        const QByteArray end = "</" + root.split(' ').first() + ">";
        return mProfile.loadProfile(write("profile.xml", "<" + root + ">" + content + end));
    }

    const ProfileParameter& parameter(int device, int index = 0)
    {
        return std::next(mInfo.devices.at(device).parameters.begin(), index)->second;
    }

    QStringList selectedNames()
    {
        QStringList names;
        for (const ProfileParameter* selected : mProfile.selectedParameters()) {
            names += selected->fullName;
        }
        return names;
    }

private Q_SLOTS:
    void everyAttribute()
    {
        QVERIFY(load(
            "<UnitList><Unit code='1' acronym='old'/><Unit code='1' acronym='rpm' name='R'/>"
            "</UnitList>"
            "<EnumList><Enum name='E'><Value val='-1' label='m'/><Value val='0x10' label='h'/>"
            "</Enum></EnumList>"
            "<ThresholdList><Threshold name='T'><Value val='1.5' color='red' state='LIMIT'/>"
            "<Value val='-2' color='#00ff00' state='WARNING'/><Value state='OK'/>"
            "<Value state='limit'/></Threshold></ThresholdList>"
            "<Device name='D'><Parameter name='N' unit='U' viewId='V' id='0x1F4' startByte='4' "
            "startBit='2' endBit='5' channel='1' offset='-40.5' factor='0.1' kmlId='Altitude' "
            "dataType='NMEA' enumId='E' thresholdId='T' errorType='Fault'/></Device>"));
        QCOMPARE(diagnostics(), "Load profile <" + path("profile.xml").toUtf8() + "> 1\n");
        QCOMPARE(mInfo.name, QString("P"));
        QVERIFY(mInfo.units.size() == 1 && mInfo.units[1].acronym == "rpm");
        QCOMPARE(mInfo.enums[1].values[16].label + mInfo.enums[1].values[-1].label, QString("hm"));
        const auto& steps = mInfo.thresholds[1].values;
        QCOMPARE(steps.size(), 4U);
        QVERIFY(steps[0].val == 1.5 && steps[0].color == QColor(255, 0, 0));
        QVERIFY(steps[1].val == -2.0 && !steps[2].color.isValid());
        QCOMPARE(steps[0].state * 1000 + steps[1].state * 100 + steps[3].state, 2100);
        const ProfileParameter& p = parameter(1);
        QCOMPARE(QStringList({p.name, p.fullName, p.unit, p.viewId, p.title()}),
                 QStringList({"N", "D/N", "U", "V", "N [U]"}));
        const int numbers[] = {p.id,        p.startByte,    p.startBit, p.endBit,
                               p.channel,   p.dataType,     p.enumId,   p.thresholdId,
                               p.errorType, int(p.selected)};
        const int expected[] = {500, 4, 2, 5, 1, 70, 1, 1, 3, 0};
        QVERIFY(std::ranges::equal(numbers, expected));
        QCOMPARE(p.offset, -40.5);
        QCOMPARE(p.factor, 0.1);
        QCOMPARE(mProfile.kmlInfo().altitudeChannel, 1);
        QCOMPARE(mProfile.kmlInfo().altitudeId, 500);
    }

    void numberingAndLookUp()
    {
        QVERIFY(load("<Device><Parameter enumId='A'/></Device>"
                     "<EnumList><Enum name='A'/><Enum name='A'/></EnumList>"
                     "<EnumList><Enum name='B'/></EnumList>"
                     "<ThresholdList><Threshold name='X'/></ThresholdList>"
                     "<ThresholdList><Threshold name='Y'/></ThresholdList>"
                     "<Device><Parameter enumId='A' thresholdId='Y'/><Parameter enumId='B'/>"
                     "<Parameter enumId='C' thresholdId='x'/><Parameter/></Device>"
                     "<EnumList><Enum/></EnumList><Device><Parameter/></Device>"));
        QCOMPARE(parameter(1).enumId, 0);    // what stands later is not seen
        QCOMPARE(parameter(2, 0).enumId, 2); // the later of two with one name
        QCOMPARE(parameter(2, 0).thresholdId, 2);
        QCOMPARE(parameter(2, 1).enumId, 3);
        QCOMPARE(parameter(2, 2).enumId + parameter(2, 2).thresholdId, 0);
        QCOMPARE(parameter(2, 3).enumId, 0);
        QCOMPARE(parameter(3).enumId, 4); // none named: the one without a name
        const ProfileParameter& bare = parameter(3);
        QCOMPARE(bare.fullName, QString("/"));
        QCOMPARE(bare.factor, 1.0);
        QCOMPARE(bare.id + bare.startByte + bare.endBit + bare.dataType, 0);
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
        QVERIFY(load("<Device>" + device + "</Device>"));
        for (int i = 0; i < 31; ++i) {
            QCOMPARE(parameter(1, i).dataType, i);
        }
        QCOMPARE(parameter(1, 31).dataType, 70);
        QCOMPARE(parameter(1, 32).dataType, 0);
        QVERIFY(mProfile.typeCodes().contains("float")); // known from now on, as nothing
    }

    void colors()
    {
        const std::pair<const char*, QColor> colors[] = {{"red", QColor(255, 0, 0)},
                                                         {"DarkBlue", QColor(0, 0, 139)},
                                                         {"#f00", QColor(255, 0, 0)},
                                                         {"#FF8000", QColor(255, 128, 0)},
                                                         {"#fff800000", QColor(255, 128, 0)},
                                                         {"#ffff80000000", QColor(255, 128, 0)},
                                                         {"", QColor()},
                                                         {"#80ff0000", QColor()},
                                                         {"#ff00", QColor()},
                                                         {"ff0000", QColor()},
                                                         {"reddish", QColor()}};
        for (const auto& [text, color] : colors) {
            QVERIFY(load(QByteArray("<ThresholdList><Threshold><Value color='") + text +
                         "'/></Threshold></ThresholdList>"));
            const QColor loaded = mInfo.thresholds[1].values[0].color;
            QVERIFY2(loaded.isValid() == color.isValid() && loaded.rgba() == color.rgba(), text);
        }
    }

    void errorMatrices()
    {
        QVERIFY(load(
            "<Device><Parameter name='early' id='7' startBit='0'/>"
            "<ErrorMatrix id='7' name='M'/><ErrorMatrix id='8'/>"
            "<Parameter name='b' id='7' startBit='9' errorType='Info'/>"
            "<Parameter name='no bit' id='7' startBit='32'/>"
            "<Parameter name='replaced' id='7' startBit='2'/></Device>"
            "<Device><ErrorMatrix id='7'/><Parameter name='a' id='7' startBit='2'/></Device>"));
        QCOMPARE(mInfo.faultMatrices.size(), 3U);
        QCOMPARE(mInfo.faultMatrices[0].name, QString("M"));
        QCOMPARE(mInfo.faultMatrices[0].parameters.size(), 2U);
        QCOMPARE(mInfo.faultMatrices[0].parameters[2].name, QString("a"));
        QCOMPARE(mInfo.faultMatrices[0].parameters[9].errorType, 1);
        QVERIFY(mInfo.faultMatrices[1].parameters.empty());
        QCOMPARE(mInfo.faultMatrices[2].parameters.size(), 1U);
    }

    void refused()
    {
        QVERIFY(load("<Device/>"));
        diagnostics();
        QVERIFY(!load("<Device/>", "Profile"));
        QVERIFY(diagnostics().contains("<" + path("profile.xml").toUtf8() +
                                       ">: its root element is <Profile>"));
        QVERIFY(mInfo.devices.empty());
        QVERIFY(load("<Device/>"));
        QVERIFY(!mProfile.loadProfile(write("cut.xml", "<CanAerospaceProfile><Device/>")));
        QVERIFY(
            diagnostics().contains("could not set content <" + path("cut.xml").toUtf8() + ">\n"));
        QVERIFY(mInfo.devices.empty());
        QVERIFY(!mProfile.loadProfile(path("none.xml")));
    }

    void reloadKeepsWhatIsNotNamed()
    {
        QVERIFY(load("<EnumList><Enum name='E'/></EnumList><UnitList><Unit/></UnitList>"
                     "<ThresholdList><Threshold name='T'/></ThresholdList><Device><ErrorMatrix/>"
                     "<Parameter id='900' dataType='USHORT' startByte='4' factor='2'/></Device>"));
        const int uid = parameter(1).uid;
        QVERIFY(load("<Device name='new'><Parameter enumId='E' thresholdId='T'/></Device>"));
        QVERIFY(mInfo.enums.empty() && mInfo.units.empty() && mInfo.thresholds.empty());
        QVERIFY(mInfo.faultMatrices.empty() && mInfo.devices.size() == 1);
        QCOMPARE(parameter(1).enumId + parameter(1).thresholdId, 0);
        QVERIFY(parameter(1).uid > uid);
        RecordEntry entry{{0, 10, 0, 0, 1, 0, 0, 0}, 0, 0, 0, 900, 0, 0, 0, 0};
        QCOMPARE(mProfile.getDouble(entry, true), 512.0); // look-up by identifier is not cleared
        QCOMPARE(mProfile.getInt(entry), 1);
        entry.id = 4711;
        QCOMPARE(mProfile.getDouble(entry, true), 0.0);
    }

    void projectRoundTrip()
    {
        QVERIFY(load(ProjectProfile));
        Project& project = *Project::instance();
        project.clear();
        const std::string file = path("project.xml").toStdString();
        QVERIFY(project.saveProject(file));
        QCOMPARE(read("project.xml"), QByteArray("<TarnProject>\n"
                                                 "    <Parameters/>\n"
                                                 "</TarnProject>\n"));
        mProfile.forEachParameter(
            [](const ProfileDevice&, ProfileParameter& p) { p.selected = true; });
        QVERIFY(project.saveProject(file));
        QCOMPARE(read("project.xml"), QByteArray("<TarnProject>\n"
                                                 "    <Parameters>\n"
                                                 "        <Parameter name=\"zebra\"/>\n"
                                                 "        <Parameter name=\"a&lt;b\"/>\n"
                                                 "        <Parameter name=\"\"/>\n"
                                                 "        <Parameter name=\"T\xC3\xBCr\"/>\n"
                                                 "        <Parameter name=\"zebra\"/>\n"
                                                 "    </Parameters>\n"
                                                 "</TarnProject>\n"));
        project.clear();
        QVERIFY(selectedNames().isEmpty());
        QVERIFY(project.readProject(file));
        QCOMPARE(selectedNames().size(), 5);
    }

    void projectReading()
    {
        const std::pair<QByteArray, QStringList> projects[] = {
            {"<Parameter name='a&lt;b'/><Other name='zebra'/></Parameters><Parameters>"
             "<Parameter name='gone'/><Parameter name='T\xC3\xBCr'/>",
             {"D1/a<b", "D2/T\u00FCr"}},
            {"<Parameter name='zebra'/><Parameter name='zebra'/>", {"D1/zebra", "D2/zebra"}},
            {"<Parameter/><Parameter name='Zebra'/>", {"D1/"}}};
        QVERIFY(load(ProjectProfile));
        for (const auto& [names, selected] : projects) {
            const QByteArray xml =
                "<x><Parameters>" + names + "</Parameters><Parameter name='zebra'/></x>";
            QVERIFY(Project::instance()->readProject(write("p.xml", xml).toStdString()));
            QCOMPARE(selectedNames(), selected);
        }
    }

    void projectFailures()
    {
        QVERIFY(load(ProjectProfile));
        Project& project = *Project::instance();
        QVERIFY(project.readProject(
            write("p.xml", "<x><Parameters><Parameter name='zebra'/></Parameters></x>")
                .toStdString()));
        diagnostics();
        QVERIFY(!project.readProject(write("bad.xml", "<x><Parameters>").toStdString()));
        QVERIFY(diagnostics().startsWith("could not set content <"));
        QCOMPARE(selectedNames().size(), 2); // the marks stay ...
        project.setProfileData();
        QVERIFY(selectedNames().isEmpty()); // ... the names are gone
        QVERIFY(!project.saveProject(path("p.xml/sub.xml").toStdString()));
        QVERIFY(read("p.xml").contains("zebra"));
    }
};

QTEST_APPLESS_MAIN(TestProfile)
#include "tst_profile.moc"
