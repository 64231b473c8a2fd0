#include "support/CommandRun.h"
#include "support/FlightTest.h"

#include <QtCore/QXmlStreamReader>

#include <algorithm>
#include <clocale>
#include <nlohmann/json.hpp>

using namespace TARN;
using nlohmann::json;

/// What the command line takes, prints and answers; what it shows is decided by the core.
class TestCli : public FlightTest
{
    Q_OBJECT

    /// Runs a command line in which P is a profile, R a recording and T the test's folder.
    CommandRun run(const QString& line) const
    {
        const QString profile = write(
            "profile.xml",
            "<CanAerospaceProfile><EnumList><Enum name='WarningLamp'><Value val='1' label='on'/>"
            "</Enum></EnumList><ThresholdList><Threshold name='T'>"
            "<Value val='10' state='WARNING' color='#FFFF00'/><Value val='20' state='LIMIT'/>"
            "</Threshold></ThresholdList><Device name='ECU'><ErrorMatrix id='900' name='Faults'/>"
            "<ErrorMatrix id='901' name='Silent'/>"
            "<Parameter name='Oil' id='500' dataType='FLOAT' startByte='4' unit='bar' "
            "factor='0.5' thresholdId='T'/>"
            "<Parameter name='Lamp' id='501' channel='1' dataType='BLONG' startByte='4' "
            "endBit='3' enumId='WarningLamp'/>"
            "<Parameter name='E1' id='900' startBit='1' errorType='Warning'/>"
            "<Parameter name='E31' id='900' startBit='31' errorType='Fault'/></Device>"
            "<Device name='NAV'><Parameter name='Oil' id='502' dataType='FLOAT' startByte='4' "
            "thresholdId='T'/><Parameter name='Lat' id='1036' dataType='FLOAT' startByte='4' "
            "kmlId='Latitude'/></Device></CanAerospaceProfile>");
        const QString recording = writeRecording(
            "1036@0.5=48.5 900@0.5=5:00000002 500@1=5 900@2=5:80000002 500@2.25=14 "
            "502@2.5=2:7FC00000 500@3=24 900@3=5:80000000 501/1@3.125=5:00000001 1036@3.25=48.25",
            "REC_8000.CAN");
        QStringList list = line.split(' ', Qt::SkipEmptyParts);
        for (QString& argument : list) {
            argument = argument == "P"             ? profile
                       : argument == "R"           ? recording
                       : argument.startsWith("T/") ? path(argument.mid(2))
                                                   : argument;
        }
        return runCommand(list);
    }

    void writeOffset(const QByteArray& seconds) const
    {
        write("Offset.xml", "<TarnOffset><Offset value='" + seconds + "'/></TarnOffset>");
    }

    /// The file out, written by a command that says nothing.
    QByteArray exported(const QString& line) const
    {
        const CommandRun done = run(line);
        return done.status == 0 && done.out.empty() && done.error.empty()
                   ? read("out")
                   : "failed: " + QByteArray::fromStdString(done.error);
    }

    /// How the pages of a document are painted.
    static QByteArrayList pagesOf(const QByteArray& pdf)
    {
        QByteArrayList pages;
        for (qsizetype at = 0; (at = pdf.indexOf("\nstream\nx", at) + 8) >= 8;) {
            const qsizetype size = pdf.indexOf("endstream", at) - at;
            const QByteArray painted = qUncompress(QByteArray(4, '\0') + pdf.mid(at, size));
            if (painted.contains(" Tf ")) {
                pages += painted;
            }
        }
        return pages;
    }

private Q_SLOTS:
    void initTestCase() { std::setlocale(LC_NUMERIC, "C"); } // as the program does

    void output_data()
    {
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char* line, const QByteArray& expected) {
            QTest::newRow(line) << expected;
        };
        row("decode --profile P --parameter ECU/Oil --parameter NAV/Oil --parameter ECU/Lamp R",
            "{'device':'ECU','parameter':'Oil','channel':0,'id':500,'time':1.0,'int':0,"
            "'double':2.5,'raw':5.0,'state':0,'text':'2.5','color':'#ffffff'}\n"
            "{'device':'ECU','parameter':'Oil','channel':0,'id':500,'time':2.25,'int':0,"
            "'double':7.0,'raw':14.0,'state':1,'text':'7','color':'#ffff00'}\n"
            "{'device':'ECU','parameter':'Oil','channel':0,'id':500,'time':3.0,'int':0,"
            "'double':12.0,'raw':24.0,'state':2,'text':'12','color':null}\n"
            "{'device':'ECU','parameter':'Lamp','channel':1,'id':501,'time':3.125,'int':1,"
            "'double':1.0,'raw':1.0,'state':0,'text':'1: on','color':'#ffffff'}\n"
            "{'device':'NAV','parameter':'Oil','channel':0,'id':502,'time':2.5,'int':0,"
            "'double':null,'raw':null,'state':2,'text':'nan','color':null}\n");
        row("decode --profile P --format csv --parameter ECU/Oil R",
            "device,parameter,channel,id,time,int,double,raw,state,text,color\n"
            "ECU,Oil,0,500,1.0,0,2.5,5.0,0,2.5,#ffffff\nECU,Oil,0,500,2.25,0,7.0,14.0,1,7,#ffff00\n"
            "ECU,Oil,0,500,3.0,0,12.0,24.0,2,12,\n");
        row("decode --profile P --format tsv --parameter NAV/Oil R",
            "device\tparameter\tchannel\tid\ttime\tint\tdouble\traw\tstate\ttext\tcolor\n"
            "NAV\tOil\t0\t502\t2.5\t0\t\\N\t\\N\t2\tnan\t\\N\n");
        const QByteArray events =
            "{'kind':'limit','time':2.25,'name':'ECU Oil','value':'7 bar',"
            "'text':'ECU Oil 7 bar','color':'#ffff00','tenths':23}\n"
            "{'kind':'limit','time':3.0,'name':'ECU Oil','value':'12 bar',"
            "'text':'ECU Oil 12 bar','color':null,'tenths':30}\n"
            "{'kind':'warning','time':3.125,'name':'ECU Lamp','value':'1: on ',"
            "'text':'ECU Lamp 1: on ','color':'#ff9664','tenths':31}\n";
        row("events --profile P R", events);
        // The times of episodes carry the offset of 100 s.
        row("events --profile P --episodes R",
            events + "{'kind':'episode','device':'ECU','parameter':'Oil','state':2,'start':102.25,"
                     "'end':103.0,'duration':0.75,'samples':2,'peak':12.0,'peakTime':103.0,"
                     "'threshold':10.0,'color':null,'announced':true}\n"
                     "{'kind':'episode','device':'NAV','parameter':'Oil','state':2,'start':102.5,"
                     "'end':102.5,'duration':0.0,'samples':1,'peak':null,'peakTime':null,"
                     "'threshold':null,'color':null,'announced':false}\n");
        const QByteArray silent =
            "{'id':901,'name':'Silent','info':[],'warning':[],'fault':[],'bits':[]}\n";
        const QByteArray faults = "{'id':900,'name':'Faults','info':[[0.5,false],[3.0,false]],"
                                  "'warning':[[0.5,true],[3.0,false],[3.0,false]],"
                                  "'fault':[[0.5,false],[2.0,true],[3.0,true]],'bits':";
        row("faults --profile P R", faults + "[1]}\n" + silent);
        row("faults --profile P --time 2.5 R", faults + "[1,31]}\n" + silent);
        row("--version", "ORNA 1.2.19\n");
    }

    void output()
    {
        QFETCH(const QByteArray, expected);
        writeOffset("100");
        const CommandRun done = run(QTest::currentDataTag());
        QCOMPARE(done.error, "");
        QCOMPARE(done.status, 0);
        QCOMPARE(QByteArray::fromStdString(done.out), quoted(expected));
    }

    /// Names with all that separates or ends something, and numbers at the ends of their layouts.
    void decodeFormats()
    {
        const QString profile =
            write("profile.xml",
                  "<CanAerospaceProfile><Device name=' A,&quot;&#9;\\'><Parameter name='&#176;' "
                  "id='500' dataType='FLOAT' startByte='4'/></Device></CanAerospaceProfile>");
        const QString recording = writeRecording("500@1=-0.0 500@2=2e15 500@3=1e14 500@4=0.00001");
        const auto decoded = [&](const QString& format) {
            return QString::fromStdString(
                       runCommand({"decode", "--format", format, "--profile", profile, recording})
                           .out)
                .split('\n');
        };
        const auto lines = decoded("jsonl");
        const QStringList numbers = {"-0.0", "1.999999973982208e+15", "100000000376832.0",
                                     "9.999999747378752e-06"};
        for (qsizetype k = 0; k < numbers.size(); ++k) {
            QVERIFY2(lines[k].startsWith("{\"device\":\" A,\\\"\\t\\\\\",\"parameter\":\"°\","),
                     qPrintable(lines[k]));
            QVERIFY2(lines[k].contains("\"raw\":" + numbers[k] + ","), qPrintable(lines[k]));
        }
        QVERIFY(decoded("csv")[1].startsWith("\" A,\"\"\t\\\",°,0,500,1.0,0,0.0,-0.0,"));
        QVERIFY(decoded("tsv")[1].startsWith(" A,\"\\t\\\\\t°\t0\t500\t"));
    }

    void info()
    {
        RecordingBuilder file(RecordingBuilder::Big);
        file.date(2021, 7, 9, 4, 5, 6).busType(2).ecuSerialNumber(4000000000U);
        file.text(0, "A").text(1, "ecu").text(2, "serial").text(3, "type").text(4, "B\xFC");
        file.text(5, "1.0").add({.ticks = ticks(1.5)}).add({.ticks = ticks(2.25)});
        const QString name = write("c.can", file.bytes());
        write("B.CAN", RecordingBuilder().bytes());
        const std::string expected =
            quoted("{'file':'" + name.toUtf8() +
                   "','dateTime':'9.7.2021 4:05:06','startTime':1.5,'stopTime':2.25,'samples':2,"
                   "'busType':2,'ecuSerialNumber':4000000000,'softwarePartA':'A',"
                   "'softwarePartB':'B\xEF\xBF\xBD','ecuType':'ecu','emuSwVersion':'1.0',"
                   "'engineSerialNr':'serial','engineType':'type',"
                   "'integrity':{'missingHeaderBytes':0,'ignoredBytes':0}}\n")
                .toStdString();
        const std::string both = runCommand({"info", "--json", folder()}).out; // sorted by path
        QVERIFY(both.starts_with("{\"file\":\"" + path("B.CAN").toStdString()));
        QVERIFY2(both.ends_with("\n" + expected), both.c_str());
        const std::string text = run("info T/c.can").out;
        QVERIFY(text.find("\nsamples: 2\n") != std::string::npos && !text.ends_with("none\n\n"));
    }

    void infoChecksSamples()
    {
        RecordingBuilder file;
        for (const unsigned id : {500U, 501U, 502U, 1200U, 777U, 777U}) {
            file.add({id, ticks(id % 10), "", id == 501 ? 1U : 0U});
        }
        write("a.CAN", file.add({502, ticks(50), "", 3}).append("x").bytes());
        const auto checked = linesOf(run("info --json --check --profile P T/a.CAN R").out);
        QCOMPARE(checked.at(0)["integrity"].dump(),
                 quoted("{'firstImpossible':4,'gaps':1,'ignoredBytes':1,'impossibleTimes':1,"
                        "'longestGap':43.0,'longestGapStart':7.0,'missingHeaderBytes':0,"
                        "'otherChannels':1,'samplesRead':7,'samplesUnread':0,"
                        "'unknownIdentifiers':2,'unknownSamples':3}")
                     .toStdString());
        QVERIFY(!checked.at(1)["integrity"]["unknownSamples"].is_null());
        const std::string overlap = "Files that overlap in time: 2, the first are a.CAN and "
                                    "REC_8000.CAN. Check that they belong together";
        QCOMPARE(checked.at(2).dump(), "{\"remarks\":[\"" + overlap + "\"]}");
        write("Offset.xml", "garbage");
        const std::string text = run("info --check --profile P T/a.CAN R").out;
        for (const std::string& remark :
             {std::string("\nremark: Identifiers that the profile does not describe: 2, their "
                          "samples: 3\n\n"),
              std::string("\nremark: none\n\n"), "\nremark: " + overlap + "\n",
              std::string("\nremark: The time offset could not be read: ")}) {
            QVERIFY2(text.find(remark) != std::string::npos, text.c_str());
        }
    }

    void stats()
    {
        writeOffset("100"); // the range has it too
        const auto all = QByteArray::fromStdString(run("stats --profile P R").out).split('\n');
        QCOMPARE(all.size(), 7); // with the end of the last line
        QCOMPARE(all.at(0),
                 quoted("{'device':'ECU','parameter':'Oil','channel':0,'id':500,'unit':'bar',"
                        "'samples':3,'invalid':0,'first':2.5,'last':12.0,'min':2.5,"
                        "'minTime':101.0,'max':12.0,'maxTime':103.0,'mean':7.166666666666667,"
                        "'stddev':3.8801489089409387,'timeMean':4.1875,'integral':13.0625,'gaps':0,"
                        "'gapSeconds':0.0,'gapLimit':7.5,'above':[{'value':5.0,'color':'#ffff00',"
                        "'state':1,'seconds':0.75},{'value':10.0,'color':null,'state':2,"
                        "'seconds':0.0}]}"));
        const auto part =
            linesOf(run("stats --profile P --parameter NAV/Oil --start 102.25 R").out);
        QCOMPARE(part.at(0)["invalid"].dump() + part.at(0)["mean"].dump(), "1null");
    }

    void compare()
    {
        const auto differenceOf = [](const json& line) {
            const json& found = line["difference"];
            return line["shift"].dump() + " " + found["samples"].dump() + " " +
                   found["min"].dump() + " " + found["max"].dump() + " " +
                   found["timeMean"].dump() + " " + found["integral"].dump();
        };
        const auto self = linesOf(run("compare --profile P --parameter ECU/Oil R --with R").out);
        QCOMPARE(self.size(), 1U);
        QCOMPARE(self[0]["flight"].dump(), self[0]["reference"].dump());
        QCOMPARE(self[0]["flight"].dump(),
                 linesOf(run("stats --profile P --parameter ECU/Oil R").out)[0].dump());
        QCOMPARE(differenceOf(self[0]), std::string("0.0 3 0.0 0.0 0.0 0.0"));
        writeRecording("500@2001=1.5 500@2003=5.5", "W.CAN");
        const struct
        {
            QString arguments;
            std::string expected;
            std::string said; ///< where it fails
        } rows[] = {
            {"--align start R --with T/W.CAN", "-2000.5 2 1.25 4.5 1.25 3.59375", ""},
            {"--align 1:2001 --start 1.5 R --with T/W.CAN", "-2000.0 2 5.0 9.25 5.0 5.34375", ""},
            {"R --with T/W.CAN", "", "the flights have no time in common: "},
            {"--align soon R --with T/W.CAN", "", "\"soon\" is neither \"start\" nor"},
            {"--align 1:x R --with T/W.CAN", "", "\"1:x\" is neither"},
            {"--align 1:inf R --with T/W.CAN", "", "is neither"},
            {"R", "", "--with is required"},
            {"R --with T/none.CAN", "", "none.CAN"}};
        for (const auto& [arguments, expected, said] : rows) {
            const auto done = run("compare --profile P --parameter ECU/Oil " + arguments);
            QCOMPARE(done.status == 0, said.empty());
            QVERIFY2(done.error.find(said) != std::string::npos, done.error.c_str());
            if (said.empty()) {
                QCOMPARE(differenceOf(linesOf(done.out)[0]), expected);
            }
        }
    }

    void graph()
    {
        QCOMPARE(run("graph --profile P --parameter ECU/Oil --width 300 --height 200 --scale 2 "
                     "--no-caption -o T/a.png R")
                     .status,
                 0);
        const QImage dark(path("a.png"));
        QCOMPARE(dark.size(), QSize(600, 400));
        QCOMPARE(run("graph --profile P --light --start 1 --stop 3 --cursor 2 -o T/a.svg R").status,
                 0);
        const QByteArray svg = read("a.svg");
        for (const char* text : {".CAN", "Oil", "profile.xml"}) {
            QVERIFY2(svg.contains(text), text);
        }
        const std::pair<const char*, const char*> failures[] = {
            {"graph --profile P -o T/a.xyz R", "end the name in .png"},
            {"graph --profile P -o T/none/a.png R", "can't be written"},
            {"graph --profile P --start 5 --stop 5 -o T/b.png R", "stops before it starts"}};
        for (const auto& [command, message] : failures) {
            const CommandRun failed = run(command);
            QCOMPARE(failed.status, 1);
            QVERIFY2(failed.error.find(message) != std::string::npos, failed.error.c_str());
        }
        QVERIFY(!QFile::exists(path("b.png")));
    }

    /// Exact numbers of the report's tables and of the episodes are the same.
    void report()
    {
        QVERIFY(run("report --profile P -o T/a.html R").status == 0);
        QVERIFY2(read("a.html") == golden("report.html"), "the report is another");
        QXmlStreamReader page(read("a.html"));
        std::vector<double> told;
        QString text;
        for (QString section; !page.atEnd(); page.readNext()) {
            if (page.isStartElement() && page.name() == u"h2") {
                section = page.readElementText();
            }
            if (page.isStartElement() && section == "Out of range" &&
                page.attributes().hasAttribute("data-value")) {
                told.push_back(page.attributes().value("data-value").toDouble());
            }
            text += page.isCharacters() ? page.text() : QStringView();
        }
        QVERIFY2(!page.hasError(), qPrintable(page.errorString()));
        std::vector<double> expected;
        auto events = linesOf(run("events --episodes --profile P R").out);
        std::ranges::stable_partition(events, [](const json& event) {
            return event["kind"] != "episode" || event["announced"] == true;
        });
        for (const json& event : events) {
            if (event["kind"] == "episode") {
                for (const char* field : {"start", "end", "duration", "peak", "peakTime"}) {
                    if (!event[field].is_null()) {
                        expected.push_back(event[field]);
                    }
                }
                if (!event["threshold"].is_null()) {
                    expected.push_back(event["threshold"]);
                }
            }
        }
        QVERIFY(!expected.empty());
        QCOMPARE(told, expected);
        for (const char* part : {"ECU Oil", "Lamp", "E31", "2 at the limit", "ORNA 1.2.19"}) {
            QVERIFY2(text.contains(part), part);
        }
        QVERIFY(run("report --profile P --language de --letter --start 102 -o T/c.htm R").status ==
                0);
        QVERIFY(read("c.htm").contains("lang=\"de\"") && read("c.htm").contains("size: letter"));
        // Nothing is all right in a range because it was elsewhere.
        QVERIFY(run("report --profile P --start 900 --stop 901 -o T/b.html R").status == 0);
        QCOMPARE(read("b.html").count("None in this range; in the rest of the flight: "), 3);
        QVERIFY(read("b.html").contains("no parameter was watched for limits"));
        writeRecording("1036@0.5=48.5", "REC_0001.CAN");
        QVERIFY(run("report --profile P -o T/b.html T/REC_0001.CAN").status == 0);
        for (const char* said : {"so nothing was watched for limits", "of a warning lamp, so none",
                                 "of an error matrix, so none", "no parameter was watched"}) {
            QVERIFY2(read("b.html").contains(said), said);
        }
        QByteArray many; // as one chart takes
        for (int i = 0; i < 14; ++i) {
            many += "<Parameter id='500' dataType='FLOAT' startByte='4' name='P" +
                    QByteArray::number(i) + "'/>";
        }
        write("many.xml",
              "<CanAerospaceProfile><Device name='D'>" + many + "</Device></CanAerospaceProfile>");
        QVERIFY(run("report --profile T/many.xml -o T/b.html R").status == 0);
        QCOMPARE(read("b.html").count("<polyline"), 14);
        QVERIFY(run("report --profile P -o T/e.doc R").error.find(".html or .pdf") !=
                std::string::npos);
    }

    /// On each page what is painted is kept within the margins, title and number stand below.
    void pages()
    {
        const std::tuple<const char*, const char*, const char*> papers[] = {
            {"", "650 650 m\n9267 650 l\n9267 13083", "\n206.5"},
            {"--letter", "650 650 m\n9550 650 l\n9550 12250", "\n213.5"}};
        for (const auto& [paper, body, column] : papers) {
            QVERIFY(run(QString("report --profile P %1 -o T/d.pdf R").arg(paper)).status == 0);
            QVERIFY(read("d.pdf").startsWith("%PDF"));
            const QByteArrayList pages = pagesOf(read("d.pdf"));
            QCOMPARE(pages.size(), 3);
            QVERIFY2(pages[0].contains(column) && read("d.pdf").contains("-Bold"), pages[0]);
            QCOMPARE(pages[0].count("\nBT\n"), 103); // texts
            for (const QByteArray& page : pages) {
                const qsizetype title = page.lastIndexOf(" Tm\n");
                const qsizetype number = page.lastIndexOf(" Tm\n", title - 1);
                const auto left = page.mid(title + 4, 40).split(' ');
                const auto right = page.mid(number + 4, 40).split(' ');
                QVERIFY2(page.contains(body), page.left(500));
                QVERIFY(left[0].toDouble() == 52.0 && right[0].toDouble() > 600.0);
                QCOMPARE(left[1], right[1]);
            }
        }
    }

    /// The part that is compared, what changed most there, and the same as compare says.
    void comparedReport_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("range"); // that is compared
        QTest::addColumn<QString>("said");
        QTest::newRow("clocks") << QString() << QString("--start 20 --stop 240")
                                << QString("shifted by 0 s. Compared from 00:00:20 to 00:04:00, "
                                           "while both flights are steady.");
        QTest::newRow("aligned") << QString("--align 60:20")
                                 << QString("--align 60:20 --start 60 --stop 240")
                                 << QString("by 40 s. Compared from 00:01:00 to 00:04:00, while");
        QTest::newRow("range") << QString("--stop 150") << QString("--stop 150")
                               << QString("from 00:00:00 to 00:02:30: there is no common steady");
    }

    void comparedReport()
    {
        QFETCH(const QString, arguments);
        QFETCH(const QString, range);
        QFETCH(const QString, said);
        write("steady.xml",
              "<CanAerospaceProfile><EnumList><Enum name='E'/></EnumList><Device name='D'>"
              "<Parameter name='Lever' id='500' dataType='FLOAT' startByte='4' steady='5'/>"
              "<Parameter name='Temp' id='501' dataType='FLOAT' startByte='4'/>"
              "<Parameter name='Fixed' id='502' dataType='FLOAT' startByte='4'/>"
              "<Parameter name='State' id='503' dataType='FLOAT' startByte='4' enumId='E'/>"
              "<Parameter name='Noise' id='504' dataType='FLOAT' startByte='4'/>"
              "<Parameter name='Same' id='505' dataType='FLOAT' startByte='4'/>"
              "</Device></CanAerospaceProfile>");
        for (const bool isOwn : {true, false}) {
            QString samples;
            for (int time = 0; time <= 300; time += 2) {
                const bool isOdd = time / 2 % 2 == 1;
                const bool isSteady = isOwn ? time <= 240 : time >= 20;
                const double values[] = {
                    isSteady ? 50.0 : 80.0, isOwn ? 5.0 - isOdd : 7.0 + isOdd, isOwn ? 2.5 : 3.0,
                    isOwn ? 1.0 : 2.0,      isOdd + (isOwn ? 0.1 : 0.0),       7.0};
                for (std::size_t k = 0; k < std::size(values); ++k) {
                    samples += QString(" %1@%2=%3").arg(500 + k).arg(time).arg(values[k]);
                }
            }
            writeRecording(samples, isOwn ? "A.CAN" : "B.CAN");
        }
        const QString files = " --profile T/steady.xml T/A.CAN ";
        QCOMPARE(run("report -o T/a.html --parameter D/Same" + files + "--reference T/B.CAN " +
                     arguments)
                     .error,
                 "");
        const QByteArray page = read("a.html");
        const qsizetype begin = page.indexOf("<h2>Compared with the reference</h2>");
        const QByteArray part = page.mid(begin, page.indexOf("<figure>", begin) - begin);
        QVERIFY(begin > page.indexOf("<h2>Statistics</h2>"));
        QVERIFY2(part.contains("Reference: B.CAN") && part.contains(said.toUtf8()),
                 part.constData());
        std::map<std::string, json> expected;
        for (const json& line : linesOf(run("compare" + files + "--with T/B.CAN " + range).out)) {
            expected[line["parameter"]] = line;
        }
        QStringList names;
        for (const QString& row : QString::fromUtf8(part).split("<tr><td>").mid(1)) {
            names += row.section('<', 0, 0);
            const json& line = expected[names.back().toStdString()];
            const double deviation = line["reference"]["stddev"];
            const double difference = line["difference"]["timeMean"];
            const double numbers[] = {line["flight"]["timeMean"], line["reference"]["timeMean"],
                                      difference, difference / deviation};
            for (int k = 0; k < 4; ++k) {
                const QString told = row.section("data-value=\"", k + 1, k + 1).section('"', 0, 0);
                QCOMPARE(told.toDouble(), numbers[k]);
            }
        }
        QCOMPARE(names.join(' ').replace(" Lever", ""), QString("Fixed Temp Noise"));
        QVERIFY(part.contains("data-value=\"-inf\">-\u221E<"));
    }

    void selections_data()
    {
        QTest::addColumn<QByteArray>("titles"); // of the table
        QTest::newRow("") << QByteArray("Time;Oil;Lamp;E1;E31;Oil;Lat");
        QTest::newRow("--all") << QByteArray("Time;Oil;Lamp;E1;E31;Oil;Lat");
        QTest::newRow("--parameter NAV/Lat") << QByteArray("Time;Lat");
        QTest::newRow("--parameter NAV/Oil --parameter ECU/Lamp") << QByteArray("Time;Lamp;Oil");
        QTest::newRow("--project T/project.xml") << QByteArray("Time;Oil;Oil");
    }

    void selections()
    {
        write("project.xml", "<x><Parameters><Parameter name='Oil'/></Parameters></x>");
        const QString line = QString("csv --profile P %1 -o T/out R").arg(QTest::currentDataTag());
        QTEST(exported(line).split('\n').first(), "titles");
    }

    void csv_data()
    {
        QTest::addColumn<QByteArray>("head"); // what the table begins with
        QTest::addColumn<int>("rows");
        QTest::newRow("--parameter ECU/Oil --start 102.25 --stop 103")
            << QByteArray("Time;Oil\n0:00:00.100;7\n0:00:00.200;7\n") << 8;
        QTest::newRow("--separator tab --resolution 10 --stop 101 --parameter NAV/Lat --parameter "
                      "ECU/Oil")
            << QByteArray("Time\tOil\tLat\n0:00:00.000\t\t48.5\n0:00:00.010\t\t48.5\n") << 51;
        QTest::newRow("--separator , --resolution 1 --start 103 --parameter ECU/Oil")
            << QByteArray("Time,Oil\n0:00:00.000,12\n0:00:00.001,12\n") << 251;
    }

    /// Times carry the offset, and so does the range where none is given.
    void csv()
    {
        QFETCH(const QByteArray, head);
        QFETCH(const int, rows);
        writeOffset("100");
        const QByteArray table =
            exported(QString("csv --profile P %1 -o T/out R").arg(QTest::currentDataTag()));
        QCOMPARE(table.left(head.size()), head);
        QCOMPARE(table.count('\n'), 1 + rows);
    }

    void kml_data()
    {
        QTest::addColumn<QByteArray>("offset");
        QTest::addColumn<QByteArrayList>("parts"); // of the document, blanks left out
        QTest::addColumn<int>("marks");
        const auto row = [](const char* options, const QByteArrayList& parts, int marks,
                            const char* offset = "0") {
            QTest::newRow(options) << QByteArray(offset) << parts << marks;
        };
        // Positions lie in the slots 0 and 3 of a second; events in between don't show.
        const QByteArray path = "<coordinates>-1000.00000000,48.50000000,-1000.0"
                                "-1000.00000000,48.25000000,-1000.0<";
        row("", {path, ">&lt;b>Lat&lt;/b></displayName><value>48.25<", "<value>12bar<"}, 3);
        row("--no-errors --placemark-interval 1", {path}, 2, "-0.25");
        row("--line-width 4 --line-color 010203 --line-alpha 16 --polygon-color 040506 "
            "--polygon-alpha 0 --placemark-color 070809 --error-color 0A0b0C --no-polygon "
            "--no-limits --placemark-interval 3 --start 1 --stop 3.25 --parameter ECU/Oil",
            {"<LineStyle><color>10030201</color><width>4<", "<PolyStyle><color>00060504<",
             "<IconStyle><color>ff090807<", "<IconStyle><color>ff0c0b0a<", "<extrude>0<",
             "<coordinates>-1000.00000000,48.25000000,-1000.0<",
             "<name>00:00:03</name><styleUrl>normalPlacemark<"},
            2);
        row("--no-placemarks --no-errors", {}, 0);
        row("--no-placemarks --no-warnings", {"<value>12bar<"}, 1);
        row("--no-placemarks --no-limits", {"<value>1:on<"}, 1);
    }

    void kml()
    {
        QFETCH(const QByteArray, offset);
        QFETCH(const QByteArrayList, parts);
        writeOffset(offset);
        const QByteArray document =
            exported(QString("kml --profile P --timestamp 1000 -o T/out R ") +
                     QTest::currentDataTag())
                .replace(" ", "")
                .replace("\n", "");
        for (const QByteArray& part : parts) {
            QVERIFY2(document.contains(part), part + " in " + document);
        }
        QTEST(static_cast<int>(document.count("<styleUrl>")), "marks");
        // A path with marks has samples without a position too.
        QVERIFY(document.count("<styleUrl>") < 2 || diagnostics().contains("Left out"));
    }

    void can()
    {
        writeOffset("100"); // of which its times and its range know nothing
        QCOMPARE(exported("can --start 1 --stop 2.5 -o T/out R").size(), 128 + 4 * 28);
        QCOMPARE(exported("can -o T/out R").size(), 128 + 10 * 28);
    }

    void failures_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("message");
        const auto row = [](const char* line, int status, const char* message) {
            QTest::newRow(line) << status << QByteArray(message);
        };
        row("", 2, "subcommand");
        row("fly", 2, "subcommand");
        row("info", 2, "PATH");
        row("info --yaml R", 2, "--yaml");
        row("info --profile P R", 2, "--check");
        row("decode R", 2, "--profile");
        row("decode --profile P", 2, "FILE");
        row("decode --profile P --all --project X R", 2, "excludes");
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
        row("kml --profile P --polygon-alpha -1 -o T/out R", 2, "--polygon-alpha");
        row("kml --profile P --timed -o T/out R", 1, "The recording tells no date");
        row("gpx --profile P --timestamp 0 -o T/out R", 2, "--timestamp");
        row("gpx --profile P --all -o T/out R", 2, "--all");
        row("gpx --profile P -o T/gone/out R", 1, "/gone/out\"");
        row("can --profile P -o T/out R", 2, "--profile");
        row("report --profile P --align start -o T/out R", 2, "requires");
        row("report --profile P --reference R --align 9:x -o T/out R", 2, "--align");
        row("report --profile P --reference R --start 900 -o T/out R", 1, "no time in common");
        row("report --profile P --reference gone.CAN -o T/out R", 1, "\"gone.CAN\"");
        row("compare --profile P R --align 900:0 --with R", 1, "no time in common");
        row("info gone.CAN", 1, "\"gone.CAN\"");
        row("info --check gone.CAN", 1, "\"gone.CAN\"");
        row("decode --profile P R gone.CAN", 1, "\"gone.CAN\"");
        row("decode --profile P --project gone R", 1, "\"gone\"");
        row("events --profile gone.xml R", 1, "\"gone.xml\"");
        row("csv --profile P --parameter ECU/Fuel -o T/out R", 1, "\"ECU/Fuel\"");
        row("csv --profile P --stop 1e9 -o T/out R", 1, "1000000000.000 s");
        row("kml --profile P -o T/gone/out R", 1, "/gone/out\"");
        row("can -o T/REC_8000.CAN R", 1, "is the recording itself");
        row("can -o T/out R gone.CAN", 1, "\"gone.CAN\"");
    }

    void failures()
    {
        QFETCH(const QByteArray, message);
        const CommandRun done = run(QTest::currentDataTag());
        QTEST(done.status, "status");
        QCOMPARE(done.out, "");
        QVERIFY2(done.error.find(message) != std::string::npos, done.error.c_str());
        QVERIFY2(done.status == 2 || (done.error.starts_with("orna-cli: ") &&
                                      std::ranges::count(done.error, '\n') == 1),
                 done.error.c_str());
        QCOMPARE(read("out"), "(no file)");
    }

    void outputThatFails()
    {
        QCOMPARE(run("decode --help").status, 0);
        const std::string file = writeRecording("1@1=1").toStdString();
        const char* argv[] = {"orna-cli", "info", file.c_str()};
        std::ostringstream out;
        std::ostringstream error;
        out.setstate(std::ios::badbit);
        QCOMPARE(runCommandLine(3, argv, out, error), 1);
        QCOMPARE(error.str(), "orna-cli: could not write the result\n");
    }
};

QTEST_MAIN(TestCli) // pictures need fonts
#include "tst_cli.moc"
