#include "export/DialogExportCsv.h"

#include "base/Property.h"
#include "export/DialogExportCsvOptions.h"
#include "export/DialogExportCsvPath.h"

namespace TARN {

DialogExportCsv::DialogExportCsv(QWidget* parent) : QWizard(parent)
{
    setWindowTitle(tr("CSV Export"));
    auto* path = new DialogExportCsvPath(mOptions);
    addPage(path);
    addPage(new DialogExportCsvOptions(mOptions));
    connect(path, &DialogExportCsvPath::fileTypeChanged, this, &DialogExportCsv::fitRange);
}

int DialogExportCsv::getOptions(CsvExportOptions& options, const TimeRange& excerpt)
{
    mOptions = options;
    mTable = options.range();
    mExcerpt = excerpt;
    mOptions.load(*Property::instance());
    restart();
    const int result = exec();
    mOptions.store(*Property::instance());
    Property::instance()->writeXmlFile();
    options = mOptions;
    return result;
}

void DialogExportCsv::fitRange()
{
    const bool isCan = mOptions.fileType == CsvExportOptions::Can;
    if (mOptions.range() == (isCan ? mTable : mExcerpt)) {
        mOptions.startTime = isCan ? mExcerpt.start : mTable.start;
        mOptions.stopTime = isCan ? mExcerpt.stop : mTable.stop;
    }
}

} // namespace TARN
