#include "app/DialogSplash.h"
#include "app/DialogStatusBar.h"
#include "profile/DialogProfile.h"
#include "record/DialogCard.h"
#include "record/DialogRecordDetails.h"

#include <QtGui/QClipboard>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

using namespace TARN;

Q_DECLARE_METATYPE(std::list<QString>)

/// The small windows, each on its own.
class Panels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cardAnnouncesABurstOnce();
    void cardShowsTimesOfDay();
    void detailsCanBeCopied();
    void selectionBlinksUntilConfirmed();
    void clearingUnticksEverythingAtOnce();
    void statusBarHidesASecondAfterTheEnd();
    void splashKeepsTheLastLines();
};

void Panels::cardAnnouncesABurstOnce()
{
    CardInfo card;
    card.path = "/media/card";
    for (const char* name : {"a.CAN", "b.CAN", "c.CAN"}) {
        card.records[QString("/media/card/") + name] = RecordInfo();
    }
    DialogCard dialog;
    dialog.setCardInfo(card);
    QCOMPARE(dialog.findChild<QLineEdit*>()->text(), "card");
    QSignalSpy spy(&dialog, &DialogCard::signalLoadRecord);
    auto* tree = dialog.findChild<QTreeWidget*>();
    for (const int row : {2, 0, 1}) { // announced in the order of the list all the same
        tree->topLevelItem(row)->setSelected(true);
        QTest::qWait(100);
    }
    QCOMPARE(spy.count(), 0);
    QVERIFY(spy.wait(2000));
    QTest::qWait(600);
    QCOMPARE(spy.count(), 1);
    const auto files = spy.first().first().value<std::list<QString>>();
    QCOMPARE(files.size(), 3U);
    QCOMPARE(files.front(), "/media/card/a.CAN");
}

void Panels::cardShowsTimesOfDay()
{
    CardInfo card;
    RecordInfo& info = card.records["/x/long.CAN"];
    info.startTime = 90061.0; // past midnight
    info.stopTime = 90061.9;
    DialogCard dialog;
    dialog.setCardInfo(card);
    const QTreeWidgetItem* item = dialog.findChild<QTreeWidget*>()->topLevelItem(0);
    QCOMPARE(item->toolTip(0), "Start Time: 01:01:01\nStop Time: 01:01:01");
    QCOMPARE(item->text(0), "long.CAN   ");
    QCOMPARE(item->child(1)->text(0), "Start Time: 01:01:01");
    QCOMPARE(item->child(11)->text(0), "Samples Total: 0");
}

void Panels::detailsCanBeCopied()
{
    DialogRecordDetails dialog;
    dialog.showReport({{"a.CAN", {{"Old", "1"}}}});
    dialog.showReport({{"a.CAN", {{"Date", "1.2.2021"}, {"ECU Type", "X"}}}, {"b.CAN", {}}});
    auto* copy = dialog.findChild<QDialogButtonBox*>()->buttons().last();
    QTest::mouseClick(copy, Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), "a.CAN\nDate: 1.2.2021\nECU Type: X\nb.CAN");
    dialog.findChild<QTreeWidget*>()->topLevelItem(0)->child(1)->setSelected(true);
    QTest::mouseClick(copy, Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), "ECU Type: X");
}

namespace {

/// A profile of one device with two parameters, the second without a unit.
void makeProfile(Profile& profile)
{
    profile.clear();
    ProfileDevice device;
    device.id = 1;
    device.name = "Engine";
    for (const char* name : {"RPM", "Flow"}) {
        ProfileParameter parameter;
        parameter.name = name;
        parameter.fullName = QString("Engine/") + name;
        parameter.unit = parameter.name == "RPM" ? "rpm" : "";
        device.parameters[parameter.uid] = parameter;
    }
    profile.data().devices[1] = device;
}

} // namespace

void Panels::selectionBlinksUntilConfirmed()
{
    Profile& profile = *Profile::instance();
    makeProfile(profile);
    DialogProfile dialog(nullptr, profile);
    dialog.updateList();
    auto* device = dialog.findChild<QTreeWidget*>()->topLevelItem(0);
    auto* confirm = dialog.findChild<QPushButton*>("confirmSelection");
    const QColor normal = confirm->palette().color(QPalette::ButtonText);
    const auto blinks = [&] {
        return QTest::qWaitFor(
            [&] { return confirm->palette().color(QPalette::ButtonText) == QColor(255, 0, 0); },
            1000);
    };
    QCOMPARE(device->text(0), "1 Engine");
    QCOMPARE(device->child(0)->text(0), "RPM [rpm]");
    QCOMPARE(device->child(1)->text(0), "Flow");

    QSignalSpy changed(&dialog, &DialogProfile::signalChanged);
    device->child(1)->setCheckState(0, Qt::Checked);
    QCOMPARE(profile.selectedParameters().size(), 1U);
    QVERIFY(blinks());
    QCOMPARE(changed.count(), 0);
    QTest::mouseClick(confirm, Qt::LeftButton);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(confirm->palette().color(QPalette::ButtonText), normal);
    QVERIFY(!blinks());
}

void Panels::clearingUnticksEverythingAtOnce()
{
    Profile& profile = *Profile::instance();
    makeProfile(profile);
    DialogProfile dialog(nullptr, profile);
    dialog.updateList();
    auto* device = dialog.findChild<QTreeWidget*>()->topLevelItem(0);
    device->child(0)->setCheckState(0, Qt::Checked);
    device->child(1)->setCheckState(0, Qt::Checked);
    QSignalSpy changed(&dialog, &DialogProfile::signalChanged);
    QSignalSpy edited(&dialog, &DialogProfile::signalEdited);
    for (auto* button : dialog.findChildren<QPushButton*>()) {
        if (button->text() == "Clear") {
            QTest::mouseClick(button, Qt::LeftButton);
        }
    }
    QCOMPARE(changed.count(), 1);
    QCOMPARE(edited.count(), 0);
    QVERIFY(profile.selectedParameters().empty());
    QCOMPARE(device->child(0)->checkState(0), Qt::Unchecked);
}

void Panels::statusBarHidesASecondAfterTheEnd()
{
    DialogStatusBar bar;
    bar.show();
    auto* progress = bar.findChild<QProgressBar*>();
    QVERIFY(!progress->isVisible());
    bar.updateProgress(30);
    QVERIFY(progress->isVisible());
    bar.updateProgress(100);
    QVERIFY(progress->isVisible());
    bar.updateProgress(50); // the timer that runs hides it all the same
    QTRY_VERIFY_WITH_TIMEOUT(!progress->isVisible(), 3000);
}

void Panels::splashKeepsTheLastLines()
{
    DialogSplash* splash = DialogSplash::instance();
    QVERIFY(splash->isVisible());
    for (int i = 0; i < 20; ++i) {
        splash->addEntry(QString::number(i));
    }
    QCOMPARE(splash->entries().size(), 15);
    QCOMPARE(splash->entries().first(), "5");
    QTest::mouseClick(splash, Qt::LeftButton);
    QVERIFY(!splash->isVisible());
}

QTEST_MAIN(Panels)
#include "tst_panels.moc"
