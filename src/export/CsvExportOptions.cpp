#include "export/CsvExportOptions.h"

#include "base/Property.h"

namespace TARN {

void CsvExportOptions::load(const Property& settings)
{
    const int limiter = settings.getInt("CsvLimiter", ';');
    const int step = settings.getInt("CsvResolution", 100);
    directory = settings.getString("CsvExportDir", ".");
    separator = limiter == ',' || limiter == '\t' ? static_cast<char>(limiter) : ';';
    fileType = settings.getInt("CsvCan", 0) == 1 ? Can : Csv;
    resolution = step == 10 || step == 1 ? step : 100;
    allParameters = settings.getSwitch("CsvAllParameter", true);
}

void CsvExportOptions::store(Property& settings) const
{
    settings.setString("CsvExportDir", directory);
    settings.setInt("CsvLimiter", separator);
    settings.setInt("CsvCan", fileType);
    settings.setInt("CsvResolution", resolution);
    settings.setSwitch("CsvAllParameter", allParameters);
}

void CsvExportOptions::completeFileName()
{
    const std::string base =
        fileName.empty() ? "ExportOrna" : fileName.substr(0, fileName.rfind('.'));
    fileName = base + (fileType == Can ? ".CAN" : ".csv");
}

} // namespace TARN
