#pragma once

#include "graph/MinMaxPyramid.h"

#include <QtWidgets/QDialog>

class QDialogButtonBox;
class QLineEdit;

namespace TARN {

/// Asks for a Y range; can only be accepted when it is one.
class RangeDialog : public QDialog
{
    Q_OBJECT

public:
    RangeDialog(const QString& title, const ValueRange& range, QWidget* parent);

    ValueRange range() const;

private:
    QLineEdit* createNumber(double value);
    void check();

    QLineEdit* mLow;
    QLineEdit* mHigh;
    QDialogButtonBox* mButtons;
};

} // namespace TARN
