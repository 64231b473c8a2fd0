#pragma once

#include "export/DialogExportPath.h"

namespace TARN {

/// Where the KML file goes.
class DialogExportKmlPath : public DialogExportPath
{
    Q_OBJECT

public:
    explicit DialogExportKmlPath(ExportOptions& options)
        : DialogExportPath(options, tr("KML Export"), tr("Save KML Export"))
    {}
};

} // namespace TARN
