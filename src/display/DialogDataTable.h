#pragma once

#include "widgets/DataView.h"

#include <QtWidgets/QWidget>

namespace TARN {

class DataTableView;
class TableModel;

/// The "Data" tab: the decoded values of the selected parameters, a row for each tenth of a
/// second.
class DialogDataTable : public QWidget, public DataView
{
    Q_OBJECT

public:
    explicit DialogDataTable(QWidget* parent = nullptr);

    void updateProfile() override;
    void updateRecord(Record* record) override;
    void updateOffset(Record* record) override { updateRecord(record); }
    void setTime(double time) override;

Q_SIGNALS:
    /// The user selected the row of this time, seconds.
    void signalTime(double time);

private Q_SLOTS:
    void slotSelect();

private:
    void updateEmptyText();

    TableModel* mModel;
    DataTableView* mTable;
    Record* mRecord = nullptr;
    bool mUpdating = false; ///< the selection is not the user's
};

} // namespace TARN
