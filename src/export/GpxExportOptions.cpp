#include "export/GpxExportOptions.h"

#include "base/Property.h"

namespace TARN {

void GpxExportOptions::load(const Property& settings)
{
    const GpxExportOptions defaults;
    directory = settings.getString("GpxExportDir", defaults.directory);
    timeStamp = settings.getInt("GpxTimeStamp", defaults.timeStamp);
    waypoints = settings.getSwitch("GpxWaypoints", defaults.waypoints);
}

void GpxExportOptions::store(Property& settings) const
{
    settings.setString("GpxExportDir", directory);
    settings.setInt("GpxTimeStamp", timeStamp);
    settings.setSwitch("GpxWaypoints", waypoints);
}

} // namespace TARN
