#pragma once

#include "export/ExportFace.h"
#include "export/KmlExportOptions.h"

#include <QtWidgets/QWizard>

namespace TARN {

/// Collects the options of the KML export.
class DialogExportKml : public QWizard, public ExportFace
{
    Q_OBJECT

public:
    explicit DialogExportKml(QWidget* parent = nullptr);

    /// Completes \p options from the settings and the user; the settings take what was chosen,
    /// also when the wizard is cancelled. The result is that of the dialog.
    int getOptions(KmlExportOptions& options);

    /// Proposes the name of the recording's first file.
    std::shared_ptr<Exporter> ask(const ExportInput& shown, const ExportOptions& preset) override;
    Words words() const override;

private:
    KmlExportOptions mOptions;
};

} // namespace TARN
