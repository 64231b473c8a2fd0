#include "gui/Answers.h"

#include "flight/Job.h"

/// A single shot each time: a timer does not fire again inside the window that its answer opened.
void Answers::act()
{
    constexpr int Interval = 20; // ms
    QTimer::singleShot(Interval, this, &Answers::act);
    QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal != mBusyWith) {
        QWidget* before = std::exchange(mBusyWith, modal);
        answer(modal);
        mBusyWith = before;
    }
}

void Answers::answer(QWidget* modal)
{
    if (auto* box = qobject_cast<QMessageBox*>(modal)) {
        said << box->windowTitle() + "|" + box->text() + "|" + box->informativeText();
        press(*box);
    } else if (auto* wizard = qobject_cast<QWizard*>(modal)) {
        turn(*wizard);
    } else if (auto* chooser = qobject_cast<QFileDialog*>(modal); chooser && !files.isEmpty()) {
        said << chooser->windowTitle() + "|" + chooser->selectedFiles().value(0);
        chooser->findChild<QLineEdit*>("fileNameEdit")->setText(files.takeFirst());
        QMetaObject::invokeMethod(chooser, "accept");
    } else if (auto* palette = qobject_cast<QColorDialog*>(modal); palette && !colors.isEmpty()) {
        palette->setCurrentColor(QColor(colors.takeFirst()));
        palette->accept();
    } else if (auto* other = qobject_cast<QDialog*>(modal); other && atDialog) {
        atDialog(*other);
        for (auto* button : other->findChildren<QPushButton*>()) {
            if (button->isDefault()) {
                QTest::mouseClick(button, Qt::LeftButton);
            }
        }
    } else if (auto* dialog = qobject_cast<QDialog*>(modal)) {
        said << dialog->windowTitle() + "|";
        dialog->reject();
    }
}

void Answers::press(QMessageBox& box)
{
    QAbstractButton* chosen = chooseButton ? chooseButton(box) : nullptr;
    const QString wanted = !chosen && !buttons.isEmpty() ? buttons.takeFirst() : QString();
    for (QAbstractButton* button : box.buttons()) {
        if (button->text().remove('&') == wanted) {
            chosen = button;
        }
    }
    if (chosen == nullptr) {
        box.reject();
    } else {
        chosen->click();
    }
}

void Answers::turn(QWizard& wizard)
{
    if (atPage) {
        atPage(wizard, *wizard.currentPage());
    }
    if (!wizard.isVisible()) {
        return; // left on this page
    }
    const bool isLast = wizard.currentPage()->nextId() < 0;
    const auto button = !atPage  ? QWizard::CancelButton
                        : isLast ? QWizard::FinishButton
                                 : QWizard::NextButton;
    QTest::mouseClick(wizard.button(button), Qt::LeftButton);
}

void settle()
{
    constexpr int Turn = 30; // ms
    constexpr int Quiet = 3; // turns: what one ended may have started the next
    for (int quiet = 0; quiet<Quiet; quiet = TARN::pendingWork()> 0 ? 0 : quiet + 1) {
        QEventLoop loop; // results arrive in it without delay
        QTimer::singleShot(Turn, &loop, &QEventLoop::quit);
        loop.exec();
    }
}
