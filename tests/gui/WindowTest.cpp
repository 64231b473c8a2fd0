#include "gui/WindowTest.h"

#include "app/DialogSplash.h"
#include "app/StartUp.h"
#include "base/Property.h"
#include "card/DialogCard.h"
#include "demo/Card.h"
#include "graph/WidgetGraph.h"
#include "widgets/ElidedLabel.h"
#include "widgets/EmptyPlace.h"

void WindowTest::makeHome(int minutes)
{
    qputenv("HOME", folder().toUtf8());
    QDir(folder()).mkpath("ORNA");
    QDir(folder()).mkpath("out");
    TARN::Demo::CardOptions card;
    card.folder = cardPath().toStdString();
    card.minutes = minutes;
    card.files = 2;
    if (!TARN::Demo::writeCard(card).empty()) {
        qFatal("could not write the card");
    }
    write("Flight.test.xml", R"(<TarnProject><Parameters>
        <Parameter name="RPM"/><Parameter name="CHT 3"/></Parameters></TarnProject>)");
    writeSettings(cardPath(), profilePath(), projectPath());
    mAnswers = std::make_unique<Answers>();
}

void WindowTest::writeSettings(const QString& card, const QString& profile, const QString& project)
{
    const QString text = R"(<TARN><Property id="LastPath" value="%1"/>
        <Property id="Profile" value="%2"/><Property id="LastProjectPath" value="%3"/></TARN>)";
    write("ORNA/ORNA.ini", text.arg(card, profile, project).toUtf8());
}

void WindowTest::start()
{
    mWindow.reset();
    settle(); // jobs of no use any more still look at the card
    mClosed = false;
    TARN::Property::instance()->clear();
    mWindow.reset(TARN::startUp(*qApp));
    mWindow->setEndProcess([this] { mClosed = true; });
    TARN::DialogSplash::instance()->close(); // keys go to the active window only
    mWindow->activateWindow();
    if (!QTest::qWaitForWindowActive(mWindow.get())) {
        qFatal("the window does not become active");
    }
    settle();
}

void WindowTest::init()
{
    CoreTest::init();
    makeHome();
}

void WindowTest::cleanup()
{
    mWindow.reset();
    settle();
    mAnswers.reset();
    CoreTest::cleanup();
}

QString WindowTest::said()
{
    return find<TARN::ElidedLabel>("message")->fullText();
}

QTreeWidgetItem* WindowTest::recording(int number)
{
    for (int row = 0; row < recordings()->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = recordings()->topLevelItem(row);
        if (!item->data(0, Qt::UserRole).toString().isEmpty() && number-- == 0) {
            return item;
        }
    }
    return nullptr;
}

int WindowTest::recordingCount()
{
    int count = 0;
    while (recording(count) != nullptr) {
        ++count;
    }
    return count;
}

QStringList WindowTest::emptyTexts()
{
    QStringList texts;
    for (const auto* place : mWindow->findChildren<TARN::EmptyPlace*>()) {
        texts += place->isHidden() ? QStringList() : QStringList(place->text());
    }
    if (const auto* graph = mWindow->findChild<WidgetGraph*>();
        graph != nullptr && !graph->emptyText().isEmpty()) {
        texts += graph->emptyText();
    }
    return texts;
}

void WindowTest::pick(std::initializer_list<int> rows)
{
    QSignalSpy asked(mWindow->findChild<TARN::DialogCard*>(), &TARN::DialogCard::signalLoadRecord);
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    for (const int row : rows) {
        QTreeWidgetItem* item = recording(row);
        recordings()->scrollToItem(item);
        QTest::mouseClick(recordings()->viewport(), Qt::LeftButton, modifiers,
                          recordings()->visualRect(recordings()->indexFromItem(item)).center());
        modifiers = Qt::ControlModifier;
    }
    QVERIFY2(asked.wait(2000), "no recording was asked for");
}

void WindowTest::clickCheckBox(const QString& name)
{
    QTreeWidgetItem* item = parameter(name);
    parameters()->scrollToItem(item);
    QStyleOptionViewItem option;
    option.initFrom(parameters());
    option.rect = parameters()->visualItemRect(item);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box = parameters()->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator,
                                                            &option, parameters());
    QTest::mouseClick(parameters()->viewport(), Qt::LeftButton, {}, box.center());
}

bool WindowTest::drop(const QStringList& paths, Qt::KeyboardModifiers held)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths) {
        urls << QUrl::fromLocalFile(path);
    }
    data.setUrls(urls);
    QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(mWindow.get(), &enter);
    if (enter.isAccepted()) {
        QDropEvent fall({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, held);
        QApplication::sendEvent(mWindow.get(), &fall);
    }
    return enter.isAccepted();
}

void WindowTest::useProfile(const QString& file)
{
    run(TARN::ActionType::Preferences);
    auto* path = find<QLineEdit>("profilePath");
    path->setText(file);
    path->window()->close();
}

void WindowTest::type(QWidget* field, const QString& text)
{
    field->setFocus();
    QMetaObject::invokeMethod(field, "selectAll");
    QTest::keyClicks(field, text);
}

QLineEdit* WindowTest::folderOf(const QWidget& page)
{
    // Before the name of the file, which has a name of its own.
    const auto edits = page.findChildren<QLineEdit*>();
    const bool isFirst = page.findChild<QLineEdit*>("fileName") != nullptr;
    return isFirst ? edits[edits[0]->objectName() == "fileName" ? 1 : 0] : nullptr;
}

void WindowTest::fillPages(const std::function<void(QWizardPage&)>& fill)
{
    answers().atPage = [this, fill](QWizard&, QWizardPage& page) {
        if (QLineEdit* folder = folderOf(page)) {
            type(folder, exportPath());
        }
        fill(page);
    };
}
