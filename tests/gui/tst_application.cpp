#include "app/DialogSplash.h"
#include "app/DialogStatusBar.h"
#include "base/Property.h"
#include "card/DialogCard.h"
#include "gui/WindowTest.h"
#include "widgets/ActivityBar.h"

using namespace TARN;

namespace {

QString setting(const char* key)
{
    return QString::fromStdString(Property::instance()->getString(key, ""));
}

QByteArray project(const QStringList& names)
{
    const QByteArray parameters = names.join("\"/>\n        <Parameter name=\"").toUtf8();
    return "<TarnProject>\n    <Parameters>\n        <Parameter name=\"" + parameters +
           "\"/>\n    </Parameters>\n</TarnProject>\n";
}

} // namespace

/// What surrounds the views: project, preferences, help, dropped files, the window itself.
class TestApplication : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void editedMeansThatSavingChangesTheFile()
    {
        write("Flight.test.xml", project({"Old Thing", "RPM"}));
        start();
        auto* button = find<QPushButton>("confirmSelection");
        const auto isRed = [&] { return button->palette().buttonText() == QColor(255, 0, 0); };
        const QTreeWidgetItem* unknown = parameter("Old Thing");
        QVERIFY(unknown != nullptr && unknown->flags() == Qt::NoItemFlags);
        const QString tick = "EGT 6 [°C]";
        // What is clicked, or nothing where the selection is confirmed, and what it is then.
        const std::tuple<QString, bool, bool, int> steps[] = {{"", false, true, 2},
                                                              {tick, true, false, 2},
                                                              {tick, false, true, 2},
                                                              {tick, true, false, 2},
                                                              {"", true, true, 3}};
        for (const auto& [clicked, isEdited, isConfirmed, columns] : steps) {
            clicked.isEmpty() ? confirm() : clickCheckBox(clicked);
            QCOMPARE(title(), isEdited ? "ORNA Flight[edited]" : "ORNA Flight");
            QCOMPARE(action(ActionType::SaveProject)->isEnabled(), isEdited);
            QCOMPARE(QTest::qWaitFor(isRed, 600), !isConfirmed); // it blinks
            QCOMPARE(table()->model()->columnCount(), columns);
        }
        run(ActionType::SaveProject);
        QCOMPARE(title(), "ORNA Flight");
        QCOMPARE(read("Flight.test.xml"), project({"RPM", "EGT 6", "Old Thing"}));
        start();
        QCOMPARE(table()->model()->columnCount(), 3);
        run(ActionType::NewProject);
        QCOMPARE(title(), "ORNA ");
        QCOMPARE(table()->model()->columnCount(), 1);
        QCOMPARE(answers().said, QStringList());
    }

    void asksBeforeLosingTheProject()
    {
        for (const QString answer : {"Cancel", "No", "Yes"}) {
            start();
            clickCheckBox("CHT 1 [°C]");
            const QByteArray before = read("Flight.test.xml");
            answers().buttons = QStringList(answer);
            run(ActionType::Quit);
            QCOMPARE(answers().said.takeLast(),
                     "TARN Warning|Current Project not saved !\nSave it now ?|");
            QCOMPARE(hasClosed(), answer != "Cancel");
            QCOMPARE(read("Flight.test.xml"),
                     answer == "Yes" ? project({"RPM", "CHT 1", "CHT 3"}) : before);
        }
    }

    void projectFilesAreGuarded()
    {
        Answers& answers = this->answers();
        const QString profile = path("Profile.xml");
        write(profile, read(profilePath()));
        start();
        // Another XML file is no project: the selection stays.
        answers.files = QStringList(profile);
        run(ActionType::OpenProject);
        QVERIFY(answers.said.last().contains("Profile.xml\" is no project"));
        QCOMPARE(title(), "ORNA Flight");
        QCOMPARE(table()->model()->columnCount(), 3);
        // What cannot be written does not get the project's name.
        clickCheckBox("CHT 1 [°C]");
        answers.files = QStringList(path("nowhere/Other.xml"));
        run(ActionType::SaveProjectAs);
        QVERIFY(answers.said.last().contains("could not be written to"));
        QCOMPARE(title(), "ORNA Flight[edited]");
        QCOMPARE(setting("LastProjectPath"), projectPath());
        // A file that has become something else is not replaced; another name is asked for.
        write("Flight.test.xml", "<CanAerospaceProfile/>");
        answers.files = QStringList(path("Third"));
        run(ActionType::SaveProject);
        QVERIFY(answers.said.join(' ').contains("Flight.test.xml\" is no project and is not"));
        QCOMPARE(read("Flight.test.xml"), "<CanAerospaceProfile/>");
        QCOMPARE(read("Third.xml"), project({"RPM", "CHT 1", "CHT 3"}));
        QCOMPARE(title(), "ORNA Third");
        // The ending that is added to a name does not lead to an unasked replacement.
        answers.files = QStringList(path("Third"));
        clickCheckBox("CHT 2 [°C]");
        run(ActionType::SaveProjectAs);
        QVERIFY(answers.said.last().contains("\"Third.xml\" exists in this folder. Replace it?"));
        QCOMPARE(title(), "ORNA Third[edited]");
    }

    void anotherProfileKeepsSelectionAndTime()
    {
        makeHome(30); // long enough for the story to exceed limits
        start();
        open({0, 1});
        slider()->setValue(3333);
        clickCheckBox("CHT 1 [°C]");
        confirm();
        const auto shown = [&] {
            const int row = rowOf(table());
            return std::tuple(row, events(Limits)->model()->rowCount(), title(),
                              parameter("CHT 1 [°C]")->checkState(0), cell(table(), row, 1));
        };
        const auto before = shown();
        run(ActionType::Preferences);
        auto* path = find<QLineEdit>("profilePath");
        QTest::keyClick(path, Qt::Key_End);
        QTest::keyClicks(path, "x"); // there is no such file
        settle();
        QCOMPARE(setting("Profile"), profilePath() + "x");
        QVERIFY(said().contains(profilePath() + "x\" could not be loaded"));
        QCOMPARE(emptyTexts().filter("No profile is loaded").size(), 5);
        QVERIFY(!views()->isTabVisible(Lamps) && !views()->isTabVisible(Matrices));
        QCOMPARE(parameters()->topLevelItemCount(), 0);
        run(ActionType::SaveProjectAs); // would save a project without parameters
        QVERIFY(answers().said.value(0).contains("no profile is loaded"));
        QTest::keyClick(path, Qt::Key_Backspace);
        settle();
        QCOMPARE(shown(), before);

        auto* language = find<QComboBox>("language");
        QCOMPARE(language->currentText(), "english");
        QTest::keyClick(language, Qt::Key_Up);
        QVERIFY(answers().said.last().contains("Please restart TARN"));
        QCOMPARE(setting("Locale"), "fr");
        Property::instance()->setString("Locale", "it"); // one that is not offered
        language->window()->hide();
        run(ActionType::Preferences);
        QCOMPARE(language->currentIndex(), -1);
    }

    void manualIsSearched()
    {
        start();
        QTest::keyClick(&window(), Qt::Key_F1);
        auto* text = find<QTextBrowser>("manual");
        auto* sections = find<QListWidget>("sections");
        auto* search = find<QLineEdit>("search");
        const auto shown = [&](const QString& searched) {
            type(search, searched);
            int count = 0;
            for (int row = 0; row < sections->count(); ++row) {
                count += sections->item(row)->isHidden() ? 0 : 1;
            }
            return count;
        };
        const int found = shown("offset");
        QVERIFY(text->isVisible() && found > 0 && found < sections->count());
        QCOMPARE(text->textCursor().selectedText().toLower(), "offset");
        const int first = text->textCursor().position();
        QTest::keyClick(search, Qt::Key_Return);
        QVERIFY(text->isVisible() && text->textCursor().position() > first);
        QCOMPARE(shown("offsetzzz"), 0);
        search->clear();
        QCOMPARE(shown(""), sections->count());
        sections->setCurrentRow(sections->count() - 1);
        QVERIFY(text->viewport()->rect().contains(text->cursorRect().center()));
    }

    void opensWhatIsDropped_data()
    {
        QTest::addColumn<int>("loaded"); // recordings; -1 where the card is not opened
        QTest::addColumn<QString>("said");
        QTest::newRow(".") << 0 << "Recordings found: 2"; // the card itself
        QTest::newRow("LOG_0002.CAN LOG_0001.CAN") << 2 << "Samples loaded";
        QTest::newRow("Two.xml") << -1 << ""; // a project
        QTest::newRow("Profile.xml") << -1 << "";
        QTest::newRow("Other.xml") << -1 << "neither a project nor";
        QTest::newRow("readme.txt") << -1 << "";
    }

    void opensWhatIsDropped()
    {
        const QString files = QTest::currentDataTag();
        QFETCH(const int, loaded);
        QFETCH(const QString, said);
        const QString card = path("other");
        QVERIFY(QFile::rename(cardPath(), card));
        write(card + "/Profile.xml", read(profilePath()));
        write(card + "/Two.xml", read("Flight.test.xml"));
        write(card + "/readme.txt", read("Flight.test.xml"));
        write(card + "/Other.xml", "<TarnOffset/>");
        writeSettings("", "no profile", "");
        start();
        QStringList paths;
        for (const QString& file : files.split(' ')) {
            paths << QDir::cleanPath(card + "/" + file);
        }
        QCOMPARE(drop(paths), files != "readme.txt");
        QTest::qWait(600); // recordings are picked as by clicks
        settle();
        QVERIFY2(this->said().contains(said), qPrintable(this->said()));
        QCOMPARE(recordingCount(), loaded < 0 ? 0 : 2);
        QCOMPARE(setting("LastPath"), loaded < 0 ? QString() : card);
        const auto& flight = session().flight();
        QCOMPARE(flight ? int(flight->record()->integrity().files.size()) : 0, std::max(0, loaded));
        QCOMPARE(setting("LastProjectPath") == paths.first(), files == "Two.xml");
        QCOMPARE(session().profile()->isLoaded(), files == "Profile.xml");
    }

    void windowComesBackAsItWas()
    {
        const QSize free = QGuiApplication::primaryScreen()->availableSize();
        start();
        QCOMPARE(window().size(), QSize(1000, 800).boundedTo(free));
        QCOMPARE(window().minimumSizeHint().boundedTo({1000, 700}), window().minimumSizeHint());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(answers().said, QStringList("Open SD Card|"));
        window().resize(900, 700);
        QTest::qWait(50);
        find<QSplitter>()->setSizes({400, 500});
        const QList<int> sizes = find<QSplitter>()->sizes();
        views()->setCurrentIndex(Lamps);
        window().close();

        start();
        QCOMPARE(window().size(), QSize(900, 700));
        QCOMPARE(find<QSplitter>()->sizes(), sizes);
        QCOMPARE(views()->currentIndex(), int(Lamps));
        window().resize(free * 2); // as on another screen
        window().close();

        // A view that the profile does not fill is not shown, so another one is.
        Property::instance()->setString("Profile", write("p.xml", "<Other/>").toStdString());
        Property::instance()->writeXmlFile();
        start();
        QVERIFY(views()->isTabVisible(views()->currentIndex()));
        QCOMPARE(window().frameSize().boundedTo(free), window().frameSize());
    }

    /// Someone who cannot see the screen hears a name for everything that takes the keyboard.
    void everyControlSaysWhatItIs()
    {
        start();
        open({0});
        for (const auto command : {ActionType::Preferences, ActionType::About, ActionType::Help}) {
            run(command);
        }
        QStringList nameless;
        for (QWidget* widget : window().findChildren<QWidget*>()) {
            const bool isControl = widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy() &&
                                   !widget->objectName().startsWith("qt_") &&
                                   !qobject_cast<QScrollBar*>(widget) &&
                                   !qobject_cast<QDialog*>(widget);
            QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
            if (isControl && (face == nullptr || face->text(QAccessible::Name).isEmpty())) {
                nameless << widget->metaObject()->className() << widget->objectName();
            }
        }
        QCOMPARE(nameless.join(' '), QString());
    }

    void statusTextsNeverWidenTheWindow()
    {
        DialogStatusBar bar;
        bar.resize(900, 30);
        bar.show();
        const int width = bar.minimumSizeHint().width();
        auto* message = bar.findChild<QLabel*>("message");
        bar.say("Short.");
        settle();
        QVERIFY(message->text() == "Short." && message->toolTip().isEmpty());
        const QString path = "/" + QString("folder/").repeated(40) + "file.csv";
        bar.say(path);
        QVERIFY(message->text().startsWith("/fol") && message->text().endsWith("file.csv"));
        QCOMPARE(message->toolTip(), path);
        bar.exporting().begin(path);
        settle();
        QCOMPARE(bar.exporting().findChild<QLabel*>()->toolTip(), path);
        QVERIFY(bar.minimumSizeHint().width() < width + 600);
        bar.exporting().finish();
        QVERIFY(bar.exporting().isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!bar.exporting().isVisible(), 3000);
    }

    void splashGivesWay()
    {
        DialogSplash* splash = DialogSplash::instance();
        for (int i = 0; i < 20; ++i) {
            splash->addEntry(QString::number(i));
        }
        QVERIFY(splash->entries().size() == 15 && splash->entries().first() == "5");
        QVERIFY(splash->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        splash->show();
        QTest::mouseClick(splash, Qt::LeftButton);
        QVERIFY(!splash->isVisible());
        splash->show();
        QMessageBox::warning(nullptr, "A", "question");
        QVERIFY(!splash->isVisible());
    }

    void cardAnnouncesABurstOnce()
    {
        CardInfo card;
        card.path = "/media/card/";
        double start = 90061.0; // past midnight
        for (const char* name : {"/x/a.CAN", "/x/b.CAN", "/x/c.CAN"}) {
            RecordInfo& info = card.records[name];
            info.startTime = start;
            info.stopTime = start += 10.0;
            info.samples = 5;
        }
        DialogCard dialog;
        dialog.setCardInfo(card);
        QCOMPARE(dialog.findChild<QLineEdit*>()->text(), "card");
        auto* tree = dialog.findChild<QTreeWidget*>();
        QVERIFY(tree->topLevelItem(1)->toolTip(0).startsWith("Start Time: 01:01:01\n"));
        QSignalSpy spy(&dialog, &DialogCard::signalLoadRecord);
        for (const int row : {3, 1, 2}) {
            tree->topLevelItem(row)->setSelected(true);
            QTest::qWait(100);
        }
        QVERIFY(spy.isEmpty() && spy.wait(2000));
        const std::list<QString> flight = {"/x/a.CAN", "/x/b.CAN", "/x/c.CAN"};
        QCOMPARE(spy[0][0].value<std::list<QString>>(), flight); // in the order of the list

        // The line above them picks them all; those of another flight are asked about.
        tree->clearSelection();
        tree->topLevelItem(0)->setSelected(true);
        QVERIFY(spy.wait(2000));
        QCOMPARE(spy[1][0].value<std::list<QString>>(), flight);
        dialog.setOverview(flight, Overview{60.0, 15, 3, 1, 2, 0, 0, 4});
        QCOMPARE(tree->topLevelItem(0)->text(1) + tree->topLevelItem(0)->text(2), "Limit3");
        card.records["/x/d.CAN"].samples = 5;
        dialog.setCardInfo(card);
        std::list<QString> all = flight;
        all.push_back("/x/d.CAN");
        const std::pair<const char*, std::list<QString>> choices[] = {
            {"Load the First", flight}, {"Lay over Each Other", all}, {"Cancel", {}}};
        for (const auto& [button, announced] : choices) {
            answers().buttons = {button};
            spy.clear();
            tree->clearSelection();
            tree->selectAll();
            QVERIFY(spy.wait(700) == !announced.empty());
            QVERIFY(announced.empty() || spy[0][0].value<std::list<QString>>() == announced);
            QVERIFY(answers().buttons.isEmpty());
        }
        tree->clearSelection();
        dialog.setCardInfo({}); // what was picked is not listed any more
        QVERIFY(!spy.wait(700) && spy.empty());
    }
};

QTEST_MAIN(TestApplication)
#include "tst_application.moc"
