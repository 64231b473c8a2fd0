#include "base/Property.h"
#include "export/ExportCan.h"
#include "export/ExportCsv.h"
#include "export/ExportKml.h"
#include "export/RecordTest.h"
#include "profile/Project.h"
#include "support/ResourceLimit.h"

#include <QtCore/QDir>

#include <cerrno>
#include <sys/stat.h>

using namespace TARN;

/// Where an export can't be written, it says so and nothing is changed.
class TestTargets : public RecordTest
{
    Q_OBJECT

    ExportResult exportAs(const QByteArray& format, const QString& target, int samples,
                          rlim_t room = RLIM_INFINITY)
    {
        const Profile& profile = useProfile(
            "<Device name='D'><Parameter name='Lat' id='1036' dataType='FLOAT' startByte='4' "
            "kmlId='Latitude'/></Device>");
        RecordingBuilder file;
        for (int i = 0; i < samples; ++i) {
            file.add({1036, ticks(i * 0.1), "0002000042400000"});
        }
        Record& record = loadFiles({write("REC_0000.CAN", file.bytes())});
        const auto complete = [&](auto options) {
            options.directory = target.section('/', 0, -2).toStdString();
            options.fileName = target.section('/', -1).toStdString();
            options.stopTime = record.recordInfo().stopTime;
            return options;
        };
        CsvExportOptions options = complete(CsvExportOptions());
        options.allParameters = true;
        const ResourceLimit limit = ResourceLimit::fullDisk(room);
        return format == "csv" ? ExportCsv(profile).exportData(record, options)
               : format == "can"
                   ? ExportCan().exportData(record, options)
                   : ExportKml(profile).exportData(record, complete(KmlExportOptions()));
    }

private Q_SLOTS:
    void noSuchPlace_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QString>("target");
        for (const char* format : {"csv", "can", "kml"}) {
            QTest::addRow("%s, no folder", format) << QByteArray(format) << "gone/out";
            QTest::addRow("%s, a file for a folder", format) << QByteArray(format) << "file/out";
            QTest::addRow("%s, a folder for a file", format) << QByteArray(format) << "folder";
            QTest::addRow("%s, no name", format) << QByteArray(format) << "folder/";
            QTest::addRow("%s, the recording", format) << QByteArray(format) << "REC_0000.CAN";
            QTest::addRow("%s, the recording by another name", format)
                << QByteArray(format) << "link";
        }
    }

    void noSuchPlace()
    {
        QFETCH(const QByteArray, format);
        QFETCH(const QString, target);
        write("file", "old");
        QVERIFY(QDir(folder()).mkdir("folder"));
        QVERIFY(QFile::link(path("REC_0000.CAN"), path("link")));
        const ExportResult result = exportAs(format, path(target), 3);
        QVERIFY(!result.done);
        QVERIFY2(result.message.contains(path(target)), qUtf8Printable(result.message));
        QCOMPARE(read("file"), "old");
        QVERIFY(QDir(path("folder")).isEmpty());
        QCOMPARE(read("REC_0000.CAN").size(), 128 + 3 * 28);
    }

    void diskThatFillsUp_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<int>("samples");
        for (const char* format : {"csv", "can", "kml"}) {
            QTest::addRow("%s, in the only piece", format) << QByteArray(format) << 300;
            QTest::addRow("%s, in one of several pieces", format) << QByteArray(format) << 60000;
        }
    }

    void diskThatFillsUp()
    {
        QFETCH(const QByteArray, format);
        QFETCH(const int, samples);
        QVERIFY(exportAs(format, path("out"), samples).done);
        const qint64 size = read("out").size();
        write("out", "old");
        const QStringList files = QDir(folder()).entryList();
        for (const rlim_t room : {rlim_t(0), rlim_t(4000), static_cast<rlim_t>(size - 1)}) {
            const ExportResult result = exportAs(format, path("out"), samples, room);
            QCOMPARE(read("out"), "old");
            QVERIFY(!result.done);
            QCOMPARE(QDir(folder()).entryList(), files); // no half-written file is left
            QVERIFY2(result.message.contains(path("out")), qUtf8Printable(result.message));
            if (format != "kml") {
                const QString reason = qt_error_string(EFBIG);
                QVERIFY2(result.message.contains(reason), qUtf8Printable(result.message));
            }
        }
        QVERIFY(exportAs(format, path("out"), samples, static_cast<rlim_t>(size)).done);
        QCOMPARE(read("out").size(), size);
    }

    void diskWithoutRoomForSmallFiles()
    {
        useProfile("<Device name='D'><Parameter name='P' id='1'/></Device>");
        Record& record = load("1@1=1");
        Property settings;
        settings.setConfigFile(path("ORNA.ini").toStdString());
        settings.setInt("CsvLimiter", 44);
        const auto saveAll = [&](double offset) {
            settings.writeXmlFile(); // whose failure is no news to anybody
            const bool offsetSaved = record.setOffset(offset);
            const bool saved = Project::instance()->saveProject(path("p.xml").toStdString());
            return offsetSaved + saved;
        };
        QCOMPARE(saveAll(1), 2);
        const QStringList files = QDir(folder()).entryList();
        const QList<QByteArray> before = {read("ORNA.ini"), read("Offset.xml"), read("p.xml")};
        for (const rlim_t room : {0, 20}) {
            const ResourceLimit limit = ResourceLimit::fullDisk(room);
            QCOMPARE(saveAll(2), 0);
            QCOMPARE(QDir(folder()).entryList(), files);
            QCOMPARE(QList({read("ORNA.ini"), read("Offset.xml"), read("p.xml")}), before);
        }
        QCOMPARE(saveAll(2), 2);
        QVERIFY(read("Offset.xml") != before[1]);
    }

    /// A pipe or a device is no file that could be replaced whole.
    void specialFilesStay()
    {
        const QByteArray pipe = path("pipe").toLocal8Bit();
        QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
        for (const char* format : {"csv", "can", "kml"}) {
            QVERIFY2(!exportAs(format, path("pipe"), 3).done, format);
            struct stat info
            {};
            QVERIFY2(stat(pipe.constData(), &info) == 0 && S_ISFIFO(info.st_mode), format);
        }
    }
};

QTEST_APPLESS_MAIN(TestTargets)
#include "tst_targets.moc"
