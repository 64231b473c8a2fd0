#include "base/Property.h"
#include "gui/Viewer.h"
#include "profile/Profile.h"
#include "record/Record.h"

#include <QtCore/QFile>
#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtGui/QDragEnterEvent>
#include <QtTest/QTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTextBrowser>

using namespace TARN;

/// What surrounds the views: preferences, help, dropped files, the window's memory.
class Application : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Profile::instance()->clear(); }
    void anotherProfileKeepsSelectionAndTime();
    void languageIsForTheNextStart();
    void manualIsSearched();
    void opensWhatIsDropped_data();
    void opensWhatIsDropped();
    void keyOpensACardFromTheStart();
    void profileOpenedAsProjectIsNotReplaced();
    void windowComesBackAsItWas();
    void everyControlSaysWhatItIs();
};

namespace {

template <typename T>
T* child(QWidget* parent, const char* name)
{
    T* found = parent->findChild<T*>(name);
    [&] { QVERIFY2(found != nullptr, name); }();
    return found;
}

/// Drags paths onto the window and lets them fall when it would take them.
bool drop(QWidget* window, const QStringList& paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths) {
        urls.append(QUrl::fromLocalFile(path));
    }
    data.setUrls(urls);
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(window, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDropEvent fall({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(window, &fall);
    return true;
}

/// Dismisses the file chooser that opens next.
struct FileChooser
{
    FileChooser()
    {
        QTimer::singleShot(200, qApp, [this] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            came = dialog != nullptr;
            if (came) {
                dialog->reject();
            }
        });
    }

    bool came = false;
};

QString setting(const char* key)
{
    return QString::fromStdString(Property::instance()->getString(key, ""));
}

} // namespace

void Application::anotherProfileKeepsSelectionAndTime()
{
    Viewer viewer(30); // long enough for the story to exceed limits
    viewer.start();
    viewer.loadRecordings({0, 1});
    viewer.slider()->setValue(viewer.slider()->maximum() / 3);
    viewer.clickCheckBox(viewer.parameter("CHT 1 [°C]"));
    viewer.confirmSelection();
    const int row = viewer.selectedRow();
    const QString cell = viewer.cell(row, 2);
    const auto limits = viewer.window().record().recordData().limits.size();
    QVERIFY(row > 0);
    QVERIFY(limits > 0);

    viewer.action("Preferences")->trigger();
    auto* path = child<QLineEdit>(&viewer.window(), "profilePath");
    const QString profile = path->text();
    QTest::keyClick(path, Qt::Key_End);
    QTest::keyClicks(path, "x"); // there is no such file
    QCOMPARE(setting("Profile"), profile + "x");
    QCOMPARE(viewer.parameters()->topLevelItemCount(), 0);
    QCOMPARE(viewer.table()->model()->columnCount(), 1);
    QCOMPARE(viewer.window().record().recordData().limits.size(), 0U);
    QFile project(viewer.projectPath());
    const qint64 size = project.size();
    viewer.answerBox("OK");
    viewer.action("&Save Project")->trigger(); // would save a project without parameters
    QVERIFY(viewer.boxWasShown());
    QCOMPARE(project.size(), size);
    path->window()->activateWindow();
    QTest::keyClick(path, Qt::Key_Backspace);
    QCOMPARE(viewer.parameter("CHT 1 [°C]")->checkState(0), Qt::Checked);
    QCOMPARE(viewer.parameter("CHT 2 [°C]")->checkState(0), Qt::Unchecked);
    QCOMPARE(viewer.selectedRow(), row);
    QCOMPARE(viewer.cell(row, 2), cell);
    QCOMPARE(viewer.window().record().recordData().limits.size(), limits);
    QFile settings(viewer.settingsPath());
    QVERIFY(settings.open(QIODevice::ReadOnly));
    QVERIFY(settings.readAll().contains(profile.toUtf8() + "\""));
}

void Application::languageIsForTheNextStart()
{
    Viewer viewer;
    viewer.start();
    viewer.action("Preferences")->trigger();
    auto* language = child<QComboBox>(&viewer.window(), "language");
    QCOMPARE(language->count(), 6);
    QCOMPARE(language->currentText(), "english");
    viewer.answerBox("Ok");
    QTest::keyClick(language, Qt::Key_Up);
    QVERIFY(viewer.boxWasShown());
    QCOMPARE(setting("Locale"), "fr");
    QCOMPARE(viewer.action("Help")->text(), "Help");
    Property::instance()->setString("Locale", "it"); // one that is not offered
    language->window()->hide();
    viewer.action("Preferences")->trigger();
    QCOMPARE(language->currentIndex(), -1);
}

void Application::manualIsSearched()
{
    Viewer viewer;
    viewer.start();
    QTest::keyClick(&viewer.window(), Qt::Key_F1);
    auto* text = child<QTextBrowser>(&viewer.window(), "manual");
    auto* sections = child<QListWidget>(&viewer.window(), "sections");
    auto* search = child<QLineEdit>(&viewer.window(), "search");
    QVERIFY(text->isVisible());
    const auto shown = [&] {
        int count = 0;
        for (int row = 0; row < sections->count(); ++row) {
            count += sections->item(row)->isHidden() ? 0 : 1;
        }
        return count;
    };
    const int all = shown();
    QVERIFY(all > 10);
    QTest::keyClicks(search, "offset");
    QVERIFY(shown() > 0);
    QVERIFY(shown() < all);
    QCOMPARE(text->textCursor().selectedText().toLower(), "offset");
    const int first = text->textCursor().position();
    QTest::keyClick(search, Qt::Key_Return);
    QVERIFY(text->textCursor().position() > first);
    QVERIFY(text->isVisible());
    QTest::keyClicks(search, "zzz");
    QCOMPARE(shown(), 0);
    search->clear();
    QCOMPARE(shown(), all);
    sections->setCurrentRow(all - 1);
    const QRect heading = text->cursorRect();
    QVERIFY(text->viewport()->rect().contains(heading.center()));
}

void Application::opensWhatIsDropped_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<bool>("taken");
    QTest::addColumn<int>("loaded"); // recordings; -1 where the card is not opened
    QTest::addRow("card folder") << QStringList("") << true << 0;
    QTest::addRow("recording") << QStringList("LOG_0002.CAN") << true << 1;
    QTest::addRow("recordings") << QStringList{"LOG_0002.CAN", "LOG_0001.CAN"} << true << 2;
    QTest::addRow("project") << QStringList("Two.xml") << true << -1;
    QTest::addRow("profile") << QStringList("Profile.xml") << true << -1;
    QTest::addRow("other XML") << QStringList("Offset.xml") << true << -1;
    QTest::addRow("anything else") << QStringList("readme.txt") << false << -1;
}

void Application::opensWhatIsDropped()
{
    QFETCH(const QStringList, files);
    QFETCH(const bool, taken);
    QFETCH(const int, loaded);
    Viewer viewer;
    const QString card = viewer.cardPath().section('/', 0, -2) + "/other";
    QVERIFY(QFile::rename(viewer.cardPath(), card));
    QVERIFY(QFile::copy(ORNA_RESOURCES "/Tolvane_Profile.xml", card + "/Profile.xml"));
    QVERIFY(QFile::copy(viewer.projectPath(), card + "/Two.xml"));
    QVERIFY(QFile::copy(viewer.projectPath(), card + "/readme.txt"));
    QFile offset(card + "/Offset.xml");
    QVERIFY(offset.open(QIODevice::WriteOnly) && offset.write("<TarnOffset/>") > 0);
    offset.close();
    viewer.writeSettings("", "no profile", "");
    viewer.start();
    QStringList paths;
    for (const QString& file : files) {
        paths.append(file.isEmpty() ? card : card + "/" + file);
    }
    QCOMPARE(drop(&viewer.window(), paths), taken);
    QTest::qWait(700);
    QCOMPARE(viewer.recordings()->topLevelItemCount(), loaded < 0 ? 0 : 2);
    QCOMPARE(setting("LastPath"), loaded < 0 ? QString() : card);
    QCOMPARE(viewer.window().record().integrity().files.size(),
             static_cast<std::size_t>(std::max(0, loaded)));
    QCOMPARE(setting("LastProjectPath") == paths.first(), files.contains("Two.xml"));
    QCOMPARE(viewer.parameters()->topLevelItemCount() > 0, files.contains("Profile.xml"));
}

void Application::keyOpensACardFromTheStart()
{
    Viewer viewer;
    viewer.start();
    const FileChooser chooser;
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::ControlModifier);
    QTest::qWait(400);
    QVERIFY(chooser.came);
}

void Application::profileOpenedAsProjectIsNotReplaced()
{
    Viewer viewer;
    const QString profile = viewer.cardPath() + "/Profile.xml";
    QVERIFY(QFile::copy(ORNA_RESOURCES "/Tolvane_Profile.xml", profile));
    viewer.writeSettings(viewer.cardPath(), profile, profile);
    viewer.start();
    viewer.clickCheckBox(viewer.parameter("CHT 1 [°C]"));
    const FileChooser chooser;
    viewer.action("&Save Project")->trigger();
    QVERIFY(chooser.came);
    QFile file(profile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QVERIFY(file.readAll().contains("<CanAerospaceProfile"));
}

void Application::windowComesBackAsItWas()
{
    Viewer viewer;
    viewer.start();
    QCOMPARE(viewer.window().size(), QSize(1000, 800));
    auto* splitter = viewer.window().findChild<QSplitter*>();
    viewer.window().resize(900, 700);
    QTest::qWait(50);
    splitter->setSizes({400, 500});
    const QList<int> sizes = splitter->sizes();
    child<QTabWidget>(&viewer.window(), "views")->setCurrentIndex(3);
    viewer.window().close();
    QVERIFY(viewer.hasClosed());

    viewer.start();
    QCOMPARE(viewer.window().size(), QSize(900, 700));
    QCOMPARE(viewer.window().findChild<QSplitter*>()->sizes(), sizes);
    auto* views = child<QTabWidget>(&viewer.window(), "views");
    QCOMPARE(views->currentIndex(), 3);
    viewer.window().close();

    // A view that the profile does not fill is not shown, so another one is.
    QFile profile(viewer.cardPath() + "/Plain.xml");
    QVERIFY(profile.open(QIODevice::WriteOnly));
    profile.write("<CanAerospaceProfile/>");
    profile.close();
    Property::instance()->setString("Profile", profile.fileName().toStdString());
    Property::instance()->writeXmlFile();
    viewer.start();
    views = child<QTabWidget>(&viewer.window(), "views");
    QVERIFY(views->isTabVisible(views->currentIndex()));
}

/// Someone who cannot see the screen hears a name for everything that takes the keyboard.
void Application::everyControlSaysWhatItIs()
{
    Viewer viewer;
    viewer.start();
    viewer.loadRecordings({0});
    for (const char* command : {"Preferences", "About", "Help"}) {
        viewer.action(command)->trigger();
    }
    QStringList nameless;
    for (QWidget* widget : viewer.window().findChildren<QWidget*>()) {
        const bool isPart = widget->objectName().startsWith("qt_") ||
                            qobject_cast<QScrollBar*>(widget) != nullptr ||
                            widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() != nullptr;
        if (isPart || qobject_cast<QDialog*>(widget) != nullptr) {
            continue;
        }
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(widget);
        if (face == nullptr || face->text(QAccessible::Name).isEmpty()) {
            nameless.append(QString("%1 %2 in %3")
                                .arg(widget->metaObject()->className(), widget->objectName(),
                                     widget->parentWidget()->metaObject()->className()));
        }
    }
    QCOMPARE(nameless.join("\n"), QString());
}

QTEST_MAIN(Application)
#include "tst_application.moc"
