#include "support/CommandRun.h"
#include "support/CoreTest.h"
#include "support/RecordingBuilder.h"

#include <QtCore/QRegularExpression>

#include <nlohmann/json.hpp>

using namespace TARN;
using nlohmann::json;

namespace {

struct Run : CommandRun
{
    /// Every line of the output as JSON.
    std::vector<json> lines() const
    {
        std::vector<json> parsed;
        std::istringstream stream(out);
        for (std::string line; std::getline(stream, line);) {
            parsed.push_back(json::parse(line));
        }
        return parsed;
    }
};

Run run(const QStringList& arguments)
{
    return {runCommand(arguments)};
}

std::string fromQuoted(const QByteArray& text)
{
    return quoted(text).toStdString();
}

} // namespace

class TestCli : public CoreTest
{
    Q_OBJECT

    QString profile() const
    {
        return write("profile.xml",
                     "<CanAerospaceProfile><EnumList><Enum name='E'><Value val='1' label='on'/>"
                     "</Enum></EnumList><ThresholdList><Threshold name='T'>"
                     "<Value val='10' state='WARNING' color='#FFFF00'/>"
                     "<Value val='20' state='LIMIT'/></Threshold></ThresholdList>"
                     "<Device name='ECU'>"
                     "<Parameter name='Oil' id='500' dataType='FLOAT' startByte='4' factor='0.1' "
                     "thresholdId='T'/>"
                     "<Parameter name='Lamp' id='501' channel='1' dataType='BLONG' startByte='4' "
                     "endBit='3' enumId='E'/></Device><Device name='AD'>"
                     "<Parameter name='Oil' id='502' dataType='USHORT' startByte='4'/>"
                     "</Device></CanAerospaceProfile>");
    }

    QString recording() const
    {
        RecordingBuilder file;
        file.add({500, ticks(1), "0002000042C80000"});
        file.add({501, ticks(2), "0005000000000001", 1});
        file.add({502, ticks(3), "0007000000070000"});
        return write("one.CAN", file.bytes());
    }

private Q_SLOTS:
    void info()
    {
        RecordingBuilder file(RecordingBuilder::Big);
        file.date(2021, 7, 9, 4, 5, 6).busType(2).ecuSerialNumber(4000000000U);
        file.text(0, "A").text(1, "ecu").text(2, "serial").text(3, "type").text(4, "B\xFC");
        file.text(5, "1.0").add({.ticks = ticks(1.5)}).add({.ticks = ticks(2.25)});
        const QString name = write("c.can", file.bytes());
        write("B.CAN", RecordingBuilder().bytes());
        const std::string expected = fromQuoted(
            "{'file':'" + name.toUtf8() +
            "','dateTime':'9.7.2021 4:05:06','startTime':1.5,'stopTime':2.25,'samples':2,"
            "'busType':2,'ecuSerialNumber':4000000000,'softwarePartA':'A',"
            "'softwarePartB':'B\xEF\xBF\xBD','ecuType':'ecu','emuSwVersion':'1.0',"
            "'engineSerialNr':'serial','engineType':'type',"
            "'integrity':{'missingHeaderBytes':0,'ignoredBytes':0}}\n");
        QCOMPARE(run({"info", "--json", name}).out, expected);
        const Run both = run({"info", "--json", folder()}); // sorted by path
        QVERIFY(both.lines().at(0)["file"] == path("B.CAN").toStdString());
        QVERIFY(both.out.ends_with("\n" + expected));
        QVERIFY(run({"info", name}).out.find("\nsamples: 2\n") != std::string::npos);
    }

    void infoChecksSamples()
    {
        RecordingBuilder file;
        for (const unsigned id : {500U, 501U, 502U, 1200U, 777U, 777U}) {
            file.add({id, ticks(id % 10), "", id == 501 ? 1U : 0U});
        }
        const QString name = write("a.CAN", file.add({502, ticks(50), "", 3}).append("x").bytes());
        const auto header = run({"info", "--json", name}).lines().at(0)["integrity"];
        QVERIFY(header == json::parse(fromQuoted("{'missingHeaderBytes':0,'ignoredBytes':1}")));
        const Run checked = run({"info", "--json", "--check", "--profile", profile(), name});
        QVERIFY2(checked.lines().at(0)["integrity"] ==
                     json::parse(fromQuoted(
                         "{'missingHeaderBytes':0,'ignoredBytes':1,'samplesRead':7,"
                         "'samplesUnread':0,'impossibleTimes':1,'firstImpossible':4,"
                         "'otherChannels':1,'gaps':1,'longestGap':43.0,'longestGapStart':7.0,"
                         "'unknownIdentifiers':2,'unknownSamples':3}")),
                 checked.out.c_str());
        const std::string text = run({"info", "--check", "--profile", profile(), name}).out;
        QVERIFY2(text.ends_with("\nremark: Identifiers that the profile does not describe: 2, "
                                "their samples: 3\n\n"),
                 text.c_str());
        QVERIFY(run({"info", "--check", recording()}).out.ends_with("\nremark: none\n\n"));
    }

    void decodesSeveralFilesOfBothOrders()
    {
        RecordingBuilder first(RecordingBuilder::Big);
        first.add({500, ticks(100.5), "0002000041700000"}); // 15
        first.add({501, ticks(101), "00050000000000F1", 1});
        RecordingBuilder second;
        second.add({501, ticks(7), "0005000000000002", 1});
        second.add({500, ticks(0.25), "0002000043960000"}); // 300
        second.add({501, ticks(8), "0005000000000003", 0}); // another channel
        write("Offset.xml", "<TarnOffset><Offset value='50'/></TarnOffset>");
        const Run result =
            run({"decode", "--profile", profile(), write("REC_8000.CAN", first.bytes()),
                 write("REC_8001.CAN", second.bytes())});
        QCOMPARE(result.error, std::string());
        QCOMPARE(result.status, 0);
        // Parameters in the profile's order, samples in that of the files, times without offset.
        const QByteArray oil = "{'device':'ECU','parameter':'Oil','channel':0,'id':500,";
        const QByteArray lamp = "{'device':'ECU','parameter':'Lamp','channel':1,'id':501,";
        const std::string all =
            fromQuoted(oil +
                       "'time':100.5,'int':0,'double':1.5,'raw':15.0,'state':1,'text':'1.5',"
                       "'color':'#ffff00'}\n" +
                       oil +
                       "'time':0.25,'int':0,'double':30.0,'raw':300.0,'state':2,'text':'30',"
                       "'color':null}\n" +
                       lamp +
                       "'time':101.0,'int':1,'double':1.0,'raw':1.0,'state':0,'text':'1: on',"
                       "'color':'#ffffff'}\n" +
                       lamp +
                       "'time':7.0,'int':2,'double':2.0,'raw':2.0,'state':0,"
                       "'text':'2: Invalid ENUM Value','color':'#ffffff'}\n");
        QCOMPARE(QByteArray::fromStdString(result.out), QByteArray::fromStdString(all));
    }

    void numbersKeepEveryBit()
    {
        RecordingBuilder file;
        for (const char* data : {"7F800000", "7FC00000", "3DCCCCCD", "80000000"}) {
            file.add({500, ticks(1), QByteArray("00020000") + data});
        }
        const auto lines =
            run({"decode", "--profile", profile(), write("a.CAN", file.bytes())}).lines();
        QCOMPARE(lines.size(), 4U);
        QVERIFY(lines[0]["double"].is_null() && lines[1]["raw"].is_null());
        QVERIFY(lines[0]["text"] == "inf");
        QVERIFY(lines[2]["raw"].get<double>() == static_cast<double>(0.1F));
        QVERIFY(lines[2]["double"].get<double>() == static_cast<double>(0.1F) * 0.1);
        QVERIFY(std::signbit(lines[3]["raw"].get<double>()));
    }

    void selections()
    {
        const QString project =
            write("p.xml", "<x><Parameters><Parameter name='Oil'/></Parameters></x>");
        const std::pair<QStringList, QString> selections[] = {
            {{}, "ECU/Oil ECU/Lamp AD/Oil"},
            {{"--all"}, "ECU/Oil ECU/Lamp AD/Oil"},
            {{"--parameter", "AD/Oil"}, "AD/Oil"},
            {{"--parameter", "AD/Oil", "--parameter", "ECU/Lamp"}, "ECU/Lamp AD/Oil"},
            {{"--project", project}, "ECU/Oil AD/Oil"}};
        for (const auto& [options, expected] : selections) {
            const Run result = run(QStringList{"decode", "--profile", profile()} + options +
                                   QStringList{recording()});
            QStringList decoded;
            for (const json& line : result.lines()) {
                decoded += QString::fromStdString(line["device"].get<std::string>() + "/" +
                                                  line["parameter"].get<std::string>());
            }
            QCOMPARE(decoded.join(' '), expected);
        }
    }

    void failures_data()
    {
        QTest::addColumn<QString>("arguments"); // P is a profile, R a recording
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("message");
        const auto row = [](const char* arguments, int status, const char* message) {
            QTest::addRow("%s", arguments) << QString(arguments) << status << QByteArray(message);
        };
        row("", 2, "subcommand");
        row("fly", 2, "subcommand");
        row("info", 2, "PATH");
        row("info --yaml R", 2, "--yaml");
        row("decode R", 2, "--profile");
        row("decode --profile P", 2, "FILE");
        row("decode --profile P --all --project X R", 2, "excludes");
        row("info --profile P R", 2, "--check");
        row("info --check gone.CAN", 1, "\"gone.CAN\"");
        row("info gone.CAN", 1, "\"gone.CAN\"");
        row("decode --profile gone.xml R", 1, "\"gone.xml\"");
        row("decode --profile P R gone.CAN", 1, "recording");
        row("decode --profile P --project gone R", 1, "\"gone\"");
        row("decode --profile P --parameter Oil R", 1, "\"Oil\"");
        row("--help", 0, "");
        row("decode --help", 0, "");
    }

    void failures()
    {
        QFETCH(const QString, arguments);
        QFETCH(const int, status);
        QFETCH(const QByteArray, message);
        QStringList list = arguments.split(' ', Qt::SkipEmptyParts);
        const Run result = run(list.replaceInStrings(QRegularExpression("^P$"), profile())
                                   .replaceInStrings(QRegularExpression("^R$"), recording()));
        QCOMPARE(result.status, status);
        QCOMPARE(result.out.empty(), status != 0);
        QVERIFY2(QByteArray::fromStdString(result.error).contains(message), result.error.c_str());
        if (status == 1) {
            QVERIFY2(result.error.starts_with("orna-cli: "), result.error.c_str());
            QCOMPARE(std::ranges::count(result.error, '\n'), 1);
        }
    }

    void outputThatFails()
    {
        QCOMPARE(run({"--version"}).out, std::string("ORNA 1.2.19\n"));
        const std::string file = recording().toStdString();
        const char* argv[] = {"orna-cli", "info", file.c_str()};
        std::ostringstream out;
        std::ostringstream error;
        out.setstate(std::ios::badbit);
        QCOMPARE(runCommandLine(3, argv, out, error), 1);
        QCOMPARE(error.str(), std::string("orna-cli: could not write the result\n"));
    }
};

QTEST_APPLESS_MAIN(TestCli)
#include "tst_cli.moc"
