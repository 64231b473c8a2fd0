#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QTableView>

#include <set>

namespace TARN {

class EmptyPlace;

/// The table that all data views use: rows of 15 pixels, one row selected at a time, and where
/// there are no rows a sentence that says why and what to do. Columns are as wide as their titles
/// and what comes into sight needs; those out of sight, and a table out of sight, are not measured.
class DataTableView : public QTableView
{
    Q_OBJECT

public:
    explicit DataTableView(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;

    void setEmptyText(const QString& text);
    QString emptyText() const;

    /// The column that takes the room that others leave, and no less than what comes into sight
    /// needs.
    void setStretched(int column) { mStretched = column; }

    /// Gives every column the width of its title, and more as values come into sight.
    void fitColumns();

    /// Rows that come to be selected otherwise than by the user are picked by nobody.
    void setPicking(bool on) { mShowing = !on; }

    /// Selects a row and brings it to the middle, without telling that it was picked; none
    /// for -1.
    void showRow(int row);

Q_SIGNALS:
    /// The user picked a row: clicked on it, selected or not, or moved to it by key.
    void rowPicked(int row);
    /// The user follows a link of the empty text.
    void signalLink(const QString& link);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// No number that comes into sight is cut short.
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void widenVisible();
    void layStretched();
    void updateEmptyPlace();
    int widthOfProbes(int column) const;
    void widen(int column, int width);
    void pickSelected();

    EmptyPlace* mEmpty;
    QTimer mWidening;
    int mStretched = -1;    ///< none
    bool mFitting = false;  ///< widths are changed by the program, not by the user
    bool mShowing = false;  ///< the selection is not the user's
    bool mPressing = false; ///< a press picks its row once
    std::set<int> mSizedByUser;
    std::set<int> mProbed; ///< columns of which values all over the table were measured
};

} // namespace TARN
