#pragma once

#include "record/RecordText.h"

#include <QtWidgets/QDialog>

class QTreeWidget;

namespace TARN {

/// Shows what a recording's header says and what could be read of it, to be read and copied.
class DialogRecordDetails : public QDialog
{
    Q_OBJECT

public:
    explicit DialogRecordDetails(QWidget* parent = nullptr);

    /// Replaces what is shown and shows the window.
    void showReport(const QList<RecordSection>& sections);

private:
    void copy();

    QTreeWidget* mTree;
};

} // namespace TARN
