#include "Flights.h"
#include "Suite.h"
#include "base/ClockTime.h"
#include "table/TableModel.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QTableWidget>

#include <algorithm>
#include <memory>

namespace TARN::Bench {

namespace {

constexpr std::size_t HourOfRows = 36'000;
constexpr int VisibleRows = 50;

/// Makes the table of a flight ready and shows its first rows.
Measurement openOf(const std::shared_ptr<const Flight>& flight)
{
    return [flight] {
        TableModel model;
        return secondsOf([&] {
            Progress none;
            model.setRows(
                std::make_shared<TableRows>(flight, Selection::all(*flight->profile()), 0.0, none));
            for (int row = 0; row < std::min(VisibleRows, model.rowCount()); ++row) {
                for (int column = 0; column < model.columnCount(); ++column) {
                    keep(model.data(model.index(row, column)));
                    keep(model.data(model.index(row, column), Qt::BackgroundRole));
                }
            }
        });
    };
}

/// Fills a table of cells with texts and colours that cost nothing to make.
double fillCells()
{
    int argc = 1;
    char name[] = "orna-bench";
    char* argv[] = {name, nullptr};
    const QApplication application(argc, argv);
    const QString text = "123.456001282";
    const QBrush background(QColor(255, 255, 255));
    const int columns = static_cast<int>(tableMessages().size()) + 1;
    QTableWidget table;
    return secondsOf([&] {
        table.setColumnCount(columns);
        table.setRowCount(HourOfRows);
        for (int row = 0; row < table.rowCount(); ++row) {
            for (int column = 0; column < columns; ++column) {
                auto* item = new QTableWidgetItem(text);
                item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
                item->setBackground(background);
                table.setItem(row, column, item);
            }
        }
    });
}

using Cells = std::map<std::uint32_t, std::map<int, QString>>; ///< by tenth, then column

/// The cells as the words "the last sample of each tenth" say it.
Cells plainCells(const Flight& flight)
{
    Cells cells;
    int column = 0;
    for (const auto& [device, parameter] : flight.profile()->parameters()) {
        ++column;
        const auto id = static_cast<unsigned>(parameter->id);
        for (std::size_t k = 0; k < flight.samples().count(); ++k) {
            const RecordEntry& sample = flight.samples().inFileOrder(k);
            if (sample.id == id) {
                QColor unused;
                cells[timeKeyOf(sample.time())][column] =
                    flight.profile()->getDataString(sample, *parameter, unused);
            }
        }
    }
    return cells;
}

void checkTable(const std::shared_ptr<const Flight>& flight, std::size_t rows)
{
    Progress none;
    TableModel model;
    model.setAllDigits(true);
    model.setRows(
        std::make_shared<TableRows>(flight, Selection::all(*flight->profile()), 0.0, none));
    const Cells cells = plainCells(*flight);
    require(cells.size() == rows && model.rowCount() == static_cast<int>(rows), "wrong row count");
    int row = 0;
    for (const auto& [tenth, texts] : cells) {
        require(model.data(model.index(row, 0), Qt::UserRole).toUInt() == tenth * 100,
                "a row's time differs");
        for (const auto& [column, text] : texts) {
            require(model.data(model.index(row, column)).toString() == text, "a cell differs");
        }
        ++row;
    }
}

std::shared_ptr<const Flight> checkedFlight(Suite& suite, std::size_t rows)
{
    auto flight = flightOf(suite.tableRecording(rows), tableMessages());
    inChild([&] {
        checkTable(flight, rows);
        return 0.0;
    });
    return flight;
}

} // namespace

void tableFigures(Suite& suite)
{
    suite.figure("table.open", 0.05,
                 [&] { return ratioOf(openOf(checkedFlight(suite, HourOfRows)), fillCells, 5); });
    suite.figure("table.growth", 11.0, [&] {
        return ratioOf(openOf(checkedFlight(suite, 10 * HourOfRows)),
                       openOf(checkedFlight(suite, HourOfRows)));
    });
}

} // namespace TARN::Bench
