#pragma once

#include "flight/Job.h"
#include "flight/Session.h"
#include "table/ReferenceColumns.h"
#include "table/TableRows.h"
#include "widgets/SeenFirst.h"

#include <QtWidgets/QWidget>

namespace TARN {

class DataTableView;
class TableModel;

/// The "Data" tab: the decoded values of the selected parameters, a row for each tenth of a
/// second.
class DialogDataTable : public QWidget
{
    Q_OBJECT

public:
    explicit DialogDataTable(Session& session, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user follows a link of the empty text.
    void signalLink(const QString& link);

private Q_SLOTS:
    void slotSelect(int row);

private:
    void followSession();
    void showColumns();
    void fitColumns();
    void fill();
    void loadReference();
    void showReference();
    void showRows(std::shared_ptr<const TableRows> rows);
    void showTime(double time, const QObject* source);
    void updateDigits();
    void updateEmptyText();

    Session& mSession;
    TableModel* mModel;
    DataTableView* mTable;
    SeenFirst mSeenFirst{*this};
    Job<std::shared_ptr<const TableRows>> mJob;
    Job<std::shared_ptr<const ReferenceColumns>> mReferenceJob;
    std::shared_ptr<const ReferenceColumns> mReference; ///< null while it is being made
    bool mIsShort = false; ///< there was not enough memory for the rows
};

} // namespace TARN
