#include "report/ReportOptions.h"

#include "base/Property.h"

#include <QtCore/QStandardPaths>

namespace TARN {

void ReportOptions::load(const Property& settings)
{
    const ReportOptions defaults;
    directory = settings.getString(
        "ReportDir",
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdString());
    paper = settings.getInt("ReportPaper", defaults.paper) == Letter ? Letter : A4;
    isPdf = settings.getSwitch("ReportPdf", defaults.isPdf);
    opens = settings.getSwitch("ReportOpens", defaults.opens);
}

void ReportOptions::store(Property& settings) const
{
    settings.setString("ReportDir", directory);
    settings.setInt("ReportPaper", paper);
    settings.setSwitch("ReportPdf", isPdf);
    settings.setSwitch("ReportOpens", opens);
}

} // namespace TARN
