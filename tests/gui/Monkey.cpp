#include "gui/Monkey.h"

#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QDropEvent>
#include <QtGui/QWheelEvent>
#include <QtTest/QTest>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QWizard>

#include <iterator>

namespace {

/// Clicks when the caller is done: what opens then does not run inside the caller.
void clickLater(QAbstractButton* button)
{
    QTimer::singleShot(0, button, &QAbstractButton::click);
}

void drop(QWidget& window, const QString& path)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDropEvent event({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &event);
}

} // namespace

Monkey::Monkey(Viewer& viewer, unsigned seed)
    : mViewer(viewer), mRandom(seed), mTabs(viewer.window().findChild<QTabWidget*>("views"))
{
    answerLater();
}

const char* Monkey::act()
{
    const struct
    {
        const char* name;
        Deed deed;
        int weight; ///< how often among the others
    } deeds[] = {
        {"pick recordings", &Monkey::pickRecordings, 3},
        {"open card", &Monkey::openCard, 1},
        {"move slider", &Monkey::moveSlider, 4},
        {"type time", &Monkey::typeTime, 2},
        {"change view", &Monkey::changeView, 5},
        {"click table", &Monkey::clickTable, 3},
        {"press keys", &Monkey::pressKeys, 5},
        {"drag mouse", &Monkey::dragMouse, 4},
        {"turn wheel", &Monkey::turnWheel, 4},
        {"press graph button", &Monkey::pressGraphButton, 4},
        {"set offset", &Monkey::setOffset, 2},
        {"tick parameters", &Monkey::tickParameters, 3},
        {"clear selection", &Monkey::clearSelection, 1},
        {"reload profile", &Monkey::reloadProfile, 2},
        {"replace project", &Monkey::replaceProject, 1},
        {"choose command", &Monkey::chooseCommand, 4},
        {"go to event", &Monkey::goToEvent, 3},
        {"resize window", &Monkey::resizeWindow, 1},
    };
    int total = 0;
    for (const auto& each : deeds) {
        total += each.weight;
    }
    int left = pick(total);
    const auto* chosen = std::begin(deeds);
    while (left >= chosen->weight) {
        left -= chosen->weight;
        ++chosen;
    }
    (this->*chosen->deed)();
    QTest::qWait(30);
    return chosen->name;
}

QPoint Monkey::placeOn(const QWidget* widget)
{
    return {pick(std::max(1, widget->width())), pick(std::max(1, widget->height()))};
}

void Monkey::answerLater()
{
    QTimer::singleShot(20, this, [this] {
        answerLater();
        answer();
    });
}

void Monkey::answer()
{
    QWidget* modal = QApplication::activeModalWidget();
    if (auto* box = qobject_cast<QMessageBox*>(modal)) {
        clickLater(box->buttons().at(pick(static_cast<int>(box->buttons().size()))));
    } else if (auto* wizard = qobject_cast<QWizard*>(modal)) {
        answerWizard(*wizard);
    } else if (auto* dialog = qobject_cast<QDialog*>(modal)) {
        QTimer::singleShot(0, dialog, &QDialog::reject); // a file or colour dialog
    }
}

void Monkey::answerWizard(QWizard& wizard)
{
    for (auto* edit : wizard.currentPage()->findChildren<QLineEdit*>()) {
        if (edit->isVisible() && edit->text() == ".") {
            edit->selectAll();
            QTest::keyClicks(edit, mViewer.exportPath());
        }
    }
    const auto forward =
        wizard.currentPage()->nextId() < 0 ? QWizard::FinishButton : QWizard::NextButton;
    clickLater(wizard.button(pick(6) == 0 ? QWizard::CancelButton : forward));
}

void Monkey::pickRecordings()
{
    QTreeWidget* list = mViewer.recordings();
    list->clearSelection();
    for (int row = 0; row < list->topLevelItemCount(); ++row) {
        list->topLevelItem(row)->setSelected(isHeads());
        list->topLevelItem(row)->setExpanded(pick(4) == 0);
    }
    QTest::qWait(650); // a burst of clicks is loaded half a second after the last
}

void Monkey::openCard()
{
    drop(mViewer.window(), isHeads() ? mViewer.cardPath() : mViewer.exportPath());
}

void Monkey::moveSlider()
{
    mViewer.slider()->setValue(pick(mViewer.slider()->maximum() + 1));
}

void Monkey::typeTime()
{
    mViewer.timeEdit()->setTime(QTime(pick(24), pick(60), pick(60)));
}

void Monkey::changeView()
{
    mTabs->setCurrentIndex(pick(mTabs->count()));
}

void Monkey::clickTable()
{
    for (auto* table : view()->findChildren<QTableView*>()) {
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, placeOn(table->viewport()));
    }
}

void Monkey::pressKeys()
{
    constexpr Qt::Key Keys[] = {Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,   Qt::Key_Down,
                                Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End,
                                Qt::Key_F2,     Qt::Key_F3,       Qt::Key_A,    Qt::Key_C,
                                Qt::Key_L,      Qt::Key_R,        Qt::Key_X,    Qt::Key_Z,
                                Qt::Key_Tab,    Qt::Key_Space,    Qt::Key_P,    Qt::Key_N};
    QWidget* target = view()->focusProxy() != nullptr ? view()->focusProxy() : view();
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(target, Keys[pick(static_cast<int>(std::size(Keys)))],
                        pick(4) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
    }
}

void Monkey::dragMouse()
{
    const QWidgetList widgets = view()->findChildren<QWidget*>();
    QWidget* target = widgets.at(pick(static_cast<int>(widgets.size())));
    const Qt::MouseButton button = pick(3) == 0   ? Qt::RightButton
                                   : pick(3) == 0 ? Qt::MiddleButton
                                                  : Qt::LeftButton;
    if (!target->isVisible() || qobject_cast<QAbstractButton*>(target) != nullptr) {
        return;
    }
    QTest::mousePress(target, button, {}, placeOn(target));
    QTest::mouseMove(target, placeOn(target));
    QTest::mouseMove(target, placeOn(target));
    QTest::mouseRelease(target, button, {}, placeOn(target));
}

void Monkey::turnWheel()
{
    QWidget* target = view()->focusProxy() != nullptr ? view()->focusProxy() : view();
    const QPoint place = placeOn(target);
    for (int i = 0; i < 3; ++i) {
        QWheelEvent event(place, target->mapToGlobal(place), {}, {0, isHeads() ? 120 : -120}, {},
                          {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &event);
    }
}

void Monkey::pressGraphButton()
{
    constexpr int Snapshot = 10;
    mTabs->setCurrentIndex(2);
    const auto buttons = view()->findChildren<QToolButton*>();
    const int number = pick(static_cast<int>(buttons.size()));
    if (number != Snapshot && buttons.at(number)->isEnabled()) {
        QTest::mouseClick(buttons.at(number), Qt::LeftButton);
    }
}

void Monkey::setOffset()
{
    mViewer.offset()->setValue(pick(2000) * 0.1 - 100.0);
}

void Monkey::tickParameters()
{
    for (int i = 0; i < 6; ++i) {
        const int devices = mViewer.parameters()->topLevelItemCount();
        QTreeWidgetItem* device =
            devices > 0 ? mViewer.parameters()->topLevelItem(pick(devices)) : nullptr;
        if (device != nullptr && device->childCount() > 0) {
            device->child(pick(device->childCount()))
                ->setCheckState(0, isHeads() ? Qt::Checked : Qt::Unchecked);
        }
    }
    mViewer.confirmSelection();
}

void Monkey::clearSelection()
{
    for (auto* button : mViewer.window().findChildren<QPushButton*>()) {
        if (button->text() == "Clear") {
            button->click();
        }
    }
}

void Monkey::reloadProfile()
{
    mViewer.action("Preferences")->trigger();
    auto* path = mViewer.window().findChild<QLineEdit*>("profilePath");
    const QString profile = path->text();
    path->setText(profile + "?");
    path->setText(profile);
    path->window()->close();
}

void Monkey::replaceProject()
{
    if (isHeads()) {
        mViewer.action("&New Project")->trigger();
    } else {
        drop(mViewer.window(), mViewer.projectPath());
    }
}

void Monkey::chooseCommand()
{
    constexpr const char* Commands[] = {"Export Google KML File", "Export CSV/CAN File", "Help",
                                        "About", "Preferences"};
    mViewer.action(Commands[pick(static_cast<int>(std::size(Commands)))])->trigger();
    QTest::qWait(50);
    for (auto* dialog : mViewer.window().findChildren<QDialog*>()) {
        dialog->close();
    }
    mViewer.window().activateWindow();
}

void Monkey::goToEvent()
{
    auto* button =
        mViewer.window().findChild<QToolButton*>(isHeads() ? "eventNext" : "eventPrevious");
    QTest::mouseClick(button, Qt::LeftButton);
}

void Monkey::resizeWindow()
{
    mViewer.window().resize(700 + pick(600), 500 + pick(400));
}
