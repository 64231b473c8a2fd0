#pragma once

#include <QtCore/QString>
#include <QtGui/QColor>

#include <string>

namespace TARN {

/// A moment at which something went wrong, ready to be listed and exported.
struct RecordEvent
{
    double time = 0.0; ///< seconds on the recording's clock
    std::string name;  ///< device and parameter
    std::string value; ///< value text and unit
    QString text;      ///< device, parameter, value text and unit
    QColor color;      ///< invalid when nothing gave one
    int tenths = 0;    ///< time in tenths of a second, rounded
};

using RecordLimit = RecordEvent;   ///< a parameter entered its warning or its limit range
using RecordWarning = RecordEvent; ///< a warning lamp was switched on

} // namespace TARN
