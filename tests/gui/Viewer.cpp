#include "gui/Viewer.h"

#include "app/DialogSplash.h"
#include "app/StartUp.h"
#include "base/Property.h"
#include "demo/Card.h"

#include <QtCore/QFile>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace {

void writeFile(const QString& path, const QString& text)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(text.toUtf8());
}

} // namespace

Viewer::Viewer(int minutes)
{
    qputenv("HOME", mHome.path().toUtf8());
    QDir(mHome.path()).mkpath("ORNA");
    QDir(mHome.path()).mkpath("out");
    TARN::CardOptions card;
    card.folder = cardPath().toStdString();
    card.minutes = minutes;
    card.files = 2;
    QCOMPARE(TARN::writeCard(card), std::string());
    writeFile(projectPath(), "<TarnProject>\n    <Parameters>\n"
                             "        <Parameter name=\"RPM\"/>\n"
                             "        <Parameter name=\"CHT 3\"/>\n"
                             "    </Parameters>\n</TarnProject>\n");
    writeSettings(cardPath(), ORNA_RESOURCES "/Tolvane_Profile.xml", projectPath());
}

void Viewer::writeSettings(const QString& lastPath, const QString& profile, const QString& project)
{
    writeFile(settingsPath(), QString("<TARN>\n    <Property id=\"LastPath\" value=\"%1\"/>\n"
                                      "    <Property id=\"Profile\" value=\"%2\"/>\n"
                                      "    <Property id=\"LastProjectPath\" value=\"%3\"/>\n"
                                      "</TARN>\n")
                                  .arg(lastPath, profile, project));
}

TARN::DialogMain& Viewer::start()
{
    mWindow.reset();
    mClosed = false;
    TARN::Property::instance()->clear();
    mWindow.reset(TARN::startUp(*qApp));
    mWindow->setEndProcess([this] { mClosed = true; });
    TARN::DialogSplash::instance()->close(); // shortcuts work in the active window only
    mWindow->activateWindow();
    [this] { QVERIFY(QTest::qWaitForWindowActive(mWindow.get())); }();
    QTest::qWait(100); // the last card and project are opened shortly after the start
    return *mWindow;
}

QTreeWidgetItem* Viewer::parameter(const QString& text)
{
    const auto found = parameters()->findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    return found.isEmpty() ? nullptr : found.first();
}

QAction* Viewer::action(const QString& text)
{
    for (QAction* action : mWindow->findChildren<QAction*>()) {
        if (action->text() == text && action->data().isValid()) {
            return action;
        }
    }
    return nullptr;
}

void Viewer::loadRecordings(std::initializer_list<int> rows)
{
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    for (const int row : rows) {
        QTreeWidgetItem* item = recordings()->topLevelItem(row);
        QTest::mouseClick(recordings()->viewport(), Qt::LeftButton, modifiers,
                          recordings()->visualItemRect(item).center());
        modifiers = Qt::ControlModifier;
    }
    QTest::qWait(600); // a burst of clicks is loaded half a second after the last
}

void Viewer::clickCheckBox(QTreeWidgetItem* item)
{
    parameters()->scrollToItem(item);
    QStyleOptionViewItem option;
    option.initFrom(parameters());
    option.rect = parameters()->visualItemRect(item);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box = parameters()->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator,
                                                            &option, parameters());
    QTest::mouseClick(parameters()->viewport(), Qt::LeftButton, {}, box.center());
}

void Viewer::confirmSelection()
{
    QTest::mouseClick(find<QPushButton>("confirmSelection"), Qt::LeftButton);
}

int Viewer::selectedRow()
{
    const QModelIndexList rows = table()->selectionModel()->selectedRows();
    return rows.size() == 1 ? rows.first().row() : -1;
}

QString Viewer::cell(int row, int column)
{
    return table()->model()->index(row, column).data().toString();
}

void Viewer::answerBox(const QString& button)
{
    mBoxShown = false;
    auto* timer = new QTimer(mWindow.get());
    QObject::connect(timer, &QTimer::timeout, timer, [this, timer, button] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) {
            return;
        }
        timer->deleteLater();
        mBoxShown = true;
        for (QAbstractButton* candidate : box->buttons()) {
            if (candidate->text() == button) {
                candidate->click();
                return;
            }
        }
        box->reject();
    });
    timer->start(20);
}
