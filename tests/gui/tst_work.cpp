#include "gui/WindowTest.h"
#include "support/CommandRun.h"
#include "support/ResourceLimit.h"
#include "widgets/ActivityBar.h"

using namespace TARN;

/// What takes long: loading and exporting, beside the window.
class TestWork : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void loadingCanBeStopped_data()
    {
        QTest::addColumn<QString>("said"); // where what was shown stays
        QTest::newRow("button") << "Loading was cancelled.";
        QTest::newRow("escape") << "Loading was cancelled.";
        for (const char* how : {"another", "profile", "close"}) {
            QTest::newRow(how) << "";
        }
        QTest::newRow("memory") << "Not loaded: not enough memory for 12000000 samples";
    }

    /// What was shown stays until the other is complete.
    void loadingCanBeStopped()
    {
        const QString how = QTest::currentDataTag();
        QFETCH(const QString, said);
        QFile large(path("card/BIG_0000.CAN")); // of noughts, which need no room on the disk
        const qint64 samples = said.startsWith("Loading was") ? 60'000'000 : 12'000'000;
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(128 + samples * 28));
        start();
        open({1});
        const Session& session = this->session();
        const auto flight = session.flight();
        slider()->setValue(3000);
        const double time = session.time();
        const int row = rowOf(table());
        ActivityBar& bar = *find<ActivityBar>("loading");
        const auto limit = ResourceLimit::shortMemory(rlim_t(how == "memory" ? 1 : 1 << 14) << 26);
        pick({0});
        QVERIFY(session.switches().loading.isOn() && bar.isVisible() && row > 0);
        QCOMPARE(session.flight(), flight);
        if (how == "button") {
            QTest::mouseClick(bar.findChild<QToolButton*>(), Qt::LeftButton);
        } else if (how == "escape") {
            QTest::keyClick(recordings(), Qt::Key_Escape);
        } else if (how == "another") {
            open({2});
            QVERIFY(session.flight() != flight);
            QCOMPARE(session.flight()->samples().count(), flight->samples().count());
        } else if (how == "profile") {
            useProfile(path("gone.xml"));
            settle();
            QVERIFY(!session.profile()->isLoaded());
            QCOMPARE(session.flight()->profile(), session.profile());
            QCOMPARE(session.flight()->samples().count(), 12'000'000U);
        } else if (how == "close") {
            window().close();
            QVERIFY(hasClosed());
        }
        if (said.isEmpty()) {
            return;
        }
        settle();
        QVERIFY2(this->said().startsWith(said), qPrintable(this->said()));
        QVERIFY(!session.switches().loading.isOn() && !bar.isVisible());
        QVERIFY(session.flight() == flight && session.time() == time);
        QCOMPARE(rowOf(table()), row);
        if (how == "button") { // a click on what did not load tries again
            QVERIFY(recording(1)->isSelected());
            pick({0}); // is asked for
        }
    }

    void windowAndCommandLineWriteTheSame_data()
    {
        QTest::addColumn<QString>("proposed");
        QTest::newRow("kml --timestamp 500 --line-width 4 --no-polygon --placemark-interval 25 "
                      "--no-limits")
            << "LOG_0001.kml";
        QTest::newRow("kml --timestamp 500 --line-width 4 --no-polygon --placemark-interval 25 "
                      "--no-limits --timed")
            << "LOG_0001.kml";
        QTest::newRow("gpx --timestamp 500 --no-waypoints") << "LOG_0001.gpx";
        QTest::newRow("csv --separator , --resolution 10") << "ExportOrna.csv";
        QTest::newRow("csv --start 86100 --stop 87000.5") << "ExportOrna.csv";
        QTest::newRow("can") << "ExportOrna.CAN";
    }

    void windowAndCommandLineWriteTheSame()
    {
        const QString command = QTest::currentDataTag();
        QFETCH(const QString, proposed);
        RecordingBuilder night;
        night.startTicks(ticks(85800.0)); // 23:50
        for (int k = 0; k <= 1800; ++k) {
            add(night, QString("500@%1=%2").arg(85800 + k).arg(k));
        }
        write("card/NIGHT.CAN", night.bytes());
        const bool isNight = command.contains("--start");
        start();
        isNight ? open({2}) : open({0, 1});
        fillPages([&](QWizardPage& page) {
            const auto boxes = page.findChildren<QComboBox*>();
            const auto numbers = page.findChildren<QSpinBox*>();
            if (folderOf(page) != nullptr) {
                if (!boxes.isEmpty()) {
                    choose(boxes[0], command == "can" ? 1 : 0);
                }
                QCOMPARE(page.findChild<QLineEdit*>("fileName")->text(), proposed);
            } else if (boxes.size() == 3) {
                choose(boxes[0], isNight ? ';' : ',');
                choose(boxes[1], isNight ? 100 : 10);
                choose(boxes[2], 0); // the selected parameters only
                if (isNight) {
                    type(page.findChild<QTimeEdit*>("startTime"), "23:55:00.000");
                    type(page.findChild<QTimeEdit*>("stopTime"), "00:10:00.500");
                }
            } else if (proposed.endsWith("gpx")) {
                numbers[0]->setValue(500);
                page.findChild<QCheckBox*>()->setChecked(false);
            } else if (numbers.size() == 2) {
                page.findChild<QCheckBox*>()->setChecked(command.contains("--timed"));
                numbers[0]->setValue(500);
                numbers[1]->setValue(4);
                page.findChildren<QGroupBox*>()[1]->setChecked(false);
            } else {
                numbers[0]->setValue(25);
                page.findChildren<QCheckBox*>()[0]->setChecked(false);
            }
        });
        run(proposed.endsWith("kml")   ? ActionType::ExportKml
            : proposed.endsWith("gpx") ? ActionType::ExportGpx
                                       : ActionType::ExportCsv);
        settle();
        const QString file = path("out/" + proposed);
        QCOMPARE(answers().said, QStringList());
        QVERIFY2(said().startsWith("Written: " + file), qPrintable(said()));
        QVERIFY(writeByCommand(command, isNight ? "NIGHT.CAN" : "LOG_0001.CAN LOG_0002.CAN"));
        QVERIFY(read("other").size() > 10000);
        QVERIFY2(read(file) == read("other"), "window and command line differ");
    }

    /// Of all of the flight and of the marked range, under the name that the kind asks for.
    void reportIsThatOfTheCommandLine()
    {
        start();
        open({0, 1});
        int asked = 0;
        answers().atDialog = [&](QDialog& dialog) {
            type(folderOf(dialog), exportPath());
            const auto boxes = dialog.findChildren<QComboBox*>(); // kind, paper, range
            auto* name = dialog.findChild<QLineEdit*>("fileName");
            QCOMPARE(name->text(), "LOG_0001.html");
            boxes[0]->setCurrentIndex(1);
            QCOMPARE(name->text(), "LOG_0001.pdf");
            boxes[0]->setCurrentIndex(0);
            boxes[1]->setCurrentIndex(asked);
            QCOMPARE(boxes[2]->count(), asked == 0 ? 1 : 2);
            boxes[2]->setCurrentIndex(asked++);
            dialog.findChild<QCheckBox*>()->setChecked(false);
        };
        const QString file = path("out/LOG_0001.html");
        const QString other = path("card/LOG_0001.CAN");
        const std::pair<TimeRange, QString> ranges[] = {
            {{}, "report"},
            {{33200.0, 33300.0},
             "report --letter --start 33200 --stop 33300 --align 2.5:0 --reference " + other}};
        for (const auto& [marks, command] : ranges) {
            if (marks.hasExtent()) {
                session().reference().setFlight(Flight::make(load({other}), session().profile()));
                session().reference().setShift(2.5);
            }
            session().setMarks(marks);
            QTRY_VERIFY(action(ActionType::FlightReport)->isEnabled());
            run(ActionType::FlightReport);
            QTRY_VERIFY2(QFile::exists(file), qPrintable(QString::number(asked)));
            settle();
            QVERIFY2(said().startsWith("Written: " + file), qPrintable(said()));
            QVERIFY(writeByCommand(command, "LOG_0001.CAN LOG_0002.CAN"));
            QVERIFY(read(file).size() > 10000);
            QVERIFY2(read(file) == read("other.html"), "window and command line differ");
            QCOMPARE(read(file).contains("Compared with the reference"), marks.hasExtent());
            QFile::remove(file);
        }
    }

    void targetsAndTimesAreChecked()
    {
        start();
        open({0});
        slider()->setValue(5000);
        const QString target = write("out/ExportOrna.csv", "precious");
        int visit = 0;
        Answers& answers = this->answers();
        answers.buttons = QStringList{"OK", "No", "Yes", "OK"};
        answers.atPage = [&](QWizard& wizard, QWizardPage& page) {
            if (QLineEdit* folder = folderOf(page)) {
                // First there is no such folder; then the file may not and may be replaced.
                type(folder, visit++ == 0 ? "/nowhere" : exportPath());
            } else if (answers.said.size() > 3) {
                wizard.reject();
            } else {
                auto* start = page.findChild<QTimeEdit*>("startTime");
                QCOMPARE(start->time(), QTime(9, 12, 0, 5));
                const auto buttons = page.findChildren<QPushButton*>();
                (*std::ranges::find(buttons, "Cursor Pos", &QPushButton::text))->click();
                QCOMPARE(start->time(), timeEdit()->time());
                page.findChild<QTimeEdit*>("stopTime")->setTime(start->time().addMSecs(-1));
            }
        };
        run(ActionType::ExportCsv);
        QCOMPARE(answers.said.size(), 4);
        QVERIFY2(answers.said[0].contains("\"/nowhere\" does not exist"), "folder");
        QVERIFY2(answers.said[1].contains("Replace it?"), "file");
        QVERIFY2(answers.said[3].contains("after the stop time"), "times");
        QVERIFY2(read(path("ORNA/ORNA.ini")).contains(exportPath().toUtf8()),
                 "a wizard that was cancelled keeps what was chosen");
        QCOMPARE(read(target), "precious");
    }

    void exportsRunBesideTheViews_data()
    {
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("written");
        QTest::newRow("button") << false << false; // the others answer when the window closes
        QTest::newRow("Wait") << true << true;
        QTest::newRow("Stop") << true << false;
        QTest::newRow("Cancel") << false << true;
    }

    void exportsRunBesideTheViews()
    {
        const QString how = QTest::currentDataTag();
        QFETCH(const bool, closes);
        QFETCH(const bool, written);
        makeHome(60);
        start();
        open({0, 1});
        const QString target = write("out/ExportOrna.csv", "precious");
        answers().buttons = QStringList{"Yes", how};
        fillPages([&](QWizardPage& page) {
            const auto boxes = page.findChildren<QComboBox*>();
            if (boxes.size() == 3) {
                choose(boxes[1], 1); // ms
                choose(boxes[2], written ? 0 : 1);
            }
        });
        run(ActionType::ExportCsv);
        auto* bar = find<ActivityBar>("exporting");
        QVERIFY(bar->isVisible() && !action(ActionType::ExportKml)->isEnabled());
        slider()->setValue(5000);
        QVERIFY(rowOf(table()) > 0);
        if (how == "button") {
            QTest::mouseClick(bar->findChild<QToolButton*>(), Qt::LeftButton);
            QVERIFY(said().startsWith("The export was stopped; the old file"));
            QVERIFY(action(ActionType::ExportKml)->isEnabled());
        } else {
            window().close();
            QVERIFY(answers().said.last().contains("An export is running."));
            QCOMPARE(hasClosed(), how == "Stop");
            open({0}); // what is exported stays the same
        }
        settle();
        QCOMPARE(hasClosed(), closes);
        QVERIFY(!written || writeByCommand("csv --resolution 1", "LOG_0001.CAN LOG_0002.CAN"));
        QVERIFY(read(target) == (written ? read("other") : "precious"));
        QCOMPARE(QDir(exportPath()).entryList(QDir::Files).size(), 1);
    }

private:
    /// Writes the file "other" as the window should.
    bool writeByCommand(const QString& line, const QString& recordings) const
    {
        QStringList command = line.split(' ')
                              << "-o" << path(line.startsWith("report") ? "other.html" : "other");
        if (line != "can") {
            command << "--profile" << profilePath();
        }
        if (!line.startsWith("can") && !line.startsWith("gpx")) { // of no selection
            command << "--project" << projectPath();
        }
        for (const QString& name : recordings.split(' ')) {
            command << path("card/" + name);
        }
        return runCommand(command).status == 0;
    }
};

QTEST_MAIN(TestWork)
#include "tst_work.moc"
