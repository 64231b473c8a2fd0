#pragma once

#include "export/ExportFace.h"
#include "export/GpxExportOptions.h"

#include <QtWidgets/QWizard>

namespace TARN {

/// Collects the options of the GPX export.
class DialogExportGpx : public QWizard, public ExportFace
{
    Q_OBJECT

public:
    explicit DialogExportGpx(QWidget* parent = nullptr);

    /// Proposes the name of the recording's first file. The settings take what was chosen, also
    /// when the wizard is cancelled.
    std::shared_ptr<Exporter> ask(const ExportInput& shown, const ExportOptions& preset) override;
    Words words() const override;

private:
    GpxExportOptions mOptions;
};

} // namespace TARN
