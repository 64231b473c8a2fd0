#include "base/Property.h"
#include "export/ExportCan.h"
#include "export/ExportCsv.h"
#include "export/ExportKml.h"
#include "export/ExportTest.h"
#include "support/ResourceLimit.h"

#include <QtCore/QDir>
#include <QtCore/QMap>

#include <cerrno>
#include <filesystem>
#include <stop_token>
#include <sys/stat.h>

using namespace TARN;

namespace {

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
        if (format == "kml") {
            return run(ExportKml(optionsFor<KmlExportOptions>(file, range)), input, progress);
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
            "dataType='FLOAT' startByte='4' kmlId='Latitude'/>";
        for (int i = 0; i < columns; ++i) {
            elements += "<Parameter name='P' id='1036' dataType='BLONG' startByte='0' "
                        "startBit='31' endBit='31' enumId='L'/>";
        }
        RecordingBuilder files[2];
        for (unsigned i = 0; i < samples; ++i) {
            files[i > samples / 2].add({1036, ticks(i * 0.1 + 1000), "0002000042400000"});
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
    void targets_data()
    {
        QTest::addColumn<QString>("reason");
        for (const char* target : {"gone/out", "file/out", "folder", "folder/", "pipe"}) {
            QTest::newRow(target) << "";
        }
        for (const char* target : {"A.CAN", "folder/../B.CAN", "symbolic", "hard"}) {
            QTest::newRow(target) << "is the recording itself";
        }
    }

    void targets()
    {
        const QString target = QTest::currentDataTag();
        QFETCH(const QString, reason);
        const ExportInput input = flightOfTexts(3);
        write("file", "old");
        QVERIFY(QDir(folder()).mkdir("folder"));
        QCOMPARE(mkfifo(path("pipe").toLocal8Bit().constData(), 0600), 0);
        QVERIFY(QFile::link(path("B.CAN"), path("symbolic")));
        std::filesystem::create_hard_link(path("B.CAN").toStdString(), path("hard").toStdString());
        const auto before = contents();
        for (const char* format : {"csv", "can", "kml"}) {
            const ExportResult result = exportAs(format, target, input);
            QVERIFY2(!result.done, format);
            QVERIFY2(result.message.contains(path(target)) && result.message.contains(reason),
                     qUtf8Printable(result.message));
            QCOMPARE(contents(), before);
        }
    }

    void replacedWholeOrNotAtAll_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<unsigned>("samples");
        QTest::addColumn<int>("stopAt"); // percent
        for (const char* format : {"csv", "can", "kml"}) {
            QTest::addRow("%s, in one piece", format) << QByteArray(format) << 300U << 0;
            QTest::addRow("%s, in several pieces", format) << QByteArray(format) << 60000U << 50;
        }
    }

    void replacedWholeOrNotAtAll()
    {
        QFETCH(const QByteArray, format);
        QFETCH(const unsigned, samples);
        QFETCH(const int, stopAt);
        const ExportInput input = flightOfTexts(samples);
        write("out", "old");
        const auto before = contents();
        std::stop_source stop;
        const Progress progress(
            [&](int percent, const QString&) {
                if (percent >= stopAt) {
                    stop.request_stop();
                }
            },
            stop.get_token());
        const ExportResult stopped = exportAs(format, "out", input, progress);
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
            QVERIFY(!result.done);
            QVERIFY2(result.message.contains(path("out")) &&
                         (format == "kml" || result.message.contains(qt_error_string(EFBIG))),
                     qUtf8Printable(result.message));
            QCOMPARE(contents(), before);
        }
        const ResourceLimit limit = ResourceLimit::fullDisk(size);
        QVERIFY(exportAs(format, "out", input).done);
    }

    /// What is written needs memory for one row or mark, not for all.
    void memory()
    {
#ifdef ORNA_SANITIZED
        QSKIP("the address sanitizer reserves terabytes, its process can't be limited");
#endif
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

    void settings_data()
    {
        QTest::addColumn<QString>("settings"); // key, default, another value and a damaged one
        QTest::newRow("CSV") << "CsvExportDir . a/b|CsvLimiter 59 44 120|CsvCan 0 1 2|"
                                "CsvResolution 100 10 0|CsvAllParameter true false";
        QTest::newRow("CSV, other choices") << "CsvLimiter 59 9|CsvResolution 100 1";
        QTest::newRow("KML") << "KmlExportDir . a/b|KmlTimeStamp 100 2500|KmlLineWidth 1 4|"
                                "KmlLineColor ff0000 010203|KmlLineAlpha 255 16|"
                                "KmlPolygonOn true false|KmlPolygonColor 0000ff 040506|"
                                "KmlPolygonAlpha 100 17|KmlPlaceMarkOn true false|"
                                "KmlPlaceMarkIntervall 10 25|KmlPlaceMarkColor ffcc00 070809|"
                                "KmlErrorMarkOn true false|KmlShowLimit true false|"
                                "KmlShowWarning true false|KmlErrorMarkColor ff0000 0a0b0c";
    }

    void settings()
    {
        QFETCH(const QString, settings);
        const auto load = settings.startsWith("Csv") ? loadedAndStored<CsvExportOptions>
                                                     : loadedAndStored<KmlExportOptions>;
        for (const auto& [from, to] : {std::pair(9, 1), {2, 2}, {3, 1}}) { // given, then stored
            Property given;
            QStringList expected;
            for (const QString& setting : settings.split('|')) {
                const QStringList words = setting.split(' ');
                expected += words[0] + " " + words[to];
                if (from < words.size()) {
                    given.setString(words[0].toStdString(), words[from].toStdString());
                }
            }
            const Property stored = load(given);
            for (const QString& setting : expected) {
                const QString key = setting.section(' ', 0, 0);
                QCOMPARE(key + " " + stored.getString(key.toStdString(), "-").c_str(), setting);
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
