#include "app/ActivityBar.h"
#include "gui/WindowTest.h"
#include "support/CommandRun.h"
#include "support/ResourceLimit.h"

using namespace TARN;

/// What takes long: loading and exporting, beside the window.
class TestWork : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void loadingCanBeStopped_data()
    {
        QTest::addColumn<QString>("how");
        for (const char* how : {"button", "escape", "another", "profile", "memory", "close"}) {
            QTest::addRow("%s", how) << how;
        }
    }

    /// What was shown stays until the other is complete.
    void loadingCanBeStopped()
    {
        QFETCH(const QString, how);
        QFile large(path("card/BIG_0000.CAN")); // of noughts, which need no room on the disk
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(128 + 12'000'000LL * 28));
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
        QVERIFY(session.loading().isOn() && bar.isVisible() && row > 0);
        QCOMPARE(session.flight(), flight);
        if (how == "button") {
            QTest::mouseClick(bar.findChild<QToolButton*>(), Qt::LeftButton);
        } else if (how == "escape") {
            QTest::keyClick(recordings(), Qt::Key_Escape);
        } else if (how == "another") {
            open({2});
            QVERIFY(session.flight() != flight);
            QCOMPARE(session.flight()->samples().count(), flight->samples().count());
            return;
        } else if (how == "profile") {
            useProfile(path("gone.xml"));
            settle();
            QVERIFY(!session.profile()->isLoaded());
            QCOMPARE(session.flight()->profile(), session.profile());
            QCOMPARE(session.flight()->samples().count(), 12'000'000U);
            return;
        } else if (how == "close") {
            window().close();
            QVERIFY(hasClosed());
            return;
        }
        settle();
        const QString said = how == "memory" ? "Not loaded: not enough memory for 12000000 samples"
                                             : "Loading was cancelled.";
        QVERIFY2(this->said().startsWith(said), qPrintable(this->said()));
        QVERIFY(!session.loading().isOn() && !bar.isVisible());
        QVERIFY(session.flight() == flight && session.time() == time);
        QCOMPARE(rowOf(table()), row);
    }

    void windowAndCommandLineWriteTheSame_data()
    {
        QTest::addColumn<QString>("proposed");
        QTest::addColumn<QString>("command");
        QTest::addRow("kml") << "LOG_0001.kml"
                             << "kml --timestamp 500 --line-width 4 --no-polygon "
                                "--placemark-interval 25 --no-limits";
        QTest::addRow("csv") << "ExportOrna.csv"
                             << "csv --separator , --resolution 10";
        QTest::addRow("can") << "ExportOrna.CAN"
                             << "can";
    }

    void windowAndCommandLineWriteTheSame()
    {
        QFETCH(QString, proposed);
        QFETCH(QString, command);
        start();
        open({0, 1});
        answers().atPage = [&](QWizard&, QWizardPage& page) {
            const auto boxes = page.findChildren<QComboBox*>();
            const auto numbers = page.findChildren<QSpinBox*>();
            if (QLineEdit* folder = folderOf(page)) {
                type(folder, exportPath());
                if (!boxes.isEmpty()) {
                    choose(boxes[0], command == "can" ? 1 : 0);
                }
                QCOMPARE(page.findChild<QLineEdit*>("fileName")->text(), proposed);
            } else if (boxes.size() == 3) {
                choose(boxes[0], ',');
                choose(boxes[1], 10);
                choose(boxes[2], 0); // the selected parameters only
            } else if (numbers.size() == 2) {
                numbers[0]->setValue(500);
                numbers[1]->setValue(4);
                page.findChildren<QGroupBox*>()[1]->setChecked(false);
            } else {
                numbers[0]->setValue(25);
                page.findChildren<QCheckBox*>()[0]->setChecked(false);
            }
        };
        run(proposed.endsWith("kml") ? ActionType::ExportKml : ActionType::ExportCsv);
        settle();
        const QString file = path("out/" + proposed);
        QCOMPARE(answers().said, QStringList());
        QVERIFY2(said().startsWith("Written: " + file), qPrintable(said()));
        QVERIFY(writeByCommand(command.split(' '), {"LOG_0001.CAN", "LOG_0002.CAN"}));
        QVERIFY(read("other").size() > 10000);
        QVERIFY2(read(file) == read("other"), "window and command line differ");
    }

    void rangeAcrossMidnightIsWhatIsShown()
    {
        RecordingBuilder file;
        file.startTicks(ticks(85800.0)); // 23:50
        for (int k = 0; k <= 1800; ++k) {
            add(file, QString("500@%1=%2").arg(85800 + k).arg(k));
        }
        write("card/A_NIGHT.CAN", file.bytes());
        start();
        open({0});
        answers().atPage = [&](QWizard&, QWizardPage& page) {
            if (QLineEdit* folder = folderOf(page)) {
                type(folder, exportPath());
            } else {
                type(page.findChild<QTimeEdit*>("startTime"), "23:55:00.000");
                type(page.findChild<QTimeEdit*>("stopTime"), "00:10:00.500");
                choose(page.findChildren<QComboBox*>()[2], 0);
            }
        };
        run(ActionType::ExportCsv);
        settle();
        QCOMPARE(answers().said, QStringList());
        QVERIFY(writeByCommand({"csv", "--start", "86100", "--stop", "87000.5"}, {"A_NIGHT.CAN"}));
        QCOMPARE(read("out/ExportOrna.csv"), read("other"));
        QCOMPARE(read("other").count('\n'), 9007); // a title, then every tenth of 900.5 s
    }

    void targetsAndTimesAreChecked()
    {
        start();
        open({0});
        slider()->setValue(5000);
        const QString target = path("out/ExportOrna.csv");
        write(target, "precious");
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
                for (auto* button : page.findChildren<QPushButton*>()) {
                    if (button->text() == "Cursor Pos") {
                        button->click();
                    }
                }
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
        QTest::addColumn<QString>("answer"); // when the window closes; empty where it does not
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("written");
        QTest::addRow("button") << "" << false << false;
        QTest::addRow("wait") << "Wait" << true << true;
        QTest::addRow("stop") << "Stop" << true << false;
        QTest::addRow("cancel") << "Cancel" << false << true;
    }

    void exportsRunBesideTheViews()
    {
        QFETCH(const QString, answer);
        QFETCH(const bool, closes);
        QFETCH(const bool, written);
        makeHome(60);
        start();
        open({0, 1});
        const QString target = path("out/ExportOrna.csv");
        write(target, "precious");
        answers().buttons = QStringList{"Yes", answer};
        answers().atPage = [&](QWizard&, QWizardPage& page) {
            if (QLineEdit* folder = folderOf(page)) {
                type(folder, exportPath());
            } else {
                choose(page.findChildren<QComboBox*>()[1], 1); // ms
                choose(page.findChildren<QComboBox*>()[2], written ? 0 : 1);
            }
        };
        run(ActionType::ExportCsv);
        auto* bar = find<ActivityBar>("exporting");
        QVERIFY(bar->isVisible() && !action(ActionType::ExportKml)->isEnabled());
        slider()->setValue(5000);
        QVERIFY(rowOf(table()) > 0);
        if (answer.isEmpty()) {
            QTest::mouseClick(bar->findChild<QToolButton*>(), Qt::LeftButton);
            QVERIFY(said().startsWith("The export was stopped; the old file"));
            QVERIFY(action(ActionType::ExportKml)->isEnabled());
        } else {
            window().close();
            QVERIFY(answers().said.last().contains("An export is running."));
            QCOMPARE(hasClosed(), answer == "Stop");
            open({0}); // what is exported stays the same
        }
        settle();
        QCOMPARE(hasClosed(), closes);
        QVERIFY(!written ||
                writeByCommand({"csv", "--resolution", "1"}, {"LOG_0001.CAN", "LOG_0002.CAN"}));
        QVERIFY(read(target) == (written ? read("other") : "precious"));
        QCOMPARE(QDir(exportPath()).entryList(QDir::Files).size(), 1);
    }

private:
    /// Writes the file "other" as the window should.
    bool writeByCommand(QStringList command, const QStringList& files) const
    {
        if (command[0] != "can") {
            command << "--profile" << profilePath() << "--project" << projectPath();
        }
        command << "-o" << path("other");
        for (const QString& file : files) {
            command << path("card/" + file);
        }
        return runCommand(command).status == 0;
    }
};

QTEST_MAIN(TestWork)
#include "tst_work.moc"
