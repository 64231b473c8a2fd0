#include "widgets/QwtComboBox.h"

namespace TARN {

QwtComboBox::QwtComboBox(QWidget* parent, int id) : QComboBox(parent), mId(id)
{
    connect(this, &QComboBox::activated, this, &QwtComboBox::slotActivated);
}

void QwtComboBox::setData(int value)
{
    setCurrentIndex(findData(value, Qt::UserRole, Qt::MatchExactly));
}

void QwtComboBox::slotActivated(int index)
{
    const int value = itemData(index).toInt();
    Q_EMIT signalActivated(mId, value);
    Q_EMIT signalActivated(value);
}

} // namespace TARN
