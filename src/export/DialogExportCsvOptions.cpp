#include "export/DialogExportCsvOptions.h"

#include "export/WidgetTimeRange.h"
#include "widgets/QwtComboBox.h"

#include <QtWidgets/QFormLayout>

namespace TARN {

DialogExportCsvOptions::DialogExportCsvOptions(CsvExportOptions& options)
    : mOptions(options), mLimiter(new QwtComboBox(this, 0)), mResolution(new QwtComboBox(this, 1)),
      mParameter(new QwtComboBox(this, 2)), mTimes(new WidgetTimeRange(options))
{
    setTitle(tr("CSV/CAN Export"));
    setSubTitle(tr("Select CSV/CAN Option"));
    fillBoxes();
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("Limiter"), mLimiter);
    layout->addRow(tr("Resolution"), mResolution);
    layout->addRow(tr("Parameter Selection"), mParameter);
    layout->addRow(mTimes);
    connect(mLimiter, qOverload<int>(&QwtComboBox::signalActivated), this,
            &DialogExportCsvOptions::slotLimiter);
    connect(mResolution, qOverload<int>(&QwtComboBox::signalActivated), this,
            &DialogExportCsvOptions::slotResolution);
    connect(mParameter, qOverload<int>(&QwtComboBox::signalActivated), this,
            &DialogExportCsvOptions::slotParameter);
}

void DialogExportCsvOptions::fillBoxes()
{
    mLimiter->addItem(tr("Semikolon ;"), ';');
    mLimiter->addItem(tr("Comma ,"), ',');
    mLimiter->addItem(tr("Tabstop"), '\t');
    mLimiter->setToolTip(tr("Stands between two columns"));
    mResolution->addItem(tr("100 ms"), 100);
    mResolution->addItem(tr("10 ms"), 10);
    mResolution->addItem(tr("1 ms"), 1);
    mResolution->setToolTip(tr("Time from row to row"));
    mParameter->addItem(tr("All Parameter"), 1);
    mParameter->addItem(tr("Selected Parameter only"), 0);
    mParameter->setToolTip(tr("Columns of the table"));
}

void DialogExportCsvOptions::initializePage()
{
    mLimiter->setData(mOptions.separator);
    mResolution->setData(mOptions.resolution);
    mParameter->setData(mOptions.allParameters ? 1 : 0);
    mTimes->showTimes();
    const bool isTable = mOptions.fileType == CsvExportOptions::Csv;
    for (QWidget* box : {mLimiter, mResolution, mParameter}) {
        box->setEnabled(isTable); // an excerpt holds every sample as it is
    }
}

bool DialogExportCsvOptions::validatePage()
{
    return mTimes->check();
}

void DialogExportCsvOptions::slotLimiter(int code)
{
    mOptions.separator = static_cast<char>(code);
}

void DialogExportCsvOptions::slotResolution(int milliseconds)
{
    mOptions.resolution = milliseconds;
}

void DialogExportCsvOptions::slotParameter(int all)
{
    mOptions.allParameters = all != 0;
}

} // namespace TARN
