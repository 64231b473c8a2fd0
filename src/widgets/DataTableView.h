#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QTableView>

#include <set>

namespace TARN {

/// The table that all data views use: rows of 15 pixels, one row selected at a time, and where
/// there are no rows a sentence that says why and what to do.
class DataTableView : public QTableView
{
    Q_OBJECT

public:
    explicit DataTableView(QWidget* parent = nullptr);

    void setEmptyText(const QString& text);
    QString emptyText() const { return mEmptyText; }

    /// Gives every column the width that its title and visible values need.
    void fitColumns();
    /// Gives columns the width that their visible values and a hundred others need; none gets
    /// narrower, and those that the user has sized stay as they are.
    void widenColumns();

protected:
    void paintEvent(QPaintEvent* event) override;
    /// No number that comes into sight is cut short.
    void scrollContentsBy(int dx, int dy) override;

private:
    int widthOfProbes(int column) const;
    void widenVisible();
    void widen(int column, int width);

    QString mEmptyText;
    QTimer mWidening;
    bool mFitting = false; ///< widths are changed by the program, not by the user
    std::set<int> mSizedByUser;
};

} // namespace TARN
