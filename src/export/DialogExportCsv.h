#pragma once

#include "export/CsvExportOptions.h"
#include "export/ExportFace.h"

#include <QtWidgets/QWizard>

namespace TARN {

/// Collects the options of the CSV and the CAN export.
class DialogExportCsv : public QWizard, public ExportFace
{
    Q_OBJECT

public:
    explicit DialogExportCsv(QWidget* parent = nullptr);

    /// Completes \p options from the settings and the user; the settings take what was chosen,
    /// also when the wizard is cancelled. A range that is that of a whole table becomes
    /// \p excerpt, whose times carry no offset, when a CAN file is chosen. The result is that of
    /// the dialog.
    int getOptions(CsvExportOptions& options, const TimeRange& excerpt);

    std::shared_ptr<Exporter> ask(const ExportInput& shown, const ExportOptions& preset) override;
    Words words() const override;

private:
    void fitRange();

    CsvExportOptions mOptions;
    TimeRange mTable;
    TimeRange mExcerpt;
};

} // namespace TARN
