#include "export/ExportCsv.h"
#include "export/RecordTest.h"

#include <array>

using namespace TARN;

namespace {

const QByteArray Parameters =
    "<EnumList><Enum name='L'><Value val='1' label='an &amp; aus'/></Enum></EnumList>"
    "<Device name='ENG'><Parameter name='Oil' id='500' dataType='FLOAT' startByte='4'/>"
    "<Parameter name='Rpm' id='501' channel='1' dataType='USHORT' startByte='4' factor='10'/>"
    "</Device><Device name='AIR'><Parameter name='Lamp' id='502' dataType='BLONG' startByte='4' "
    "endBit='3' enumId='L'/>"
    "<Parameter name='Höhe' id='503' dataType='FLOAT' startByte='4'/></Device>";

/// The table built the plain way: every row and every cell in an ordered map.
class PlainTable
{
public:
    PlainTable(const Record& record, const Profile& profile, const CsvExportOptions& options)
        : mOptions(options), mStepsPerSecond(1 / (options.resolution * 0.001))
    {
        double earliest = 1e15;
        std::map<std::int64_t, std::map<int, std::string>> samples;
        std::string title = "Time";
        int columns = 0;
        for (const auto& [id, device] : profile.data().devices) {
            for (const auto& [uid, parameter] : device.parameters) {
                if (!parameter.selected && !options.allParameters) {
                    continue;
                }
                title += options.separator + parameter.name.toStdString();
                ++columns;
                const RecordIdList* list = record.recordData().find(
                    static_cast<unsigned>(parameter.channel), static_cast<unsigned>(parameter.id));
                for (const RecordEntry& entry : list ? list->entries : decltype(list->entries)()) {
                    const double time =
                        entry.time() + (list->highFile ? record.recordData().offset : 0.0);
                    if (time >= options.startTime && time <= options.stopTime) {
                        earliest = std::min(earliest, time);
                        QColor color;
                        samples[tick(time)][columns] =
                            profile.getDataString(entry, parameter, color).toStdString();
                    }
                }
            }
        }
        std::map<std::int64_t, std::map<int, std::string>> rows;
        for (std::int64_t t = tick(earliest); t <= tick(options.stopTime); ++t) {
            for (int column = 1; column < columns; ++column) {
                rows[t][column] = "";
            }
        }
        for (const auto& [t, cells] : samples) {
            for (const auto& [column, cell] : cells) {
                rows[t][column] = cell;
            }
        }
        std::map<int, std::string> above;
        for (auto row = rows.begin(); row != rows.end(); ++row) {
            for (int column = 1; row != rows.begin() && column <= columns; ++column) {
                std::string& cell = row->second[column];
                cell = cell.empty() ? above[column] : cell;
            }
            above = row->second;
        }
        mText = title + "\n";
        for (const auto& [t, cells] : rows) {
            mText += elapsed(t - static_cast<int>(earliest * mStepsPerSecond));
            for (const auto& [column, cell] : cells) {
                mText += options.separator + cell;
            }
            mText += "\n";
        }
    }

    QByteArray text() const { return QByteArray::fromStdString(mText); }

private:
    std::int64_t tick(double time) const
    {
        return static_cast<std::int64_t>(time * mStepsPerSecond + 0.5);
    }

    std::string elapsed(std::int64_t steps) const
    {
        const double f = mStepsPerSecond;
        const int hours = static_cast<int>(static_cast<double>(steps) / (f * 3600));
        double rest = static_cast<double>(steps) - hours * f * 3600;
        const int minutes = static_cast<int>(rest / (f * 60));
        rest = rest - minutes * f * 60;
        const int seconds = static_cast<int>(rest / f);
        return QString::asprintf("%d:%02d:%02d.%03d", hours, minutes, seconds,
                                 static_cast<int>((rest - seconds * f) * mOptions.resolution))
            .toStdString();
    }

    const CsvExportOptions& mOptions;
    double mStepsPerSecond;
    std::string mText;
};

} // namespace

class TestCsv : public RecordTest
{
    Q_OBJECT

    CsvExportOptions options(double start, double stop, int resolution = 100) const
    {
        CsvExportOptions options;
        options.directory = folder().toStdString();
        options.fileName = "out.csv";
        options.allParameters = true;
        options.startTime = start;
        options.stopTime = stop;
        options.resolution = resolution;
        return options;
    }

private Q_SLOTS:
    void golden_data()
    {
        QTest::addColumn<int>("resolution");
        QTest::addColumn<char>("separator");
        QTest::addColumn<double>("start");
        QTest::addColumn<double>("stop");
        QTest::addColumn<QString>("samples");
        // Gaps are filled from above, the last sample of a step wins, the last column is missing
        // in the first row; samples at both ends of the range belong to it.
        QTest::newRow("grid_100ms.csv")
            << 100 << ';' << 1.03125 << 1.625
            << "500@1.03=1 500@1.03125=71.5 500@1.06=72 500@1.12=73 501/1@1.2=7:00F0 "
               "501/0@1.3=7:0001 502@1.3=5:00000001 503@1.3=1000.5 500@1.5=74.25 500@1.625=74.25 "
               "500@1.626=2";
        // The first sample rounds up to a step, so the first row is one step late.
        QTest::newRow("first_step.csv")
            << 100 << ',' << 1.0 << 1.3 << "500@1.06=71.5 503@1.14=-1 503@1.3=-2 501/1@1.26=7:FFFF";
        QTest::newRow("grid_10ms.csv") << 10 << '\t' << 60.0 << 60.034
                                       << "500@60=0.125 502@60.0125=5:00000010 500@60.0275=1e-6";
        QTest::newRow("grid_1ms.csv")
            << 1 << ';' << 0.0 << 0.5034 << "500@0.5=5 500@0.5008=6 503@0.503=7";
        QTest::newRow("falling_times.csv")
            << 100 << ';' << 1.0 << 1.5
            << "500@1.32=1 500@1.11=2 500@0.9=9 500@1.34=3 500@1.28=4 500@1.5=5 500@1.51=6";
    }

    void golden()
    {
        QFETCH(const int, resolution);
        QFETCH(const char, separator);
        QFETCH(const double, start);
        QFETCH(const double, stop);
        QFETCH(const QString, samples);
        CsvExportOptions asked = options(start, stop, resolution);
        asked.separator = separator;
        const ExportResult result =
            ExportCsv(useProfile(Parameters)).exportData(load(samples), asked);
        QVERIFY2(result.done && result.message.isEmpty(), qUtf8Printable(result.message));
        QCOMPARE(read("out.csv"), RecordTest::golden(QTest::currentDataTag()));
    }

    void offsetOfHighFiles()
    {
        write("Offset.xml", "<TarnOffset><Offset value='2'/></TarnOffset>");
        RecordingBuilder low;
        RecordingBuilder high;
        add(low, "500@1.04=1 501/1@3.1=7:0003");
        add(high, "500@1.04=2 500@1.24=3 500@1.4=4");
        // The identifier's last file decides for all its samples.
        Record& record =
            loadFiles({write("REC_7FFF.CAN", low.bytes()), write("REC_8000.CAN", high.bytes())});
        QVERIFY(ExportCsv(useProfile(Parameters)).exportData(record, options(1.5, 3.3)));
        QCOMPARE(read("out.csv"), RecordTest::golden("offset.csv"));
    }

    void titlesOnly_data()
    {
        QTest::addColumn<QByteArray>("parameters");
        QTest::addColumn<QString>("samples");
        QTest::addColumn<double>("stop");
        QTest::addColumn<QByteArray>("file");
        const QByteArray titles = "Time;Oil;Rpm;Lamp;Höhe\n";
        QTest::newRow("no parameter") << QByteArray() << "500@1=1" << 2.0 << QByteArray("Time\n");
        QTest::newRow("no samples") << Parameters << "" << 2.0 << titles;
        QTest::newRow("none in the range") << Parameters << "500@3=1" << 2.0 << titles;
        QTest::newRow("stop before start") << Parameters << "500@0.5=1" << 0.25 << titles;
        QTest::newRow("stop beyond all time") << Parameters << "" << 1e17 << titles;
    }

    void titlesOnly()
    {
        QFETCH(const QByteArray, parameters);
        QFETCH(const QString, samples);
        QFETCH(const double, stop);
        const ExportResult result =
            ExportCsv(useProfile(parameters)).exportData(load(samples), options(0.5, stop));
        QVERIFY2(result.done, qUtf8Printable(result.message));
        QVERIFY(!result.message.isEmpty());
        QTEST(read("out.csv"), "file");
    }

    void hoursAndMinutes()
    {
        QVERIFY(ExportCsv(useProfile(Parameters))
                    .exportData(load("500@10=1 503@10=2"), options(0, 10 + 36061.3)));
        const QByteArray table = read("out.csv");
        QCOMPARE(table.count('\n'), 1 + 360614);
        QVERIFY(table.contains("\n0:59:59.900;1;;;2\n1:00:00.000;1;;;2\n"));
        QVERIFY2(table.endsWith("\n10:01:01.300;1;;;2\n"), table.right(30).constData());
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("last");
        QTest::addColumn<int>("labelSize");
        QTest::newRow("a sample far away") << "3000000.000" << 1;
        QTest::newRow("more than any disk holds") << "2000000.000" << 1'000'000;
    }

    void refusals()
    {
        QFETCH(const QString, last);
        QFETCH(const int, labelSize);
        const Profile& profile = useProfile(
            "<EnumList><Enum name='L'><Value val='1' label='" + QByteArray(labelSize, 'x') +
            "'/></Enum></EnumList><Device name='D'><Parameter name='P' id='502' "
            "dataType='BLONG' startByte='4' endBit='3' enumId='L'/></Device>");
        Record& record = load("502@12.5=5:00000001 502@" + last + "=5:00000001");
        write("out.csv", "old");
        const ExportResult result =
            ExportCsv(profile).exportData(record, options(0, record.recordInfo().stopTime, 1));
        QVERIFY(!result.done);
        QVERIFY2(result.message.contains(" 12.500 s") && result.message.contains(last + " s"),
                 qUtf8Printable(result.message));
        QCOMPARE(read("out.csv"), "old");
    }

    void asAPlainTable()
    {
        const Profile& profile = useProfile(Parameters);
        std::mt19937 random(11);
        for (int round = 0; round < 300; ++round) {
            CsvExportOptions asked = options(0, 0);
            asked.resolution = std::array{100, 10, 1}[pick(random, 3)];
            asked.separator = ";,\t"[pick(random, 3)];
            // Quarters of a step, so that samples meet the edges of steps and of the range.
            const double quarter = asked.resolution * 0.001 / 4;
            const auto time = [&] { return pick(random, 300) * quarter; };
            asked.startTime = pick(random, 3) == 0 ? time() : -10.0;
            asked.stopTime = time();
            RecordingBuilder files[2];
            const int columns = pick(random, 5); // the others have no samples
            for (int i = pick(random, 3) == 0 ? 1 : 2; i > 0; --i) {
                double now = time();
                for (int count = pick(random, 40); count > 0 && columns > 0; --count) {
                    now = pick(random, 8) == 0 ? time() : now + pick(random, 9) * quarter;
                    const auto value = QByteArray::number(0x40000000 + pick(random, 1 << 22), 16);
                    const auto id = static_cast<unsigned>(pick(random, columns));
                    files[i - 1].add({500 + id, ticks(now), "00020000" + value, id == 1});
                }
            }
            write("Offset.xml", "<TarnOffset><Offset value='" +
                                    QByteArray::number((pick(random, 9) - 4) * 2.5 * quarter) +
                                    "'/></TarnOffset>");
            Record& record = loadFiles(
                {write("REC_8000.CAN", files[0].bytes()), write("REC_0001.CAN", files[1].bytes())});
            const ExportResult result = ExportCsv(profile).exportData(record, asked);
            QVERIFY2(result.done, qUtf8Printable(result.message));
            QCOMPARE(read("out.csv"), PlainTable(record, profile, asked).text());
        }
    }
};

QTEST_APPLESS_MAIN(TestCsv)
#include "tst_csv.moc"
