#include "graph/RangeDialog.h"

#include <QtGui/QDoubleValidator>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <cmath>

namespace TARN {

RangeDialog::RangeDialog(const QString& title, const ValueRange& range, QWidget* parent)
    : QDialog(parent), mLow(createNumber(range.low)), mHigh(createNumber(range.high)),
      mButtons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel))
{
    setWindowTitle(title);
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("Highest value :"), mHigh);
    layout->addRow(tr("Lowest value :"), mLow);
    layout->addRow(mButtons);
    connect(mButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(mButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    check();
}

QLineEdit* RangeDialog::createNumber(double value)
{
    auto* edit = new QLineEdit(QString::number(value, 'g', 6));
    auto* validator = new QDoubleValidator(edit);
    validator->setLocale(QLocale::c());
    edit->setValidator(validator);
    connect(edit, &QLineEdit::textChanged, this, &RangeDialog::check);
    return edit;
}

ValueRange RangeDialog::range() const
{
    return {mLow->text().toDouble(), mHigh->text().toDouble()};
}

void RangeDialog::check()
{
    const ValueRange typed = range();
    const bool isRange = mLow->hasAcceptableInput() && mHigh->hasAcceptableInput() &&
                         std::isfinite(typed.low) && std::isfinite(typed.high) &&
                         typed.low < typed.high;
    mButtons->button(QDialogButtonBox::Ok)->setEnabled(isRange);
}

} // namespace TARN
