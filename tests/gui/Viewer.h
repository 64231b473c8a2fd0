#pragma once

#include "app/DialogMain.h"

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLCDNumber>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTableView>
#include <QtWidgets/QTimeEdit>
#include <QtWidgets/QTreeWidget>

#include <memory>

/// The viewer in a home of its own, with a card of the demo flight and a project, used through
/// its widgets as a person would.
class Viewer
{
public:
    /// Makes home, card (two files of a flight of so many minutes) and project; starts nothing.
    explicit Viewer(int minutes = 10);

    QString cardPath() const { return mHome.filePath("card"); }
    QString exportPath() const { return mHome.filePath("out"); }
    QString projectPath() const { return mHome.filePath("Flight.test.xml"); }
    QString settingsPath() const { return mHome.filePath("ORNA/ORNA.ini"); }

    void writeSettings(const QString& lastPath, const QString& profile, const QString& project);

    /// Runs the start sequence; the window of an earlier start is destroyed first.
    TARN::DialogMain& start();
    TARN::DialogMain& window() { return *mWindow; }
    bool hasClosed() const { return mClosed; }

    QTreeWidget* recordings() { return find<QTreeWidget>("recordings"); }
    QTreeWidget* parameters() { return find<QTreeWidget>("parameters"); }
    QTableView* table() { return find<QTableView>("values"); }
    QSlider* slider() { return find<QSlider>("timeSlider"); }
    QTimeEdit* timeEdit() { return find<QTimeEdit>("timeEdit"); }
    QDoubleSpinBox* offset() { return find<QDoubleSpinBox>("offset"); }
    QTreeWidgetItem* parameter(const QString& text);
    QAction* action(const QString& text);

    /// Selects recordings by clicking and waits until they are loaded.
    void loadRecordings(std::initializer_list<int> rows);
    void clickCheckBox(QTreeWidgetItem* item);
    void confirmSelection();
    int selectedRow();
    QString cell(int row, int column);

    /// Presses the button with this text in the next message box, and notes that it came.
    void answerBox(const QString& button);
    bool boxWasShown() const { return mBoxShown; }

private:
    template <typename T>
    T* find(const char* name)
    {
        return mWindow->findChild<T*>(name);
    }

    QTemporaryDir mHome;
    std::unique_ptr<TARN::DialogMain> mWindow;
    bool mClosed = false;
    bool mBoxShown = false;
};
