#pragma once

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <functional>

/// Answers the modal windows that open while it lives, as a person would, and keeps what they
/// said. One that nobody prepared an answer for is closed.
class Answers : public QObject
{
public:
    Answers() { act(); }

    // What to answer, one after the other.

    QStringList buttons; ///< in message boxes, by their texts without "&"
    QStringList files;   ///< in file dialogs
    QStringList colors;  ///< in colour dialogs

    /// Fills a page of a wizard before it goes on; without, it is cancelled.
    std::function<void(QWizard&, QWizardPage&)> atPage;
    std::function<QAbstractButton*(QMessageBox&)> chooseButton; ///< instead of the texts

    /// Fills another dialog before its default button is pressed; without, it is cancelled.
    std::function<void(QDialog&)> atDialog;

    QStringList said; ///< title, text and further text of boxes; title and choice of file dialogs

private:
    void act();
    void answer(QWidget* modal);
    void press(QMessageBox& box);
    void turn(QWizard& wizard);

    QWidget* mBusyWith = nullptr;
};

/// Runs the event loop until no job runs and nothing that is due is left to do.
void settle();
