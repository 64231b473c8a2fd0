#pragma once

#include "export/ExportFace.h"
#include "report/ReportOptions.h"

#include <QtWidgets/QDialog>

class QCheckBox;
class QComboBox;
class QLineEdit;

namespace TARN {

class DirectoryEdit;

/// Asks how the report is written: where to, as what, of which range.
class DialogReport : public QDialog, public ExportFace
{
    Q_OBJECT

public:
    explicit DialogReport(QWidget* parent = nullptr);

    /// Proposes the name of the recording's first file and, where none is marked, all of the
    /// flight.
    std::shared_ptr<Exporter> ask(const ExportInput& shown, const ExportOptions& preset) override;
    Words words() const override;
    /// Opens it, if the user wants that.
    void written(const QString& path) override;

public Q_SLOTS:
    void accept() override;

private:
    void show(const ReportOptions& options);
    void offerRanges(const TimeRange& whole, const TimeRange& marked);
    void takeKind();

    ReportOptions mOptions;
    DirectoryEdit* mFolder;
    QLineEdit* mFile;
    QComboBox* mKind;
    QComboBox* mPaper;
    QComboBox* mRange;
    QCheckBox* mOpens;
    TimeRange mWhole;
    TimeRange mMarked;
};

} // namespace TARN
