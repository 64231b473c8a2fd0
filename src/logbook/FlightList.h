#pragma once

#include "logbook/FlightListModel.h"

#include <QtWidgets/QWidget>

class QComboBox;
class QLineEdit;

namespace TARN {

class DataTableView;

/// The flights of a logbook, of one engine or of all, which the user may sort and filter.
class FlightList : public QWidget
{
    Q_OBJECT

public:
    explicit FlightList(QWidget* parent = nullptr);

    /// The flight that was chosen stays so where it is still there, otherwise the one that took its
    /// row is.
    void setFlights(std::shared_ptr<const std::vector<FlightHead>> flights);
    /// Why there are none; see EmptyPlace.
    void setEmptyText(const QString& text);
    /// Chooses a flight by its key.
    void choose(const QString& flight);

    /// Null when none is.
    const FlightHead* chosen() const;
    const FlightHead* find(const QString& flight) const;

    /// Puts the cursor into the filter.
    void beginFilter();

Q_SIGNALS:
    /// Another flight, or none.
    void chosenChanged();
    void flightWanted(const QString& flight, bool asReference);
    void removeWanted();
    void signalLink(const QString& link);

private:
    void createCommands();
    void applyFilter();
    void filter();
    void chooseNear(int row);
    void showEngines();
    void chooseRow(int row);

    QString mEmptyText;
    QString mChosen; ///< key of a flight
    FlightListModel mModel;
    QComboBox* mEngine;
    QLineEdit* mText;
    DataTableView* mTable;
};

} // namespace TARN
