#include "faults/DialogDataErrorMatrix.h"

#include "faults/WidgetFaultMatrix.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QVBoxLayout>

namespace TARN {

DialogDataErrorMatrix::DialogDataErrorMatrix(QWidget* parent)
    : QWidget(parent), mInner(new QWidget), mLayout(new QVBoxLayout(mInner)),
      mEmpty(new QLabel(tr("The profile describes no error matrix.")))
{
    mEmpty->setAlignment(Qt::AlignCenter);
    mLayout->addWidget(mEmpty);
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setWidget(mInner);
    area->setAccessibleName(tr("Error matrices"));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area, 0, 0);
}

void DialogDataErrorMatrix::loadProfile(const ProfileInfo& profile)
{
    for (WidgetFaultMatrix* matrix : mMatrices) {
        delete matrix;
    }
    mMatrices.clear();
    for (const FaultMatrix& description : profile.faultMatrices) {
        auto* matrix = new WidgetFaultMatrix;
        matrix->setData(description);
        mLayout->addWidget(matrix);
        mMatrices.push_back(matrix);
        connect(matrix, &WidgetFaultMatrix::signalTime, this, &DialogDataErrorMatrix::signalTime);
    }
    mEmpty->setVisible(mMatrices.empty());
}

void DialogDataErrorMatrix::updateRecord(Record* record)
{
    for (WidgetFaultMatrix* matrix : mMatrices) {
        matrix->updateRecord(record);
    }
}

void DialogDataErrorMatrix::setTime(double time)
{
    for (WidgetFaultMatrix* matrix : mMatrices) {
        matrix->setTime(time);
    }
}

} // namespace TARN
