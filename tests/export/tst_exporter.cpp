#include "base/Property.h"
#include "export/ExportCan.h"
#include "export/ExportCsv.h"
#include "export/ExportGpx.h"
#include "export/ExportKml.h"
#include "export/ExportTest.h"
#include "report/ReportOptions.h"
#include "support/ResourceLimit.h"

#include <QtCore/QDir>
#include <QtCore/QMap>

#include <cerrno>
#include <filesystem>
#include <stop_token>
#include <sys/stat.h>

using namespace TARN;

namespace {

constexpr const char* Formats[] = {"csv", "can", "kml", "timed", "gpx"};

template <typename Options>
Property loadedAndStored(const Property& settings)
{
    Options options;
    options.load(settings);
    Property stored;
    options.store(stored);
    return stored;
}

} // namespace

/// What holds for every export: which targets it refuses, that a file is replaced whole or not at
/// all, what it remembers.
class TestExporter : public ExportTest
{
    Q_OBJECT

    ExportResult exportAs(const QByteArray& format, const QString& file, const ExportInput& input,
                          const Progress& progress = {}) const
    {
        const TimeRange range = input.flight->range(input.offset);
        if (format == "kml" || format == "timed") {
            auto options = optionsFor<KmlExportOptions>(file, range);
            options.isTimed = format == "timed";
            return run(ExportKml(options), input, progress);
        }
        if (format == "gpx") {
            return run(ExportGpx(optionsFor<GpxExportOptions>(file, range)), input, progress);
        }
        const auto options = optionsFor<CsvExportOptions>(file, range);
        return format == "csv" ? run(ExportCsv(options), input, progress)
                               : run(ExportCan(options), input, progress);
    }

    /// A flight of two files: positions every tenth of a second, and a text of \p labelSize in
    /// \p columns parameters.
    ExportInput flightOfTexts(unsigned samples, int labelSize = 1, int columns = 0) const
    {
        QByteArray elements =
            "<EnumList><Enum name='L'><Value val='0' label='" + QByteArray(labelSize, 'x') +
            "'/></Enum></EnumList><Device name='D'><Parameter name='Lat' id='1036' "
            "dataType='FLOAT' startByte='4' kmlId='Latitude'/><Parameter name='Lon' id='1037' "
            "dataType='FLOAT' startByte='4' kmlId='Longitude'/>";
        for (int i = 0; i < columns; ++i) {
            elements += "<Parameter name='P' id='1036' dataType='BLONG' startByte='0' "
                        "startBit='31' endBit='31' enumId='L'/>";
        }
        RecordingBuilder files[2];
        files[0].date(2021, 7, 9, 4, 5, 6);
        for (unsigned i = 0; i < samples; ++i) {
            files[i > samples / 2].add({1036, ticks(i * 0.1 + 1000), "0002000042400000"});
            if (i % 10 == 0) {
                files[i > samples / 2].add({1037, ticks(i * 0.1 + 1000), "0002000042400000"});
            }
        }
        const auto record =
            load({write("A.CAN", files[0].bytes()), write("B.CAN", files[1].bytes())});
        return inputOf(Flight::make(record, profileOf(elements + "</Device>")));
    }

    /// Everything in the test's folder; what is no file has no content.
    QMap<QString, QByteArray> contents() const
    {
        QMap<QString, QByteArray> all;
        for (const QFileInfo& file :
             QDir(folder()).entryInfoList(QDir::AllEntries | QDir::System | QDir::Hidden)) {
            all[file.fileName()] = file.isFile() ? read(file.fileName()) : QByteArray("none");
        }
        return all;
    }

private Q_SLOTS:
    void targets()
    {
        ExportInput input = flightOfTexts(3);
        const QString reference = write("C.CAN", read("B.CAN"));
        input.reference = {Flight::make(load({reference}), input.flight->profile())};
        write("file", "old");
        QVERIFY(QDir(folder()).mkdir("folder"));
        QCOMPARE(mkfifo(path("pipe").toLocal8Bit().constData(), 0600), 0);
        QVERIFY(QFile::link(path("B.CAN"), path("symbolic")));
        std::filesystem::create_hard_link(path("B.CAN").toStdString(), path("hard").toStdString());
        const auto before = contents();
        const QStringList recordings = {"A.CAN", "folder/../B.CAN", "symbolic", "hard", "C.CAN"};
        const QStringList others = {"gone/out", "file/out", "folder", "folder/", "pipe"};
        for (const QString& target : recordings + others) {
            const QString reason = recordings.contains(target) ? "is the recording itself" : "";
            for (const char* format : Formats) {
                const ExportResult result = exportAs(format, target, input);
                QVERIFY2(!result.done && result.message.contains(path(target)) &&
                             result.message.contains(reason),
                         qUtf8Printable(target + " as " + format + ": " + result.message));
                QCOMPARE(contents(), before);
            }
        }
    }

    void replacedWholeOrNotAtAll_data()
    {
        QTest::addColumn<QByteArray>("format");
        for (const char* format : Formats) {
            QTest::newRow(format) << QByteArray(format);
        }
    }

    void replacedWholeOrNotAtAll()
    {
        QFETCH(const QByteArray, format);
        for (const unsigned samples : {300U, 60000U}) { // in one piece, in several
            const int stopAt = samples > 300 ? 50 : 0;  // percent
            const ExportInput input = flightOfTexts(samples);
            write("out", "old");
            const auto before = contents();
            std::stop_source stop;
            const auto stopThere = [&](int percent, const QString&) {
                percent < stopAt || stop.request_stop();
            };
            const ExportResult stopped =
                exportAs(format, "out", input, Progress(stopThere, stop.get_token()));
            QVERIFY(!stopped.done && stopped.message.isEmpty());
            QCOMPARE(contents(), before); // nor is a half-written file left
            std::vector<int> told;
            const auto tell = [&](int percent, const QString&) { told.push_back(percent); };
            QVERIFY(exportAs(format, "out", input, Progress(tell)).done);
            QVERIFY(stopAt == 0 || (told.front() == 0 && told.back() > 94));
            const auto size = static_cast<rlim_t>(read("out").size());
            write("out", "old");
            for (const rlim_t room : {rlim_t(0), rlim_t(4000), size - 1}) {
                const ResourceLimit limit = ResourceLimit::fullDisk(room);
                const ExportResult result = exportAs(format, "out", input);
                QVERIFY2(!result.done && result.message.contains(path("out")) &&
                             (format != "csv" && format != "can") !=
                                 result.message.contains(qt_error_string(EFBIG)),
                         qUtf8Printable(result.message));
                QCOMPARE(contents(), before);
            }
            const ResourceLimit limit = ResourceLimit::fullDisk(size);
            QVERIFY(exportAs(format, "out", input).done);
        }
    }

    /// What is written needs memory for one row or mark, not for all.
    void memory()
    {
        if (!ResourceLimit::isPossible()) {
            QSKIP("the sanitizers reserve terabytes, their processes can't be limited");
        }
        const auto exportTexts = [this](const char* format, unsigned samples, int size,
                                        int columns) {
            const ExportInput input = flightOfTexts(samples, size, columns);
            write("out", "old");
            const ResourceLimit limit = ResourceLimit::shortMemory(32 << 20);
            return exportAs(format, "out", input);
        };
        for (const char* format : {"csv", "kml"}) {
            const ExportResult result = exportTexts(format, 3, 1'000'000, 64);
            QVERIFY(!result.done && result.message.contains("memory"));
            QCOMPARE(read("out"), "old");
            QVERIFY(exportTexts(format, *format == 'c' ? 16000 : 160000, 4000, 1).done);
            QVERIFY(QFileInfo(path("out")).size() > 60'000'000);
        }
    }

    void settings()
    {
        const QString rows[] = {
            // key, default, another value and a damaged one
            "CsvExportDir . a/b|CsvLimiter 59 44 120|CsvCan 0 1 2|CsvResolution 100 10 0|"
            "CsvAllParameter true false",
            "CsvLimiter 59 9|CsvResolution 100 1",
            "GpxExportDir . a/b|GpxTimeStamp 100 2500|GpxWaypoints true false",
            "KmlExportDir . a/b|KmlTimed false true|KmlTimeStamp 100 2500|KmlLineWidth 1 "
            "4|KmlLineColor ff0000 010203|"
            "KmlLineAlpha 255 16|KmlPolygonOn true false|KmlPolygonColor 0000ff 040506|"
            "KmlPolygonAlpha 100 17|KmlPlaceMarkOn true false|KmlPlaceMarkIntervall 10 25|"
            "KmlPlaceMarkColor ffcc00 070809|KmlErrorMarkOn true false|KmlShowLimit true false|"
            "KmlShowWarning true false|KmlErrorMarkColor ff0000 0a0b0c",
            "ReportPaper 0 1 2|ReportPdf false true|ReportOpens true false"};
        for (const QString& settings : rows) {
            const auto load = settings.startsWith("Csv")   ? loadedAndStored<CsvExportOptions>
                              : settings.startsWith("Kml") ? loadedAndStored<KmlExportOptions>
                              : settings.startsWith("Gpx") ? loadedAndStored<GpxExportOptions>
                                                           : loadedAndStored<ReportOptions>;
            for (const auto& [from, to] : {std::pair(9, 1), {2, 2}, {3, 1}}) { // given, then stored
                Property given;
                for (const QString& setting : settings.split('|')) {
                    const QStringList words = setting.split(' ');
                    if (from < words.size()) {
                        given.setString(words[0].toStdString(), words[from].toStdString());
                    }
                }
                const Property stored = load(given);
                for (const QString& setting : settings.split('|')) {
                    const QStringList words = setting.split(' ');
                    QCOMPARE(words[0] + " " + stored.getString(words[0].toStdString(), "-").c_str(),
                             words[0] + " " + words[to]);
                }
            }
        }
    }

    void extensionFollowsTheType()
    {
        CsvExportOptions options;
        options.completeFileName();
        QCOMPARE(options.fileName, "ExportOrna.csv");
        options.fileName = "9.7.can";
        options.fileType = CsvExportOptions::Can;
        options.completeFileName();
        QCOMPARE(options.fileName, "9.7.CAN");
    }
};

QTEST_APPLESS_MAIN(TestExporter)
#include "tst_exporter.moc"
