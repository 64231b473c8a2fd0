#pragma once

#include "gui/Viewer.h"

#include <QtCore/QRandomGenerator>
#include <QtWidgets/QTabWidget>

class QWizard;

/// Uses the viewer without a plan: picks actions at random, the same ones for the same seed, and
/// answers every window that asks something.
class Monkey : public QObject
{
public:
    Monkey(Viewer& viewer, unsigned seed);

    /// Does one thing and lets the program finish it; its name, for the log of a failure.
    const char* act();

private:
    using Deed = void (Monkey::*)();

    int pick(int count) { return static_cast<int>(mRandom.bounded(count)); }
    bool isHeads() { return pick(2) == 0; }
    QPoint placeOn(const QWidget* widget);
    QWidget* view() { return mTabs->currentWidget(); }

    void answerLater();
    void answer();
    void answerWizard(QWizard& wizard);

    // What it can do.
    void pickRecordings();
    void openCard();
    void moveSlider();
    void typeTime();
    void changeView();
    void clickTable();
    void pressKeys();
    void dragMouse();
    void turnWheel();
    void pressGraphButton();
    void setOffset();
    void tickParameters();
    void clearSelection();
    void reloadProfile();
    void replaceProject();
    void chooseCommand();
    void goToEvent();
    void resizeWindow();

    Viewer& mViewer;
    QRandomGenerator mRandom;
    QTabWidget* mTabs;
};
