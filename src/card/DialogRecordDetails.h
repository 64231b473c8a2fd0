#pragma once

#include "record/CardInfo.h"
#include "record/RecordText.h"

#include <QtWidgets/QDialog>

class QTreeWidget;

namespace TARN {

class Flight;

/// Shows what a recording's header says and what could be read of it, to be read and copied.
class DialogRecordDetails : public QDialog
{
    Q_OBJECT

public:
    explicit DialogRecordDetails(QWidget* parent = nullptr);

    /// Shows all about the files of the flight, about those of the card when there is none.
    /// False when there is nothing to be told.
    bool showAll(const Flight* flight, const CardInfo& card);
    /// The same about one file, loaded or not.
    bool showFile(const QString& path, const Flight* flight, const CardInfo& card);

private:
    void showReport(const QList<RecordSection>& sections);
    void copy();

    QTreeWidget* mTree;
};

} // namespace TARN
