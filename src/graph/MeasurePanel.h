#pragma once

#include "flight/Comparer.h"
#include "graph/MarkerEnds.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

class QAction;
class QSortFilterProxyModel;
class QTableView;
class WidgetGraph;

namespace TARN {

class ClockEdit;
class MeasureModel;
class TextLine;

/// Below the graph: what is measured of each of its curves between the ends A and B of the marked
/// range, or over the whole flight where nothing is marked.
class MeasurePanel : public QWidget
{
    Q_OBJECT

public:
    /// \p graph lives as long.
    MeasurePanel(Session& session, WidgetGraph& graph, QWidget* parent = nullptr);

Q_SIGNALS:
    /// The user does not want to see it.
    void closed();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void followSession();
    QWidget* createTimes();
    QTableView* createTable();
    void createColumnMenu(QTableView& table);
    QAction* createChoice(int column, bool isShown);
    void showColumns(QTableView& table) const;
    ClockEdit* createTime(MarkerEnd end, const QString& name);
    void reload();
    void load();
    void measure();
    void fitColumns();
    void goTo(const QModelIndex& index);
    void copy() const;

    Session& mSession;
    WidgetGraph& mGraph;
    MeasureModel* mModel;
    QSortFilterProxyModel* mSorted;
    QTableView* mTable;
    ClockEdit* mStart;
    ClockEdit* mStop;
    TextLine* mSpan;
    QTimer mTimer; ///< until curves that are seen have been decoded
    QTimer mFit;   ///< until an end that is dragged stands still
    Job<StatisticsIndexes> mJob;
    StatisticsIndexes mIndexes;
    Comparer mComparer;
    bool mIsStale = true; ///< another selection, flight or offset
};

} // namespace TARN
