#pragma once

#include "app/DialogMain.h"
#include "gui/Answers.h"
#include "support/FlightTest.h"

/// Base of the tests of the whole window. It has a home of its own, the folder of the test, with
/// a card of the demo flight and a project, and is used through its widgets as a person would.
class WindowTest : public FlightTest
{
    Q_OBJECT

public:
    /// The tabs, by their numbers.
    enum View
    {
        Table,
        Limits,
        Graph,
        Lamps,
        Matrices,
        Track
    };

    /// Makes settings anew, the folder "card" (two files of a flight of so many minutes), the
    /// folder "out" for exports and the project Flight.test.xml; starts nothing.
    void makeHome(int minutes = 10);
    QString cardPath() const { return path("card"); }
    QString exportPath() const { return path("out"); }
    QString projectPath() const { return path("Flight.test.xml"); }
    static QString profilePath() { return ORNA_RESOURCES "/Tolvane_Profile.xml"; }
    void writeSettings(const QString& card, const QString& profile, const QString& project);

    /// Runs the start sequence and waits for all of it; the window of an earlier start is
    /// destroyed first.
    void start();
    TARN::DialogMain& window() { return *mWindow; }
    TARN::Session& session() { return mWindow->session(); }
    bool hasClosed() const { return mClosed; }
    Answers& answers() { return *mAnswers; }

    template <typename T>
    T* find(const char* name = "")
    {
        T* found = mWindow->findChild<T*>(QString(name).isEmpty() ? QString() : name);
        return found != nullptr ? found : (qFatal("there is no %s", name), nullptr);
    }
    QTabWidget* views() { return find<QTabWidget>("views"); }
    QTreeWidget* recordings() { return find<QTreeWidget>("recordings"); }
    /// A recording that is listed, from 0; lines of flights are left out.
    QTreeWidgetItem* recording(int number);
    int recordingCount();
    QTreeWidget* parameters() { return find<QTreeWidget>("parameters"); }
    QTableView* table() { return find<QTableView>("values"); }
    QTableView* events(View view)
    {
        return views()->widget(view)->findChild<QTableView*>("events");
    }
    QSlider* slider() { return find<QSlider>("timeSlider"); }
    QTimeEdit* timeEdit() { return find<QTimeEdit>("timeEdit"); }
    QDoubleSpinBox* offset() { return find<QDoubleSpinBox>("offset"); }
    QTreeWidgetItem* parameter(const QString& text)
    {
        return parameters()->findItems(text, Qt::MatchExactly | Qt::MatchRecursive).value(0);
    }
    QAction* action(TARN::ActionType type)
    {
        const auto all = mWindow->findChildren<QAction*>();
        return *std::ranges::find(all, QVariant(static_cast<int>(type)), &QAction::data);
    }
    void run(TARN::ActionType type) { action(type)->trigger(); }

    QString title() { return mWindow->windowTitle(); }
    /// What the status bar says.
    QString said();
    /// What views without anything to show say instead.
    QStringList emptyTexts();

    /// Selects recordings by clicking, and waits until they are asked for.
    void pick(std::initializer_list<int> rows);
    /// The same, and waits until they are loaded.
    void open(std::initializer_list<int> rows)
    {
        pick(rows);
        settle();
    }
    void clickCheckBox(const QString& parameter);
    void confirm()
    {
        find<QPushButton>("confirmSelection")->click();
        settle();
    }
    /// Drags paths onto the window and lets them fall where it would take them.
    bool drop(const QStringList& paths, Qt::KeyboardModifiers held = {});
    /// Chooses another profile in the preferences.
    void useProfile(const QString& file);

    static void type(QWidget* field, const QString& text);
    static void choose(QComboBox* box, int data)
    {
        box->setCurrentIndex(box->findData(data));
        Q_EMIT box->activated(box->currentIndex());
    }
    /// The field of the folder on the first page of a wizard, null on others.
    static QLineEdit* folderOf(const QWidget& page);
    /// Lets wizards write to the folder "out"; all else that a page asks for is for \p fill.
    void fillPages(const std::function<void(QWizardPage&)>& fill);
    static void clickCell(QTableView* table, int row, int column = 0)
    {
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                          table->visualRect(table->model()->index(row, column)).center());
    }
    static int rowOf(QTableView* table)
    {
        const QModelIndexList rows = table->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows.first().row() : -1;
    }
    static QString cell(QTableView* table, int row, int column)
    {
        return table->model()->index(row, column).data().toString();
    }

private Q_SLOTS:
    void init();
    void cleanup();

private:
    std::unique_ptr<TARN::DialogMain> mWindow;
    std::unique_ptr<Answers> mAnswers;
    bool mClosed = false;
};
