#include "export/ExportCsv.h"
#include "export/ExportTest.h"

#include <array>
#include <map>
#include <tuple>

using namespace TARN;

namespace {

const QByteArray Parameters =
    "<EnumList><Enum name='L'><Value val='1' label='an &amp; aus'/></Enum></EnumList>"
    "<Device name='ENG'><Parameter name='Oil' id='500' dataType='FLOAT' startByte='4'/>"
    "<Parameter name='Rpm' id='501' channel='1' dataType='USHORT' startByte='4' factor='10'/>"
    "</Device><Device name='AIR'><Parameter name='Lamp' id='502' dataType='BLONG' startByte='4' "
    "endBit='3' enumId='L'/>"
    "<Parameter name='Höhe' id='503' dataType='FLOAT' startByte='4'/></Device>";

/// The table built the plain way: each row looks for the samples of its tick.
QByteArray plainTable(const ExportInput& input, const CsvExportOptions& options)
{
    const RecordData& data = input.flight->samples();
    const Profile& profile = *input.flight->profile();
    const double stepsPerSecond = 1 / (options.resolution * 0.001);
    const auto tick = [&](double time) {
        return static_cast<std::int64_t>(time * stepsPerSecond + 0.5);
    };
    QByteArray table = "Time";
    double earliest = 1e15;
    std::vector<std::map<std::int64_t, QByteArray>> columns;
    for (const auto& [device, parameter] : profile.parameters()) {
        if (!options.allParameters && !input.selection.contains(*parameter)) {
            continue;
        }
        table += options.separator + parameter->name.toUtf8();
        columns.emplace_back();
        const RecordIdList* list = data.find(static_cast<unsigned>(parameter->channel),
                                             static_cast<unsigned>(parameter->id));
        for (const RecordEntry& entry : list ? list->entries : decltype(list->entries)()) {
            const double time = entry.time() + (list->highFile ? input.offset : 0.0);
            if (time >= options.startTime && time <= options.stopTime) {
                QColor color;
                columns.back()[tick(time)] =
                    profile.getDataString(entry, *parameter, color).toUtf8();
                earliest = std::min(earliest, time);
            }
        }
    }
    table += '\n';
    std::vector<QByteArray> cells(columns.size());
    for (std::int64_t t = tick(earliest); t <= tick(options.stopTime); ++t) {
        const auto steps = t - static_cast<std::int64_t>(earliest * stepsPerSecond);
        const auto ms = static_cast<int>(steps * options.resolution);
        table += QString::asprintf("%d:%02d:%02d.%03d", ms / 3'600'000, ms / 60'000 % 60,
                                   ms / 1000 % 60, ms % 1000)
                     .toUtf8();
        for (std::size_t k = 0; k < columns.size(); ++k) {
            const auto sample = columns[k].find(t);
            if (sample != columns[k].end()) {
                cells[k] = sample->second;
            } else if (t == tick(earliest) && k + 1 == columns.size()) {
                continue;
            }
            table += options.separator + cells[k];
        }
        table += '\n';
    }
    return table;
}

} // namespace

class TestCsv : public ExportTest
{
    Q_OBJECT

    CsvExportOptions options(const TimeRange& range, int resolution = 100,
                             char separator = ';') const
    {
        auto options = optionsFor<CsvExportOptions>("out.csv", range);
        options.resolution = resolution;
        options.separator = separator;
        return options;
    }

private Q_SLOTS:
    void golden()
    {
        const std::tuple<const char*, TimeRange, char, const char*> tables[] = {
            // Gaps are filled from above, the last sample of a step wins, the last column is
            // missing in the first row; samples at both ends of the range belong to it.
            {"grid_100ms.csv",
             {1.03125, 1.625},
             ';',
             "500@1.03=1 500@1.03125=71.5 500@1.06=72 500@1.12=73 501/1@1.2=7:00F0 "
             "501/0@1.3=7:0001 "
             "502@1.3=5:00000001 503@1.3=1000.5 500@1.5=74.25 500@1.625=74.25 500@1.626=2"},
            // The first sample rounds up to a step, so the first row is one step late.
            {"first_step.csv",
             {1.0, 1.3},
             ',',
             "500@1.06=71.5 503@1.14=-1 503@1.3=-2 501/1@1.26=7:FFFF"}};
        for (const auto& [name, range, separator, samples] : tables) {
            const ExportResult result = run(ExportCsv(options(range, 100, separator)),
                                            inputOf(flightOf(samples, Parameters)));
            QVERIFY2(result.done && result.message.isEmpty(), qUtf8Printable(result.message));
            QCOMPARE(read("out.csv"), ExportTest::golden(name));
        }
    }

    void titlesOnly()
    {
        const std::tuple<QByteArray, const char*, double> empty[] = {{"", "500@1=1", 2.0},
                                                                     {Parameters, "500@3=1", 2.0},
                                                                     {Parameters, "500@0.3=1", 0.2},
                                                                     {Parameters, "", 1e17}};
        for (const auto& [parameters, samples, stop] : empty) {
            const ExportResult result =
                run(ExportCsv(options({0.5, stop})), inputOf(flightOf(samples, parameters)));
            QVERIFY(result.done);
            QVERIFY(result.message.contains(parameters.isEmpty() ? "No parameter" : "No sample"));
            QCOMPARE(read("out.csv"), parameters.isEmpty() ? "Time\n" : "Time;Oil;Rpm;Lamp;Höhe\n");
        }
        const ExportResult row =
            run(ExportCsv(options({0.5, 1.0})), inputOf(flightOf("500@1=1", Parameters)));
        QVERIFY(row.done && row.message.isEmpty() && read("out.csv").count('\n') == 2);
    }

    /// Rows count from the first sample, whatever the clock says.
    void hoursAndMidnight()
    {
        QVERIFY(run(ExportCsv(options({0, 84600 + 36061.3})),
                    inputOf(flightOf("500@84600.03=1", Parameters))));
        const QByteArray table = read("out.csv");
        QVERIFY(table.contains("\n0:59:59.900;1;;;\n1:00:00.000;1;;;\n"));
        QVERIFY2(table.endsWith("\n10:01:01.300;1;;;\n"), table.right(30).constData());
    }

    void refusals()
    {
        const std::tuple<double, int, QString> refusals[] = {
            {2147483.7, 1, "too many rows"}, // the last one's tick has 32 bits
            {2000000.0, 1'000'000, "1999987501 rows, about 2"}};
        write("out.csv", "old");
        for (const auto& [stop, labelSize, message] : refusals) {
            QByteArray parameters = Parameters;
            parameters.replace("an &amp; aus", QByteArray(labelSize, 'x'));
            const ExportResult result =
                run(ExportCsv(options({0, stop}, 1)),
                    inputOf(flightOf("502@12.5=5:00000001 502@1000=5:00000001", parameters)));
            const QString times =
                QString("The first sample is at 12.500 s, the last at 1000.000 s, "
                        "the export ends at %1 s. ")
                    .arg(stop, 0, 'f', 3);
            QVERIFY2(!result.done && result.message.contains(message) &&
                         result.message.contains(times),
                     qUtf8Printable(result.message));
            QCOMPARE(read("out.csv"), "old");
        }
    }

    void asAPlainTable()
    {
        const auto profile = profileOf(Parameters);
        std::mt19937 random(11);
        for (int round = 0; round < 200; ++round) {
            CsvExportOptions asked =
                options({}, std::array{100, 10, 1}[pick(random, 3)], ";,\t"[pick(random, 3)]);
            asked.allParameters = pick(random, 2) == 0;
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
            const auto record = load(
                {write("REC_8000.CAN", files[0].bytes()), write("REC_0001.CAN", files[1].bytes())});
            const ExportInput input{Flight::make(record, profile),
                                    select(*profile, {"Rpm", "Lamp", "Höhe"}),
                                    (pick(random, 9) - 4) * 2.5 * quarter};
            const ExportResult result = run(ExportCsv(asked), input);
            QVERIFY2(result.done, qUtf8Printable(result.message));
            QCOMPARE(read("out.csv"), plainTable(input, asked));
        }
    }
};

QTEST_APPLESS_MAIN(TestCsv)
#include "tst_csv.moc"
