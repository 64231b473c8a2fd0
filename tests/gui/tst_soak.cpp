#include "graph/WidgetGraph.h"
#include "gui/WindowTest.h"
#include "logbook/LogbookSettings.h"
#include "widgets/ActivityBar.h"

#include <unistd.h>

using namespace TARN;

namespace {

/// Memory that the process holds, MiB.
double heldMemory()
{
    QFile file("/proc/self/statm");
    const QByteArray pages = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return pages.split(' ').value(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

} // namespace

/// Long use of the whole window without a plan. ORNA_SOAK_ACTIONS and ORNA_SOAK_SEED make it
/// longer and different.
class TestSoak : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void staysSoundAndSmall()
    {
        const int actions = qEnvironmentVariable("ORNA_SOAK_ACTIONS", "120").toInt();
        const unsigned seed = qEnvironmentVariable("ORNA_SOAK_SEED", "1").toUInt();
        QVERIFY(actions > 0);
        constexpr double MostGrowth = 96.0; // MiB; one recording and its curves come and go
        mRandom.seed(seed);
        mAnswerRandom.seed(seed);
        spoilCard();
        start();
        answerAnyhow();
        QStringList deeds = {"seed " + QString::number(seed)};
        double held = 0.0;
        for (int i = 0; i < actions; ++i) {
            deeds << QString::number(i) + " " + act();
            std::fprintf(stderr, "%s, ", qPrintable(deeds.last())); // a crash leaves nothing else
            QVERIFY2(unsound().isEmpty(),
                     qPrintable(unsound() + deeds[0] + ": " + deeds.mid(i - 9).join(", ")));
            if (i == actions / 2) {
                settle();
                held = heldMemory(); // by then everything has been opened once
            }
        }
        settle();
        QVERIFY2(heldMemory() - held < MostGrowth, qPrintable(deeds[0]));
        answersStill();
        QVERIFY2(!QTest::currentTestFailed(), qPrintable(deeds.join(", ")));
    }

private:
    /// As a crash leaves it: beside the good files a torn one, an empty one and noise.
    void spoilCard() const
    {
        QByteArray bytes = read("card/LOG_0002.CAN");
        write("card/TORN_8001.CAN", bytes.left(bytes.size() / 3 + 11));
        write("card/EMPTY.can", {});
        for (qsizetype i = 0; i < bytes.size(); i += 7) {
            bytes[i] = static_cast<char>(i * 31);
        }
        write("card/NOISE.CAN", bytes.left(200'000));
    }

    void answerAnyhow()
    {
        fillPages([this](QWizardPage& page) {
            if (mAnswerRandom() % 6 == 0) {
                qobject_cast<QWizard*>(page.window())->reject();
            }
        });
        answers().chooseButton = [this](QMessageBox& box) {
            return box.buttons().at(mAnswerRandom() % static_cast<unsigned>(box.buttons().size()));
        };
    }

    int any(int count) { return FlightTest::pick(mRandom, static_cast<unsigned>(count)); }
    bool isHeads() { return any(2) == 0; }
    QPoint placeOn(const QWidget* widget)
    {
        return {any(std::max(1, widget->width())), any(std::max(1, widget->height()))};
    }

    /// Does something and says what.
    const char* act()
    {
        const std::pair<const char*, std::function<void()>> deeds[] = {
            {"mouse", [this] { useMouse(); }}, // the first four twice as often
            {"keys", [this] { pressKeys(); }},
            {"pick", [this] { pickRecordings(); }},
            {"tick", [this] { tick(); }},
            {"command", [this] { giveCommand(); }},
            {"slider", [this] { slider()->setValue(any(10001)); }},
            {"time", [this] { timeEdit()->setTime(QTime(any(24), any(60), any(60))); }},
            {"offset", [this] { offset()->setValue(any(2000) * 0.1 - 100.0); }},
            {"view", [this] { views()->setCurrentIndex(any(views()->count())); }},
            {"resize", [this] { window().resize(700 + any(600), 500 + any(400)); }},
            {"profile", [this] { useProfile(any(3) == 0 ? projectPath() : profilePath()); }},
            {"card", [this] { drop({isHeads() ? cardPath() : exportPath()}); }},
            {"project", [this] { drop({projectPath()}); }},
            {"reference", [this] { compare(); }},
            {"export", [this] { exportOne(); }},
            {"logbook", [this] { useLogbook(); }},
            {"stop", [this] { find<QWidget>("exporting")->findChild<QToolButton*>()->click(); }},
            {"cancel", [this] { QTest::keyClick(recordings(), Qt::Key_Escape); }},
            {"close", [this] { window().close(); }}};
        const auto& [name, deed] = deeds[any(std::size(deeds) + 4) % std::size(deeds)];
        deed();
        while (QWidget* menu = QApplication::activePopupWidget()) {
            menu->close();
        }
        QTest::qWait(any(50));
        if (hasClosed()) { // at once, or when what it waited for has been written
            start();
        }
        return name;
    }

    void useMouse()
    {
        QWidget* view = views()->currentWidget();
        const QWidgetList all = (isHeads() ? view : &window())->findChildren<QWidget*>();
        QWidget* widget = all.at(any(static_cast<int>(all.size())));
        widget = widget->isVisible() && widget->isEnabled() ? widget : view;
        const Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
        const Qt::MouseButton button = buttons[any(3)];
        const QPoint place = placeOn(widget);
        if (any(3) == 0) {
            QWheelEvent event(place, widget->mapToGlobal(place), {}, {0, isHeads() ? 120 : -120},
                              {}, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(widget, &event);
        } else {
            QTest::mousePress(widget, button, {}, place);
            QTest::mouseMove(widget, isHeads() ? placeOn(widget) : place);
            QTest::mouseRelease(widget, button, {}, place);
        }
    }

    void pressKeys()
    {
        constexpr int Keys[] = {
            Qt::Key_Left, Qt::Key_Up,  Qt::Key_PageDown, Qt::Key_Home, Qt::Key_F2, Qt::Key_F3,
            Qt::Key_F4,   Qt::Key_Tab, Qt::Key_Plus,     Qt::Key_A,    Qt::Key_C,  Qt::Key_N,
            Qt::Key_P,    Qt::Key_R,   Qt::Key_X,        Qt::Key_Z,    Qt::Key_B,  Qt::Key_D};
        for (int i = 0; i < 5; ++i) {
            QWidget* focus = QApplication::focusWidget();
            QTest::keyClick(focus != nullptr && isHeads() ? focus : views()->currentWidget(),
                            Qt::Key(Keys[any(std::size(Keys))]),
                            any(4) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        }
    }

    void pickRecordings()
    {
        for (int row = 0; row < recordings()->topLevelItemCount(); ++row) {
            recordings()->topLevelItem(row)->setSelected(isHeads());
            recordings()->topLevelItem(row)->setExpanded(any(4) == 0);
        }
        QTest::qWait(isHeads() ? 550 : 0); // until they are loaded
    }

    void tick()
    {
        for (QTreeWidgetItemIterator item(parameters()); *item != nullptr; ++item) {
            if ((*item)->flags().testFlag(Qt::ItemIsUserCheckable) && any(8) == 0) {
                (*item)->setCheckState(0, isHeads() ? Qt::Checked : Qt::Unchecked);
            }
        }
        if (isHeads()) {
            find<QPushButton>("confirmSelection")->click();
        }
    }

    void compare()
    {
        Reference& reference = session().reference();
        QTreeWidgetItem* item = recording(any(recordingCount() + 1)); // or none
        switch (any(5)) {
        case 0:
            drop({item != nullptr ? item->data(0, Qt::UserRole).toString() : path("gone.CAN")},
                 Qt::ControlModifier);
            break;
        case 1:
            recordings()->setCurrentItem(item, 0, QItemSelectionModel::NoUpdate);
            recordings()->actions().last()->trigger();
            break;
        case 2:
            for (Switch* of :
                 {&reference.shown(), &reference.differenceShown(), &reference.columnsShown()}) {
                of->turn(isHeads());
            }
            break;
        case 3:
            reference.align({static_cast<Alignment::By>(any(4)),
                             any(2) == 0 ? "Engine/RPM" : "AirData/IAS", any(100) * 1.0});
            break;
        default:
            isHeads() ? reference.setShift(any(1000) - 500.0) : reference.setFlight(nullptr);
        }
    }

    void exportOne()
    {
        using Type = ActionType;
        constexpr Type Exports[] = {Type::ExportKml, Type::ExportCsv, Type::ExportGpx};
        run(Exports[any(std::size(Exports))]);
    }

    /// What is opened is kept or not; what is kept is looked at, opened, removed.
    void useLogbook()
    {
        LogbookSettings::setAddsOpened(any(4) != 0);
        run(ActionType::Logbook);
        QTest::qWait(any(100));
        for (QWidget* top : QApplication::topLevelWidgets()) {
            if (top->objectName() != "logbook" || !top->isVisible()) {
                continue;
            }
            const QWidgetList all = top->findChildren<QWidget*>();
            for (int i = any(6); i > 0; --i) {
                QWidget* widget = all.at(any(static_cast<int>(all.size())));
                if (widget->isVisible() && widget->isEnabled()) {
                    QTest::mouseClick(widget, Qt::LeftButton,
                                      isHeads() ? Qt::ShiftModifier : Qt::NoModifier,
                                      placeOn(widget));
                    QTest::keyClick(widget, any(4) == 0 ? Qt::Key_Delete : Qt::Key_Right);
                }
            }
            isHeads() ? void(top->close()) : window().activateWindow();
        }
    }

    void giveCommand()
    {
        using Type = ActionType;
        constexpr Type Commands[] = {Type::NewProject, Type::OpenProject,   Type::SaveProject,
                                     Type::OpenCard,   Type::RecordDetails, Type::About,
                                     Type::Help,       Type::SaveProjectAs};
        run(Commands[any(std::size(Commands))]);
        for (auto* dialog : window().findChildren<QDialog*>()) {
            dialog->close();
        }
    }

    /// What should hold at any moment and does not.
    QString unsound()
    {
        const auto& flight = session().flight();
        const bool canExport = flight != nullptr && !flight->samples().empty() &&
                               !find<ActivityBar>("exporting")->isActive();
        const auto& other = session().reference().flight();
        const auto shown = static_cast<std::size_t>(table()->model()->columnCount());
        const auto columns = session().selection().parameters(*session().profile()).size() + 1;
        const std::pair<const char*, bool> all[] = {
            {"visible", window().isVisible()},
            {"title", title().startsWith("ORNA ")},
            {"export", action(ActionType::ExportCsv)->isEnabled() == canExport},
            {"profile", flight == nullptr || flight->profile() == session().profile()},
            {"reference", other == nullptr || other->profile() == session().profile()},
            {"columns", shown == columns || shown == 2 * columns - 1}};
        QString broken;
        for (const auto& [name, holds] : all) {
            broken += holds ? QString() : QString("%1, ").arg(name);
        }
        return broken;
    }

    /// The main job once more, from the card to a written file.
    void answersStill()
    {
        fillPages([](QWizardPage&) {});
        answers().chooseButton = {};
        answers().buttons = QStringList{"No", "Yes", "Yes", "No"};
        useProfile(profilePath());
        settle();
        drop({cardPath()});
        drop({projectPath()});
        settle();
        recordings()->clearSelection();
        open({1, 2});
        QCOMPARE(session().flight()->samples().count(), 223'200U);
        clickCheckBox("CHT 1 [°C]");
        confirm();
        slider()->setValue(10000);
        QCOMPARE(rowOf(table()), table()->model()->rowCount() - 1);
        QVERIFY(find<WidgetGraph>()->model().curves().hasSamples());
        run(ActionType::ExportKml);
        settle();
        QVERIFY2(said().startsWith("Written: "), qPrintable(said()));
        answers().buttons = QStringList("No");
        window().close();
        QVERIFY(hasClosed());
    }

    std::mt19937 mRandom;
    std::mt19937 mAnswerRandom; ///< for windows that open sooner or later
};

QTEST_MAIN(TestSoak)
#include "tst_soak.moc"
