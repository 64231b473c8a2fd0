#pragma once

#include <QtWidgets/QComboBox>

namespace TARN {

/// A combo box that is read and set by the data of its items, integers, not by their rows.
class QwtComboBox : public QComboBox
{
    Q_OBJECT

public:
    QwtComboBox(QWidget* parent, int id);

    /// Selects the item with this data; none when there is none.
    void setData(int value);

Q_SIGNALS:
    void signalActivated(int id, int value);
    void signalActivated(int value);

private Q_SLOTS:
    void slotActivated(int index);

private:
    int mId;
};

} // namespace TARN
