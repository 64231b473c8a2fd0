#pragma once

#include "export/KmlExportOptions.h"

#include <QtWidgets/QWizard>

namespace TARN {

/// Collects the options of the KML export.
class DialogExportKml : public QWizard
{
    Q_OBJECT

public:
    explicit DialogExportKml(QWidget* parent = nullptr);

    /// Completes \p options from the settings and the user; the settings take what was chosen,
    /// also when the wizard is cancelled. The result is that of the dialog.
    int getOptions(KmlExportOptions& options);

private:
    KmlExportOptions mOptions;
};

} // namespace TARN
