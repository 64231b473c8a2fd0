#pragma once

#include "widgets/ColorButton.h"
#include "widgets/Kernel.h"

#include <QtWidgets/QSpinBox>

namespace TARN {

// Controls that wizard pages are made of.

inline QSpinBox* createSpinBox(int lowest, int highest, int step, const QString& suffix,
                               const QString& toolTip)
{
    auto* box = new QSpinBox;
    box->setRange(lowest, highest);
    box->setSingleStep(step);
    box->setSuffix(suffix);
    box->setToolTip(toolTip);
    return box;
}

inline ColorButton* createColorButton(const QString& title)
{
    auto* button = new ColorButton(title);
    button->setStyle(Kernel::instance()->getStyle());
    return button;
}

} // namespace TARN
