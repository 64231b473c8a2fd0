#pragma once

#include "logbook/LogbookAccess.h"
#include "logbook/TrendListModel.h"

#include <QtWidgets/QWidget>

class QComboBox;
class QLabel;
class QLineEdit;

namespace TARN {

class DataTableView;
class WidgetTrend;

/// What wears out: the parameters of an engine, those that left their band first, and the trend of
/// the one that is chosen.
class TrendPanel : public QWidget
{
    Q_OBJECT

public:
    explicit TrendPanel(QWidget* parent = nullptr);

    Figure figure() const;
    void setTrends(const EngineTrends& trends);
    /// Nothing is known (yet).
    void clear();
    /// Puts a ring around a flight, by its key.
    void chooseFlight(const QString& flight);

Q_SIGNALS:
    void figureChanged();
    void flightChosen(const QString& flight);
    void flightWanted(const QString& flight, bool asReference);

private:
    QWidget* createList();
    QWidget* createPicture();
    void showParameter(int row);
    void showTrend(int row);
    QString summary() const;
    QString whyEmpty() const;

    TrendListModel mModel;
    std::vector<MaintenanceMark> mNotes;
    QString mAircraft;
    QString mParameter; ///< that the user chose last, by its full name
    QComboBox* mFigure;
    QLineEdit* mFilter;
    QLabel* mSummary;
    DataTableView* mTable;
    QLabel* mTitle;
    WidgetTrend* mTrend;
};

/// The figures as the user chooses between them, in their order.
QStringList figureWords();

} // namespace TARN
