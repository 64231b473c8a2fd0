#include "base/ClockTime.h"
#include "events/WidgetErrorTime.h"
#include "events/WidgetFaultMatrix.h"
#include "graph/WidgetGraph.h"
#include "gui/WindowTest.h"

#include <QtGui/QClipboard>

#include <sys/stat.h>

using namespace TARN;

namespace {

/// Looks at every turn of the event loop whether what stands under the name of a parameter are
/// its values, decoded one by one.
class Watch : public QObject
{
public:
    explicit Watch(WindowTest& test)
        : mSession(test.session()), mTable(*test.table()->model()),
          mGraph(test.find<WidgetGraph>()->model())
    {
        connect(&mSession, &Session::offsetChanged, this,
                [this] { mOffsetBefore = std::exchange(mOffset, mSession.offset()); });
        connect(&mTimer, &QTimer::timeout, this, &Watch::look);
        mTimer.start(0);
    }

    /// Names in the graph; faults where those in the table are others.
    QStringList names() const
    {
        QStringList names;
        for (const ParStruct& curve : mGraph.curves().all()) {
            names += curve.active ? QStringList(curve.name) : QStringList();
        }
        return names == titles() ? names : QStringList("other columns");
    }

    QStringList faults; ///< names that stood over other values

private:
    QStringList titles() const
    {
        QStringList titles;
        for (int column = 1; column < mTable.columnCount(); ++column) {
            titles += mTable.headerData(column, Qt::Horizontal).toString().section(" [", 0, 0);
        }
        return titles;
    }

    Series series(const QString& name, double offset) const
    {
        const auto found =
            std::ranges::find(mSession.profile()->parameters(), name,
                              [](const Profile::Entry& entry) { return entry.parameter->name; });
        return mSession.flight()->series(*found->parameter, offset);
    }

    void look()
    {
        for (const ParStruct& curve : mGraph.curves().all()) {
            const CurveSamples& samples = curve.samples();
            if (curve.active && !samples.empty()) {
                const Series known = series(curve.name, mOffset);
                const std::size_t last = samples.size() - 1;
                const bool isIt = samples.size() == known.size() &&
                                  samples.value(last) == known.value(last) &&
                                  samples.time(last) == known.time(last);
                faults += isIt ? QStringList() : QStringList("curve " + curve.name);
            }
        }
        // The rows of the offset before stay until those of the present one are found.
        const QStringList columns = titles();
        for (int i = 0; i < columns.size() && mTable.rowCount() > 0; ++i) {
            const QString text =
                mTable.index(mTable.rowCount() / 2, i + 1).data(Qt::ToolTipRole).toString();
            if (textOf(series(columns[i], mOffset)) != text &&
                textOf(series(columns[i], mOffsetBefore)) != text) {
                faults += "column " + columns[i];
            }
        }
    }

    /// In the row in the middle of the table.
    QString textOf(const Series& known) const
    {
        const QModelIndex row = mTable.index(mTable.rowCount() / 2, 0);
        const double time = row.data(Qt::UserRole).toDouble() / 1000.0;
        const std::size_t begin = known.firstNotBefore(time - 0.05);
        const std::size_t end = known.firstNotBefore(time + 0.05);
        QColor color;
        return begin == end ? QString()
                            : mSession.profile()->getDataString(known.entry(end - 1),
                                                                known.parameter(), color);
    }

    const Session& mSession;
    const QAbstractItemModel& mTable;
    const GraphModel& mGraph;
    QTimer mTimer;
    double mOffset = 0.0;
    double mOffsetBefore = 0.0;
};

} // namespace

/// The main job from start to finish, in the real window.
class TestWindow : public WindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsAndLoads()
    {
        start();
        QTableView* table = this->table();
        QCOMPARE(title(), "ORNA Flight");
        QTreeWidgetItem* first = recording(0);
        QVERIFY(first->text(0).startsWith("LOG_0001.CAN   16.5.2026"));
        QCOMPARE(table->model()->columnCount(), 3);
        QVERIFY(!slider()->isEnabled() && !offset()->isEnabled());
        QVERIFY(!action(ActionType::SaveProject)->isEnabled());
        QVERIFY(!action(ActionType::ExportKml)->isEnabled());
        QVERIFY(!action(ActionType::ExportGpx)->isEnabled());
        QCOMPARE(emptyTexts().filter("No recording is loaded").size(), 5);
        for (const QLCDNumber* display : window().findChildren<QLCDNumber*>()) {
            QCOMPARE(display->height(), 40);
        }
        QVERIFY(said().isEmpty());

        open({1});
        const double stop = session().flight()->info().stopTime;
        const int rows = table->model()->rowCount();
        QVERIFY(rows > 1000);
        QCOMPARE(rowOf(table), 0);
        open({0, 1});
        const auto all = session().flight();
        QVERIFY(table->model()->rowCount() > rows);
        QCOMPARE(all->info().stopTime, stop);
        QVERIFY(cell(table, 0, 0).startsWith("09:12:00."));
        QVERIFY(action(ActionType::ExportKml)->isEnabled());
        QVERIFY(action(ActionType::ExportGpx)->isEnabled());

        // A detail line stands for no file: what was loaded stays.
        first->setExpanded(true);
        QCOMPARE(first->childCount(), 12);
        recordings()->clearSelection();
        first->child(3)->setSelected(true);
        QTest::qWait(600);
        settle();
        QCOMPARE(session().flight(), all);
    }

    void survivesMissingAndBrokenFiles_data()
    {
        QTest::addColumn<QByteArray>("content"); // of a pipe "|"
        QTest::addColumn<int>("views");          // that have nothing to show
        QTest::addColumn<QString>("text");       // that each of them says
        QTest::addColumn<QString>("said");       // at the start or after loading
        const auto row = [](const char* file, const QByteArray& content, int views,
                            const QString& text, const QString& said) {
            QTest::addRow("%s %.9s", file, content.constData()) << content << views << text << said;
        };
        const char* const project = "Flight.test.xml";
        const char* const recording = "card/LOG_0001.CAN";
        const QString noProfile = "No profile is loaded, so nothing";
        const QString noParameter = "No parameter is selected";
        const QString empty = "holds no samples, so nothing was checked";
        for (const QByteArray garbage : {"\xff\xfe<<>>&&", "|", "<Other/>"}) {
            const bool isKept = garbage.size() > 1 && !garbage.startsWith("<Other");
            row("ORNA/ORNA.ini", garbage, 5, noProfile,
                isKept ? ".damaged" : "could not be loaded");
            row("card/profile.xml", garbage, 5, noProfile, "profile.xml\" could not be loaded");
            row(project, garbage, 2, noParameter, "Samples loaded");
        }
        row(project, "<CanAerospaceProfile/>", 2, noParameter, "Samples loaded");
        row("card/Offset.xml", "garbage", 0, "", "The time offset could not be read");
        row("card/Offset.xml", "|", 0, "", "The time offset could not be read");
        row(recording, "|", 5, "No recording is loaded", "Not loaded: could not open the rec");
        row(recording, "garbage", 5, empty, "The header is cut short");
        row(recording, RecordingBuilder().bytes(), 5, empty, "Samples loaded: 0");
        row(recording, QByteArray("no recording ").repeated(99), 5, "The recording holds no ",
            "impossible time");
    }

    void survivesMissingAndBrokenFiles()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, views);
        QFETCH(QString, text);
        QFETCH(QString, said);
        const QString profile = path("card/profile.xml");
        write(profile, read(profilePath()));
        writeSettings(cardPath(), profile, projectPath());
        const QString file = path(QString(QTest::currentDataTag()).section(' ', 0, 0));
        QFile::remove(file);
        if (content == "|") {
            QCOMPARE(mkfifo(qPrintable(file), 0600), 0);
        } else {
            write(file, content);
        }
        start();
        const QString saidAtStart = this->said();
        const bool hasCard = !file.endsWith(".ini");
        QCOMPARE(recordingCount(), hasCard ? 2 : 0);
        hasCard ? open({0}) : settle();
        confirm();
        const QString saidNow = saidAtStart + this->said();
        QVERIFY2(saidNow.contains(said), qPrintable(saidNow));
        QCOMPARE(emptyTexts().size(), views);
        QCOMPARE(emptyTexts().filter(text).size(), views);
        // What can't be read makes way for new settings, but is never thrown away.
        QVERIFY(content == "|" || read(file + (said == ".damaged" ? said : "")) == content);
    }

    void everyViewFollowsTheTime()
    {
        start();
        open({0, 1});
        QTableView* table = this->table();
        Session& session = this->session();
        slider()->setValue(10000);
        QCOMPARE(rowOf(table), table->model()->rowCount() - 1);
        QCOMPARE(find<WidgetGraph>()->model().cursor(), session.flight()->info().stopTime);
        slider()->setValue(0);
        QCOMPARE(rowOf(table), 0);
        // The field goes on by itself, and a colon typed then is no step.
        type(timeEdit(), "09:15:07\r");
        QCOMPARE(session.time(), 33307.0);
        QVERIFY(cell(table, rowOf(table), 0).startsWith("09:15:0"));
        QCOMPARE(slider()->value(), 3116);

        // A click on a row goes to its moment, on the one that is selected too.
        for (const int step : {3, 0}) {
            const int row = rowOf(table) + step;
            session.setTime(session.time() + 0.01, table->parentWidget());
            clickCell(table, row, 1);
            QCOMPARE(rowOf(table), row);
            QCOMPARE(session.time(),
                     table->model()->index(row, 0).data(Qt::UserRole).toDouble() * 0.001);
        }
        const int row = rowOf(table);
        QTest::keyClick(table, Qt::Key_Down);
        QCOMPARE(rowOf(table), row + 1);
    }

    void namesAndValuesBelongTogether()
    {
        // A unit whose clock the offset corrects.
        QVERIFY(QFile::rename(path("card/LOG_0002.CAN"), path("card/LOG_8002.CAN")));
        start();
        open({0});
        Watch watch(*this);
        QStringList shown = {"RPM", "CHT 3"};
        const std::function<void()> steps[] = {
            [&] { clickCheckBox("CHT 1 [°C]"); }, // stands before CHT 3
            [&] {
                open({0, 1});
            },
            [&] { offset()->setValue(2.5); },
            [&] { clickCheckBox("RPM [1/min]"), open({1}); },
            [&] { offset()->setValue(-1.25); },
            [&] {
                shown = QStringList{"CHT 1", "CHT 3"};
                confirm();
            },
            [&] {
                pick({0}); // while it loads
                clickCheckBox("EGT 1 [°C]");
                shown << "EGT 1";
                confirm();
            }};
        for (const auto& step : steps) {
            step();
            settle();
            QCOMPARE(watch.names(), shown);
            QCOMPARE(watch.faults.join(", "), QString());
        }
    }

    void keysGoFromEventToEvent()
    {
        start();
        open({0});
        const EventMarks& marks = session().flight()->marks();
        // Where, letters (F4 where there are none), on to the next event or back to the one before.
        const std::tuple<const char*, QString, int> rows[] = {
            {"parameters", "man", 0}, {"recordings", "np", 0}, {"parameters", "", 1},
            {"values", "n", 1},       {"timeEdit", "", 1},     {"recordings", "", 1},
            {"values", "p", -1},      {"offset", "p", 0},      {"offset", "", -1}};
        for (const auto& [where, letters, step] : rows) {
            auto* widget = find<QWidget>(where);
            const double before = session().time();
            widget->setFocus();
            QTest::keyClicks(widget, letters);
            if (letters.isEmpty()) {
                QTest::keyClick(widget, Qt::Key_F4, step < 0 ? Qt::ShiftModifier : Qt::NoModifier);
            }
            const auto found = step < 0 ? marks.previous(before) : marks.next(before);
            const EventMark& event = step < 0 ? found.back() : found.front();
            QCOMPARE(session().time(), step == 0 ? before : event.time);
            QVERIFY2(step == 0 || said().contains(event.text.trimmed()), where);
        }
    }

    void hiddenTableIsNotMeasured()
    {
        const QString profile = path("profile.xml"); // with a title narrower than its values
        write(profile, read(profilePath()).replace("Engine State", "E"));
        writeSettings(cardPath(), profile, projectPath());
        start();
        open({0});
        views()->setCurrentIndex(Graph);
        clickCheckBox("E");
        confirm();
        const QHeaderView& header = *table()->horizontalHeader();
        QCOMPARE(header.sectionSize(3), header.sectionSizeHint(3));
        views()->setCurrentIndex(Table);
        settle();
        QVERIFY(header.sectionSize(3) > header.fontMetrics().horizontalAdvance("2: WARM-UP"));
    }

    void offsetIsKeptWithTheCard()
    {
        start();
        open({0});
        const QString file = path("card/Offset.xml");
        type(offset(), "7");
        QTest::keyClick(offset(), Qt::Key_Z, Qt::ControlModifier); // must not undo it
        QTest::keyClicks(offset(), ".5");
        settle();
        QVERIFY2(!QFile::exists(file), "a number is complete with Enter, not before");
        QTest::keyClick(offset(), Qt::Key_Return);
        settle();
        start();
        open({1});
        QCOMPARE(offset()->value(), 7.5);

        // The card is pulled out: what was loaded stays, and every failure is said.
        const auto flight = session().flight();
        QVERIFY(QDir(cardPath()).removeRecursively());
        offset()->setValue(1.0);
        settle();
        QVERIFY2(said().contains("offset could not be saved"), qPrintable(said()));
        QCOMPARE(session().offset(), 1.0);
        open({0});
        QVERIFY2(said().startsWith("Not loaded") && said().contains("LOG_0001.CAN"),
                 qPrintable(said()));
        QCOMPARE(session().flight(), flight);
        QVERIFY(table()->model()->rowCount() > 0);
    }

    void damagedRecordingsAreNamed()
    {
        QFile file(path("card/LOG_0002.CAN"));
        QVERIFY(file.resize(file.size() - 3 * 28 - 5));
        start();
        QTreeWidgetItem* item = recording(1);
        const QString remark = "Ignored at the end, bytes that are no whole sample: 23";
        QVERIFY(item->toolTip(0).endsWith("\n" + remark));
        QCOMPARE(recording(0)->toolTip(0).count('\n'), 1);

        // Damage to the samples shows when they are read.
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(128 + 28 * 1000 + 20));
        file.write("\x7F");
        file.close();
        open({0, 1});
        const QString impossible = "Samples with an impossible time: 1, the first is number 1001";
        const QString both =
            "2 (see Recording Details). LOG_0002.CAN: " + remark + ". LOG_0002.CAN: ";
        QVERIFY2(said().contains(both + impossible), qUtf8Printable(said()));
        QVERIFY(item->toolTip(0).endsWith(remark + "\n" + impossible));

        recordings()->setCurrentItem(item->child(2));
        recordings()->actions().first()->trigger();
        auto* details = find<QTreeWidget>("recordDetails");
        QVERIFY(details->isVisible());
        QCOMPARE(details->topLevelItemCount(), 1);
        const auto same = Qt::MatchExactly | Qt::MatchRecursive;
        QCOMPARE(details->findItems(impossible, same, 1).size(), 1);
        run(ActionType::RecordDetails);
        QCOMPARE(details->topLevelItemCount(), 3); // the whole, then its files
        QTreeWidgetItem* whole = details->topLevelItem(0);
        whole->child(whole->childCount() - 1)->setSelected(true);
        details->topLevelItem(2)->setSelected(true);
        details->parent()->findChild<QDialogButtonBox*>()->buttons().last()->click();
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 "Remark: LOG_0002.CAN: " + impossible + "\n" + file.fileName());
    }

    void eventsLeadThroughTheFlight()
    {
        makeHome(60);
        start();
        views()->setCurrentIndex(Limits);
        pick({0, 1});
        QTRY_VERIFY(session().flight() != nullptr);
        QTableView* limits = events(Limits);
        QTableView* lamps = events(Lamps);
        clickCell(limits, 0, 1); // selected already
        QCOMPARE(timeEdit()->time(), QTime(9, 23, 38, 707));
        settle();
        QStringList told; // when, what and how long
        for (QTableView* list : {limits, lamps}) {
            for (int row = 0; row < list->model()->rowCount(); ++row) {
                told << cell(list, row, 0).left(8) + " " + cell(list, row, 1).section(' ', 1, 2) +
                            " " + cell(list, row, 4);
            }
        }
        const QStringList story = {
            "09:23:38 CHT 3 138.0 s",         "09:24:17 CHT 3 138.0 s",
            "09:41:06 Oil Pressure 5.4 s",    "09:41:07 Oil Pressure 5.4 s",
            "09:48:57 EGT 5 0.3 s",           " of range ",
            "09:12:00 Bus Voltage 51.8 s",    "09:12:00 Oil Pressure 51.8 s",
            "09:12:00 Fuel Pressure 37.0 s",  "09:12:00 Lamp Bus 51.8 s",
            "09:12:50 Lamp Starter 1.6 s",    "09:23:38 Lamp Cylinder 38.0 s",
            "09:24:16 Lamp Cylinder 108.0 s", "09:41:07 Lamp Oil 3.6 s"};
        QCOMPARE(told, story);
        QCOMPARE(limits->rowHeight(0), 15);
        const std::pair<int, QTime> clicks[] = {{5, QTime(9, 23, 38, 707)}, // a heading
                                                {8, QTime(9, 12, 0, 98)},
                                                {1, QTime(9, 24, 17, 207)}};
        for (const auto& [row, time] : clicks) {
            clickCell(limits, row, 1);
            QCOMPARE(timeEdit()->time(), time);
        }
        QCOMPARE(cell(table(), rowOf(table()), 0), "09:24:17.200");
        QCOMPARE(rowOf(lamps), 3);
        QTest::keyClick(limits, Qt::Key_Down);
        QCOMPARE(timeEdit()->time(), QTime(9, 41, 6, 834));

        // What happened in one line; each part leads to its view, the lists into the graph.
        auto* bar = find<QLabel>("flightBar");
        for (const char* part : {"Duration 00:59:59", "5 at the limit", "Lamps: 5"}) {
            QVERIFY2(bar->text().contains(part), qPrintable(bar->text()));
        }
        QCOMPARE(views()->tabText(Limits), "Limit/Warning Exceed (6)");
        Q_EMIT bar->linkActivated(bar->text().section("href=\"", 1).section('"', 0, 0));
        QVERIFY(views()->currentIndex() == Limits && rowOf(limits) == 0);
        // A filter, which Escape takes back, and an order, which the third click does.
        QTest::keyClick(&window(), Qt::Key_F, Qt::ControlModifier);
        auto* filter = limits->parentWidget()->findChild<QLineEdit*>();
        QTRY_VERIFY(filter->hasFocus());
        QTest::keyClicks(filter, "OIL");
        QCOMPARE(limits->model()->rowCount(), 3);
        QCOMPARE(timeEdit()->time(), QTime(9, 23, 38, 706)); // nobody picked another row
        QTest::keyClick(filter, Qt::Key_Escape);
        QVERIFY(limits->model()->rowCount() == 9 && limits->hasFocus());
        const QPoint peak(limits->columnViewportPosition(5) + 20, 5);
        for (const char* first : {"0 bar", "1088 °C", "246.6 °C"}) {
            QTest::mouseClick(limits->horizontalHeader()->viewport(), Qt::LeftButton, {}, peak);
            QCOMPARE(cell(limits, 0, 5), first);
        }
        clickCell(limits, 3, 1);
        QTest::keyClick(limits, Qt::Key_M);
        QCOMPARE(timeEdit()->time(), QTime(9, 41, 9, 634));
        clickCell(limits, 6, 1); // of a parameter that is not selected
        QTest::keyClick(limits, Qt::Key_G);
        const GraphModel& graph = find<WidgetGraph>()->model();
        QVERIFY(views()->currentIndex() == Graph && graph.window().width() == 60.0);
        QVERIFY(std::ranges::any_of(graph.curves().all(), [](const ParStruct& curve) {
            return curve.active && curve.name == "Bus Voltage";
        }));
        views()->setCurrentIndex(Limits);

        // From event to event; every view follows.
        slider()->setValue(0);
        const Flight& flight = *session().flight();
        const auto present = [&](const std::vector<RecordEvent>& events) {
            const auto last = std::ranges::upper_bound(events, tenthsOf(session().time()), {},
                                                       &RecordEvent::tenths);
            return std::max(0, int(last - events.begin()) - 1);
        };
        double before = session().time();
        for (const EventMark& mark : flight.marks().marks()) {
            if (mark.time > before + 0.001) {
                QTest::keyClick(limits, Qt::Key_N);
                before = session().time();
                QCOMPARE(before, mark.time);
                QCOMPARE(rowOf(limits), present(flight.events().limits));
                QCOMPARE(rowOf(lamps), present(flight.events().warnings));
            }
        }
    }

    void measuringPanelMeasures()
    {
        makeHome(60);
        start();
        views()->setCurrentIndex(Graph);
        open({0, 1});
        auto* table = find<QTableView>("measures");
        QTRY_COMPARE(table->model()->rowCount(), 2);
        const auto cell = [&](int column) { return table->model()->index(0, column); };
        const auto text = [&](int column) { return cell(column).data().toString(); };
        const QString whole = text(13);
        find<WidgetGraph>()->model().setMarker(34800.0, 34900.0);
        QCOMPARE(text(3), QString::number(cell(2).data(Qt::UserRole).toDouble() -
                                              cell(1).data(Qt::UserRole).toDouble(),
                                          'g', 6));
        QVERIFY(!text(13).isEmpty() && text(13) != whole);
        table->scrollTo(cell(7));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                          table->visualRect(cell(7)).center());
        QCOMPARE(session().time(), cell(8).data(Qt::UserRole).toDouble());
        auto* panel = find<QWidget>("measuringPanel");
        type(panel->findChildren<QTimeEdit*>()[1], "09:41:00.500\r");
        QVERIFY(session().marks() == TimeRange(34800.0, 34860.5));
        type(panel->findChildren<QTimeEdit*>()[0], "09:45:00.000\r"); // beyond B
        QVERIFY(session().marks() == TimeRange(35100.0, session().flight()->range(0.0).stop));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Insert, Qt::ControlModifier);
        QVERIFY(QGuiApplication::clipboard()->text().startsWith("Parameter\tA\tB\t"));
        session().setTicks(Selection::all(*session().profile())); // as many strips come first
        session().confirm();
        QVERIFY(panel->isHidden());
        const auto buttons = window().findChildren<QToolButton*>();
        QToolButton* toggle =
            *std::ranges::find(buttons, "Measuring Panel", &QToolButton::accessibleName);
        QVERIFY(!toggle->isChecked());
        QTest::mouseClick(toggle, Qt::LeftButton);
        QVERIFY(panel->isVisible() && toggle->isChecked());
        panel->findChild<QToolButton*>()->click();
        QVERIFY(panel->isHidden() && !toggle->isChecked());
        start();
        QVERIFY(find<QWidget>("measuringPanel")->isHidden()); // remembered
    }

    void matricesShowTheMoment()
    {
        makeHome(60);
        start();
        views()->setCurrentIndex(Matrices);
        open({0, 1});
        auto* matrix = find<WidgetFaultMatrix>();
        auto* table = matrix->findChild<QTableWidget*>();
        QCOMPARE(table->horizontalHeaderItem(0)->text(), "31");
        const auto colorsAt = [&](double time) {
            session().setTime(time);
            QStringList colors;
            for (const int bit : {0, 9, 20, 31}) {
                QWidget* cell = table->cellWidget(0, 31 - bit);
                colors << cell->grab().toImage().pixelColor(cell->width() / 2, 4).name();
            }
            return colors.join(' ');
        };
        // Information, warning and fault, and a bit that means nothing.
        QCOMPARE(colorsAt(34870.0), "#9696ff #ffc896 #dcffdc #ffffff"); // in the oil pressure dip
        QCOMPARE(colorsAt(34245.0), "#9696ff #dcffdc #ff9696 #ffffff"); // EGT 5 sensor

        auto* timeline = find<WidgetErrorTime>();
        const int x = timeline->width() / 4;
        QTest::mouseClick(timeline, Qt::LeftButton, {}, QPoint(x, 5));
        QVERIFY(qAbs(slider()->value() - 2500) < 20);
        const QImage image = timeline->grab().toImage(); // with the cursor, as far as a float tells
        QVERIFY(image.pixelColor(x, 12) == Qt::black || image.pixelColor(x - 1, 12) == Qt::black);
        QCOMPARE(image.pixelColor(2 * x, 5), QColor(150, 150, 255));
        for (const int width : {1350, 760}) { // resized while another view is in front
            views()->setCurrentIndex(Table);
            window().resize(width, 800);
            settle();
            views()->setCurrentIndex(Matrices);
            settle();
            QCOMPARE(table->columnWidth(0), std::max(15, table->viewport()->width() / 32));
        }
    }
};

QTEST_MAIN(TestWindow)
#include "tst_window.moc"
