#include "base/ClockTime.h"
#include "gui/Viewer.h"
#include "profile/Profile.h"
#include "record/Record.h"

#include <QtCore/QFile>
#include <QtTest/QTest>
#include <QtWidgets/QStatusBar>

using namespace TARN;

/// The main job from start to finish, on the real window.
class StartToTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void reopensCardAndProject();
    void loadsOneRecordingAndThenAll();
    void everyViewFollowsTheTime();
    void tickedParametersAppearWhenConfirmed();
    void offsetIsKeptWithTheCard();
    void asksBeforeLosingTheProject();
    void savesTheProjectAndFindsItAgain();
    void swallowsControlZ();
    void survivesMissingAndBrokenFiles_data();
    void survivesMissingAndBrokenFiles();
    void damagedRecordingsAreNamed();
    void cardVanishesWhileInUse();
};

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

} // namespace

void StartToTable::cleanup()
{
    Profile::instance()->clear();
}

void StartToTable::reopensCardAndProject()
{
    Viewer viewer;
    viewer.start();
    QCOMPARE(viewer.window().windowTitle(), "ORNA Flight");
    QCOMPARE(viewer.recordings()->topLevelItemCount(), 2);
    QVERIFY(viewer.recordings()->topLevelItem(0)->text(0).startsWith("LOG_0001.CAN   16.5.2026"));
    QCOMPARE(viewer.recordings()->topLevelItem(0)->childCount(), 12);
    QCOMPARE(viewer.parameter("RPM [1/min]")->checkState(0), Qt::Checked);
    QCOMPARE(viewer.parameter("CHT 1 [°C]")->checkState(0), Qt::Unchecked);
    QCOMPARE(viewer.table()->model()->columnCount(), 3);
    QCOMPARE(viewer.table()->model()->rowCount(), 0);
    QVERIFY(!viewer.slider()->isEnabled());
    QVERIFY(!viewer.action("&Save Project")->isEnabled());
}

void StartToTable::loadsOneRecordingAndThenAll()
{
    Viewer viewer;
    viewer.start();
    viewer.loadRecordings({1});
    Record& record = viewer.window().record();
    const auto second = record.recordData().count();
    const double stop = record.recordInfo().stopTime;
    QVERIFY(second > 1000);
    const int rows = viewer.table()->model()->rowCount();
    QVERIFY(rows > 1000);
    QCOMPARE(viewer.selectedRow(), 0);

    viewer.loadRecordings({0, 1});
    QVERIFY(record.recordData().count() > second);
    QCOMPARE(record.recordInfo().stopTime, stop);
    QVERIFY(viewer.table()->model()->rowCount() > rows);
    QVERIFY(viewer.cell(0, 0).startsWith("09:12:00."));

    // A detail line stands for no file: what was loaded stays.
    const auto all = record.recordData().count();
    QTreeWidgetItem* file = viewer.recordings()->topLevelItem(0);
    file->setExpanded(true);
    viewer.recordings()->clearSelection();
    file->child(3)->setSelected(true);
    QTest::qWait(600);
    QCOMPARE(record.recordData().count(), all);
}

void StartToTable::everyViewFollowsTheTime()
{
    Viewer viewer;
    viewer.start();
    viewer.loadRecordings({0, 1});
    const RecordInfo& info = viewer.window().record().recordInfo();
    const auto rowText = [&] { return viewer.cell(viewer.selectedRow(), 0).left(10); };

    viewer.slider()->setValue(10000);
    QCOMPARE(viewer.selectedRow(), viewer.table()->model()->rowCount() - 1);
    viewer.slider()->setValue(0);
    QCOMPARE(viewer.selectedRow(), 0);

    viewer.timeEdit()->setFocus();
    viewer.timeEdit()->selectAll();
    QTest::keyClicks(viewer.timeEdit(), "09");
    viewer.timeEdit()->setCurrentSection(QDateTimeEdit::MinuteSection);
    viewer.timeEdit()->setSelectedSection(QDateTimeEdit::MinuteSection);
    QTest::keyClicks(viewer.timeEdit(), "15");
    QTest::keyClick(viewer.timeEdit(), Qt::Key_Return);
    QCOMPARE(viewer.timeEdit()->time().minute(), 15);
    QCOMPARE(rowText(),
             QString("09:15:%1.").arg(viewer.timeEdit()->time().second(), 2, 10, QChar('0')) + "0");
    QVERIFY(viewer.slider()->value() > 2000 && viewer.slider()->value() < 4000);

    // Clicking a row moves the rest there, and the row stays where it was clicked.
    viewer.slider()->setValue(5000);
    const int row = viewer.selectedRow() + 3;
    QTest::mouseClick(viewer.table()->viewport(), Qt::LeftButton, {},
                      viewer.table()->visualRect(viewer.table()->model()->index(row, 1)).center());
    QCOMPARE(viewer.selectedRow(), row);
    const qint64 milliseconds =
        viewer.table()->model()->index(row, 0).data(Qt::UserRole).toLongLong();
    QCOMPARE(viewer.timeEdit()->time(), clockTime(milliseconds));
    QVERIFY(viewer.slider()->value() > 5000);

    // The arrow keys walk the table.
    viewer.table()->setFocus();
    QTest::keyClick(viewer.table(), Qt::Key_Down);
    QCOMPARE(viewer.selectedRow(), row + 1);
    QVERIFY(info.utcTime > 0);
}

void StartToTable::tickedParametersAppearWhenConfirmed()
{
    Viewer viewer;
    viewer.start();
    viewer.loadRecordings({0});
    QTreeWidgetItem* item = viewer.parameter("CHT 1 [°C]");
    viewer.clickCheckBox(item);
    QCOMPARE(item->checkState(0), Qt::Checked);
    QCOMPARE(viewer.window().windowTitle(), "ORNA Flight[edited]");
    QCOMPARE(viewer.table()->model()->columnCount(), 3);
    viewer.slider()->setValue(4000);
    const int row = viewer.selectedRow();
    viewer.confirmSelection();
    QCOMPARE(viewer.table()->model()->columnCount(), 4);
    QCOMPARE(viewer.table()->model()->headerData(2, Qt::Horizontal).toString(), "CHT 1 [°C]");
    QVERIFY(viewer.table()->model()->rowCount() > 0);
    QVERIFY2(qAbs(viewer.selectedRow() - row) < 10, "the time must stay where it was");
}

void StartToTable::offsetIsKeptWithTheCard()
{
    Viewer viewer;
    viewer.start();
    viewer.loadRecordings({0});
    const QString file = viewer.cardPath() + "/Offset.xml";
    QVERIFY(!QFile::exists(file));
    viewer.offset()->setFocus();
    viewer.offset()->selectAll();
    QTest::keyClicks(viewer.offset(), "2.5");
    QVERIFY2(!QFile::exists(file), "a number is complete with Enter, not before");
    QTest::keyClick(viewer.offset(), Qt::Key_Return);
    QCOMPARE(contentOf(file), "<TarnOffset>\n    <Offset value=\"2.500000000000\"/>\n"
                              "</TarnOffset>\n");
    viewer.start();
    viewer.loadRecordings({1});
    QCOMPARE(viewer.offset()->value(), 2.5);
}

void StartToTable::asksBeforeLosingTheProject()
{
    Viewer viewer;
    viewer.start();
    const QByteArray before = contentOf(viewer.projectPath());
    viewer.clickCheckBox(viewer.parameter("CHT 1 [°C]"));
    viewer.answerBox("Cancel");
    viewer.window().close();
    QVERIFY(viewer.boxWasShown());
    QVERIFY(!viewer.hasClosed());
    viewer.answerBox("No");
    viewer.window().close();
    QVERIFY(viewer.hasClosed());
    QCOMPARE(contentOf(viewer.projectPath()), before);

    viewer.start();
    viewer.clickCheckBox(viewer.parameter("CHT 1 [°C]"));
    viewer.answerBox("Yes");
    viewer.action("&Quit")->trigger();
    QVERIFY(viewer.hasClosed());
    QVERIFY(contentOf(viewer.projectPath()).contains("CHT 1"));
}

void StartToTable::savesTheProjectAndFindsItAgain()
{
    Viewer viewer;
    viewer.start();
    viewer.clickCheckBox(viewer.parameter("EGT 6 [°C]"));
    QVERIFY(viewer.action("&Save Project")->isEnabled());
    viewer.action("&Save Project")->trigger();
    QVERIFY(!viewer.action("&Save Project")->isEnabled());
    QCOMPARE(viewer.window().windowTitle(), "ORNA Flight");
    QCOMPARE(contentOf(viewer.projectPath()), "<TarnProject>\n    <Parameters>\n"
                                              "        <Parameter name=\"RPM\"/>\n"
                                              "        <Parameter name=\"CHT 3\"/>\n"
                                              "        <Parameter name=\"EGT 6\"/>\n"
                                              "    </Parameters>\n</TarnProject>\n");
    viewer.start();
    QCOMPARE(viewer.parameter("EGT 6 [°C]")->checkState(0), Qt::Checked);
    QCOMPARE(viewer.table()->model()->columnCount(), 4);
    viewer.action("&New Project")->trigger();
    QCOMPARE(viewer.window().windowTitle(), "ORNA ");
    QCOMPARE(viewer.table()->model()->columnCount(), 1);
}

void StartToTable::swallowsControlZ()
{
    Viewer viewer;
    viewer.start();
    viewer.loadRecordings({0});
    const double before = viewer.offset()->value();
    viewer.offset()->setFocus();
    viewer.offset()->selectAll();
    QTest::keyClicks(viewer.offset(), "7");
    QTest::keyClick(viewer.offset(), Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(viewer.offset(), Qt::Key_Return);
    QVERIFY2(!qFuzzyCompare(viewer.offset()->value() + 1, before + 1), "undo must not reach it");
    QCOMPARE(viewer.offset()->value(), 7.0);
}

void StartToTable::survivesMissingAndBrokenFiles_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QByteArray>("content");
    const QByteArray bomb = "<!DOCTYPE x [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;\">"
                            "<!ENTITY c \"&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;\">"
                            "<!ENTITY e \"&d;&d;&d;&d;&d;&d;&d;\">]><x>&e;&e;&e;</x>";
    for (const char* what : {"settings", "profile", "project", "offset", "recording"}) {
        const auto row = [what](const char* how, const QByteArray& content) {
            QTest::addRow("%s %s", what, how) << what << content;
        };
        row("empty", "");
        row("garbage", QByteArray("\x00\xff\xfe<<>>&&garbage", 16));
        row("other root", "<Other><Parameters/></Other>");
        row("entities", bomb);
    }
}

void StartToTable::survivesMissingAndBrokenFiles()
{
    QFETCH(QString, what);
    QFETCH(QByteArray, content);
    Viewer viewer;
    const QString profile = viewer.cardPath() + "/profile.xml";
    QVERIFY(QFile::copy(ORNA_RESOURCES "/Tolvane_Profile.xml", profile));
    viewer.writeSettings(viewer.cardPath(), profile, viewer.projectPath());
    const std::map<QString, QString> files = {{"settings", viewer.settingsPath()},
                                              {"profile", profile},
                                              {"project", viewer.projectPath()},
                                              {"offset", viewer.cardPath() + "/Offset.xml"},
                                              {"recording", viewer.cardPath() + "/LOG_0001.CAN"}};
    QFile file(files.at(what));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content);
    file.close();
    viewer.start();
    QVERIFY(viewer.window().isVisible());
    const QString messageAtStart = viewer.window().statusBar()->currentMessage();
    if (viewer.recordings()->topLevelItemCount() > 0) {
        viewer.loadRecordings({0});
    }
    viewer.confirmSelection();
    // Settings that can't be read make way for new ones, but are not thrown away.
    const bool isKeptAside = what == "settings" && !content.startsWith("<Other>");
    const QString kept = files.at(what) + (isKeptAside ? ".damaged" : "");
    QCOMPARE(contentOf(kept), content);
    QCOMPARE(messageAtStart.contains(".damaged"), isKeptAside);
}

void StartToTable::damagedRecordingsAreNamed()
{
    Viewer viewer;
    QFile file(viewer.cardPath() + "/LOG_0002.CAN");
    QVERIFY(file.resize(file.size() - 3 * 28 - 5));
    viewer.start();
    const QString remark = "Ignored at the end, bytes that are no whole sample: 23";
    QVERIFY(viewer.recordings()->topLevelItem(1)->toolTip(0).endsWith("\n" + remark));
    QCOMPARE(viewer.recordings()->topLevelItem(0)->toolTip(0).count('\n'), 1);

    // Damage to the samples shows when they are read.
    QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(128 + 28 * 1000 + 20));
    file.write("\x7F");
    file.close();
    viewer.loadRecordings({0, 1});
    const QString impossible = "Samples with an impossible time: 1, the first is number 1001";
    const QString message = viewer.window().statusBar()->currentMessage();
    QVERIFY2(message.startsWith("Samples loaded: ") && message.contains("Details): 2. "),
             qUtf8Printable(message));
    QVERIFY2(message.contains("LOG_0002.CAN: " + remark + ". LOG_0002.CAN: " + impossible),
             qUtf8Printable(message));
    QVERIFY(viewer.recordings()->topLevelItem(1)->toolTip(0).endsWith(remark + "\n" + impossible));

    viewer.recordings()->setCurrentItem(viewer.recordings()->topLevelItem(1)->child(2));
    viewer.recordings()->actions().first()->trigger();
    auto* details = viewer.window().findChild<QTreeWidget*>("recordDetails");
    QVERIFY(details->isVisible());
    QCOMPARE(details->topLevelItemCount(), 1);
    QCOMPARE(details->findItems(impossible, Qt::MatchExactly | Qt::MatchRecursive, 1).size(), 1);
    QMetaObject::invokeMethod(&viewer.window(), "slotRecordDetails");
    QCOMPARE(details->topLevelItemCount(), 3); // the whole, then its files
    const QTreeWidgetItem* whole = details->topLevelItem(0);
    QCOMPARE(whole->child(whole->childCount() - 1)->text(1), "LOG_0002.CAN: " + impossible);
    QCOMPARE(details->topLevelItem(2)->text(0), viewer.cardPath() + "/LOG_0002.CAN");
}

void StartToTable::cardVanishesWhileInUse()
{
    Viewer viewer;
    viewer.start();
    viewer.loadRecordings({0});
    QVERIFY(QDir(viewer.cardPath()).removeRecursively());
    viewer.offset()->setValue(1.0);
    QVERIFY(!viewer.window().statusBar()->currentMessage().isEmpty());
    viewer.loadRecordings({1});
    QVERIFY(viewer.window().record().recordData().empty());
    QCOMPARE(viewer.table()->model()->rowCount(), 0);
}

QTEST_MAIN(StartToTable)
#include "tst_start_to_table.moc"
