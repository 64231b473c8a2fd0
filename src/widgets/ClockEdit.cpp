#include "widgets/ClockEdit.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>

namespace TARN {

ClockEdit::ClockEdit(const QString& format, QWidget* parent) : QTimeEdit(parent)
{
    setDisplayFormat(format);
}

void ClockEdit::keyPressEvent(QKeyEvent* event)
{
    // A part that nobody has typed in yet is selected as a whole.
    const bool isSeparator = event->text() == ":" || event->text() == ".";
    if (isSeparator && currentSectionIndex() > 0 && lineEdit()->hasSelectedText()) {
        return;
    }
    const bool isDigit = !event->text().isEmpty() && event->text().front().isDigit();
    if (isDigit && lineEdit()->selectedText() == lineEdit()->text()) {
        setSelectedSection(sectionAt(0)); // all of it is typed anew, from its first part on
    }
    QTimeEdit::keyPressEvent(event);
}

} // namespace TARN
