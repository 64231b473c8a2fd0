#include "app/CloseQuestion.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace TARN {

namespace {

struct CloseTexts
{
    Q_DECLARE_TR_FUNCTIONS(TARN::DialogMain)
};

} // namespace

OnClose askOnClose(QWidget& parent)
{
    QMessageBox box(QMessageBox::Question, CloseTexts::tr("ORNA Warning"),
                    CloseTexts::tr("An export is running.\nWait until it is complete, or stop it? "
                                   "A stopped export leaves the old file."),
                    QMessageBox::NoButton, &parent);
    const QAbstractButton* wait = box.addButton(CloseTexts::tr("Wait"), QMessageBox::AcceptRole);
    const QAbstractButton* stop =
        box.addButton(CloseTexts::tr("Stop"), QMessageBox::DestructiveRole);
    box.addButton(CloseTexts::tr("Cancel"), QMessageBox::RejectRole);
    box.exec();
    return box.clickedButton() == wait   ? OnClose::Wait
           : box.clickedButton() == stop ? OnClose::Stop
                                         : OnClose::Stay;
}

} // namespace TARN
