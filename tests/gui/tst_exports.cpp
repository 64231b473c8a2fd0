#include "base/ClockTime.h"
#include "base/Property.h"
#include "export/DialogExportCsv.h"
#include "export/DialogExportKml.h"
#include "gui/Viewer.h"
#include "profile/Profile.h"
#include "record/Record.h"
#include "support/CommandRun.h"
#include "widgets/QwtComboBox.h"

#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStatusBar>

#include <functional>

using namespace TARN;

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll()
                                          : QByteArray("unreadable " + path.toUtf8());
}

/// Goes through the wizard that opens next, page by page, as a person would: \p atPage gets each
/// page before "Next" or "Finish" is pressed. Message boxes are answered with "Yes" or their only
/// button, and their texts kept.
class WizardUser : public QObject
{
public:
    using AtPage = std::function<void(QWizard&, QWizardPage&)>;

    explicit WizardUser(AtPage atPage) : mAtPage(std::move(atPage)) { lookAgain(); }

    QStringList boxes() const { return mBoxes; }
    int pages() const { return mPages; }
    void cancelAtPage(int page) { mCancelAt = page; }

private:
    /// A single shot each time: a timer does not fire again inside the box that its click opened.
    void lookAgain() { QTimer::singleShot(20, this, &WizardUser::act); }

    void act()
    {
        lookAgain();
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            mBoxes << box->windowTitle() + "|" + box->text() + "|" + box->informativeText();
            QAbstractButton* yes = box->button(QMessageBox::Yes);
            (yes != nullptr ? yes : box->buttons().first())->click();
        } else if (auto* wizard = qobject_cast<QWizard*>(modal)) {
            visit(*wizard);
        }
    }

    void visit(QWizard& wizard)
    {
        if (mBoxes.size() > 3) {
            wizard.reject(); // an answer that leads nowhere
            return;
        }
        QWizardPage* page = wizard.currentPage();
        mAtPage(wizard, *page);
        if (mPages++ == mCancelAt) {
            QTest::mouseClick(wizard.button(QWizard::CancelButton), Qt::LeftButton);
            return;
        }
        const auto forward = page->nextId() < 0 ? QWizard::FinishButton : QWizard::NextButton;
        QTest::mouseClick(wizard.button(forward), Qt::LeftButton);
    }

    AtPage mAtPage;
    QStringList mBoxes;
    int mPages = 0;
    int mCancelAt = -1;
};

void type(QLineEdit* edit, const QString& text)
{
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

QLineEdit* pathEdit(QWizardPage& page)
{
    for (auto* edit : page.findChildren<QLineEdit*>()) {
        if (edit->objectName() != "fileName") {
            return edit;
        }
    }
    return nullptr;
}

void choose(QwtComboBox* box, int data)
{
    box->setData(data);
    Q_EMIT box->activated(box->currentIndex());
}

} // namespace

/// Both wizards and all three exports, from the commands of the real window.
class Exports : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void enabledWithARecordingOnly();
    void windowAndCommandLineWriteTheSame_data();
    void windowAndCommandLineWriteTheSame();
    void cancelledWizardKeepsSettings();
    void kmlOptionsReachSettingsAndComeBack();
    void typeSwitchesTheExtension();
    void timesTakeCursorAndKeepPrecision();
    void refusesWhatCannotBeWritten();

private:
    QString out(const QString& name) const { return mOut->filePath(name); }
    int commandLine(QStringList arguments);

    std::unique_ptr<Viewer> mViewer;
    std::unique_ptr<QTemporaryDir> mOut;
};

void Exports::init()
{
    mOut = std::make_unique<QTemporaryDir>();
    mViewer = std::make_unique<Viewer>();
    mViewer->start();
}

void Exports::cleanup()
{
    mViewer.reset();
    Profile::instance()->clear();
}

int Exports::commandLine(QStringList arguments)
{
    arguments << mViewer->cardPath() + "/LOG_0001.CAN" << mViewer->cardPath() + "/LOG_0002.CAN";
    return runCommand(arguments).status;
}

void Exports::enabledWithARecordingOnly()
{
    QVERIFY(!mViewer->action("Export Google KML File")->isEnabled());
    QVERIFY(!mViewer->action("Export CSV/CAN File")->isEnabled());
    mViewer->loadRecordings({0});
    QVERIFY(mViewer->action("Export Google KML File")->isEnabled());
    QVERIFY(mViewer->action("Export CSV/CAN File")->isEnabled());
}

void Exports::windowAndCommandLineWriteTheSame_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("proposed");
    QTest::addColumn<int>("fileType");
    QTest::addRow("kml") << "Export Google KML File"
                         << "LOG_0001.kml" << -1;
    QTest::addRow("csv") << "Export CSV/CAN File"
                         << "ExportOrna.csv" << 0;
    QTest::addRow("can") << "Export CSV/CAN File"
                         << "ExportOrna.CAN" << 1;
}

void Exports::windowAndCommandLineWriteTheSame()
{
    QFETCH(QString, action);
    QFETCH(QString, proposed);
    QFETCH(int, fileType);
    mViewer->loadRecordings({0, 1});
    WizardUser user([&](QWizard&, QWizardPage& page) {
        if (page.findChild<QLineEdit*>("fileName") != nullptr) {
            type(pathEdit(page), mOut->path());
            if (fileType >= 0) {
                choose(page.findChild<QwtComboBox*>(), fileType);
            }
            QCOMPARE(page.findChild<QLineEdit*>("fileName")->text(), proposed);
        } else if (auto boxes = page.findChildren<QwtComboBox*>(); fileType == 0) {
            choose(boxes.at(2), 0); // the selected parameters only
        }
    });
    mViewer->action(action)->trigger();
    QCOMPARE(user.boxes(), QStringList());
    QCOMPARE(user.pages(), fileType < 0 ? 3 : 2);
    QVERIFY(mViewer->window().statusBar()->currentMessage().contains(out(proposed)));

    const QString profile = ORNA_RESOURCES "/Tolvane_Profile.xml";
    const QString project = mViewer->projectPath();
    const QString other = out("other");
    if (fileType == 1) {
        QCOMPARE(commandLine({"can", "-o", other}), 0);
    } else {
        QCOMPARE(commandLine({fileType < 0 ? "kml" : "csv", "--profile", profile, "--project",
                              project, "-o", other}),
                 0);
    }
    QVERIFY(QFile(other).size() > 10000);
    QVERIFY2(contentOf(out(proposed)) == contentOf(other), "window and command line differ");

    if (fileType == 1) {
        Record again;
        QVERIFY(again.readRecordData({out(proposed)}));
        QCOMPARE(again.recordData().count(), mViewer->window().record().recordData().count());
    }
}

void Exports::cancelledWizardKeepsSettings()
{
    mViewer->loadRecordings({0});
    WizardUser user([&](QWizard&, QWizardPage& page) { type(pathEdit(page), mOut->path()); });
    user.cancelAtPage(0);
    mViewer->action("Export CSV/CAN File")->trigger();
    QVERIFY(QDir(mOut->path()).isEmpty());
    QVERIFY(contentOf(mViewer->settingsPath())
                .contains("\"CsvExportDir\" value=\"" + mOut->path().toUtf8()));
}

void Exports::kmlOptionsReachSettingsAndComeBack()
{
    const auto fill = [this](QWizard&, QWizardPage& page) {
        if (page.findChild<QLineEdit*>("fileName") != nullptr) {
            type(pathEdit(page), mOut->path());
        } else if (page.findChild<QTimeEdit*>() != nullptr) {
            page.findChildren<QSpinBox*>().at(0)->setValue(500);
            page.findChildren<QSpinBox*>().at(1)->setValue(4);
            page.findChildren<QGroupBox*>().at(1)->setChecked(false);
        } else {
            page.findChildren<QSpinBox*>().at(0)->setValue(25);
            page.findChildren<QCheckBox*>().at(0)->setChecked(false);
        }
    };
    KmlExportOptions options;
    options.fileName = "a.kml";
    options.stopTime = 10;
    DialogExportKml wizard;
    {
        WizardUser user(fill);
        QCOMPARE(wizard.getOptions(options), int(QDialog::Accepted));
    }
    QCOMPARE(options.timeStamp, 500);
    QCOMPARE(options.lineWidth, 4);
    QVERIFY(!options.polygonOn);
    QCOMPARE(options.placeMarkInterval, 25);
    QVERIFY(!options.showLimit);
    QVERIFY(options.showWarning);
    QCOMPARE(Property::instance()->getInt("KmlPlaceMarkIntervall", 0), 25);
    QCOMPARE(Property::instance()->getSwitch("KmlPolygonOn", true), false);
    const QByteArray settings = contentOf(mViewer->settingsPath());
    for (const char* key : {"KmlExportDir", "KmlLineColor", "KmlLineAlpha", "KmlPolygonAlpha",
                            "KmlPlaceMarkColor", "KmlErrorMarkOn", "KmlErrorMarkColor"}) {
        QVERIFY2(settings.contains(key), key);
    }

    WizardUser user([](QWizard&, QWizardPage&) {});
    user.cancelAtPage(0);
    KmlExportOptions again;
    wizard.getOptions(again);
    QCOMPARE(again.timeStamp, 500);
    QCOMPARE(again.directory, mOut->path().toStdString());
}

void Exports::typeSwitchesTheExtension()
{
    QCOMPARE(DialogExportCsv::withExtension("", CsvExportOptions::Csv), "ExportOrna.csv");
    QCOMPARE(DialogExportCsv::withExtension("", CsvExportOptions::Can), "ExportOrna.CAN");
    QCOMPARE(DialogExportCsv::withExtension("a.b.csv", CsvExportOptions::Can), "a.b.CAN");
    QCOMPARE(DialogExportCsv::withExtension("plain", CsvExportOptions::Csv), "plain.csv");
}

void Exports::timesTakeCursorAndKeepPrecision()
{
    CsvExportOptions options;
    options.startTime = 33120.005183;
    options.stopTime = 36719.9728276;
    options.currentTime = 34000.5;
    DialogExportCsv wizard;
    bool pressed = false;
    WizardUser user([&](QWizard&, QWizardPage& page) {
        if (page.findChild<QLineEdit*>("fileName") != nullptr) {
            type(pathEdit(page), mOut->path());
            return;
        }
        auto* start = page.findChild<QTimeEdit*>("startTime");
        QCOMPARE(start->time(), QTime(9, 12, 0, 5));
        for (auto* button : page.findChildren<QPushButton*>()) {
            if (button->text() == "Cursor Pos" && !pressed) {
                QTest::mouseClick(button, Qt::LeftButton);
                pressed = true;
            }
        }
        QCOMPARE(start->time(), QTime(9, 26, 40, 500));
        start->setTime(QTime(9, 30, 0, 250));
    });
    QCOMPARE(wizard.getOptions(options), int(QDialog::Accepted));
    QCOMPARE(options.startTime, 34200.25);
    QCOMPARE(options.stopTime, 36719.9728276);
    QCOMPARE(withTimeOfDay(90000.5, QTime(0, 0, 1)), 86401.0);
}

void Exports::refusesWhatCannotBeWritten()
{
    mViewer->loadRecordings({0});
    QFile existing(out("ExportOrna.csv"));
    QVERIFY(existing.open(QIODevice::WriteOnly));
    existing.write("precious");
    existing.close();
    int visit = 0;
    WizardUser user([&](QWizard&, QWizardPage& page) {
        if (page.findChild<QLineEdit*>("fileName") == nullptr) {
            page.findChild<QTimeEdit*>("stopTime")->setTime(QTime(1, 0));
            return;
        }
        // First no such folder, then a file that is there (it may be replaced).
        type(pathEdit(page), visit++ == 0 ? out("nowhere") : mOut->path());
    });
    mViewer->action("Export CSV/CAN File")->trigger();
    QVERIFY(user.boxes().size() >= 3);
    QVERIFY2(user.boxes().at(0).contains("does not exist"), qPrintable(user.boxes().at(0)));
    QVERIFY2(user.boxes().at(1).contains("Replace it?"), qPrintable(user.boxes().at(1)));
    QVERIFY2(user.boxes().at(2).contains("after the stop time"), qPrintable(user.boxes().at(2)));
    QCOMPARE(contentOf(out("ExportOrna.csv")), "precious");
}

QTEST_MAIN(Exports)
#include "tst_exports.moc"
