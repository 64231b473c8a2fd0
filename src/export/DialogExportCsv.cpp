#include "export/DialogExportCsv.h"

#include "base/Property.h"
#include "export/DialogExportCsvOptions.h"
#include "export/DialogExportCsvPath.h"
#include "export/ExportCan.h"
#include "export/ExportCsv.h"

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

std::shared_ptr<Exporter> DialogExportCsv::ask(const ExportInput& shown,
                                               const ExportOptions& preset)
{
    CsvExportOptions options = mOptions;
    options.setTimes(preset);
    if (getOptions(options, shown.flight->range(0.0)) != Accepted) {
        return nullptr;
    }
    if (options.fileType == CsvExportOptions::Can) {
        return std::make_shared<ExportCan>(options);
    }
    return std::make_shared<ExportCsv>(options);
}

ExportFace::Words DialogExportCsv::words() const
{
    return {tr("ORNA Viewer Warning"), tr("Exporting CSV/CAN file failed !")};
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
