#include "Suite.h"
#include "base/ClockTime.h"
#include "display/TableModel.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QTableWidget>

#include <algorithm>
#include <memory>

namespace TARN::Bench {

namespace {

constexpr std::size_t HourOfRows = 36'000;
constexpr int VisibleRows = 50;

/// Selects one parameter for each message of the table recordings.
void selectParameters(Profile& profile)
{
    profile.clear();
    for (const Message& message : tableMessages()) {
        ProfileParameter parameter;
        parameter.name = QString("Value %1").arg(message.id);
        parameter.id = static_cast<int>(message.id);
        parameter.dataType = message.typeCode;
        parameter.startByte = 4;
        parameter.selected = true;
        profile.data().devices[1].parameters[parameter.uid] = parameter;
    }
}

std::unique_ptr<Record> loaded(const std::string& path)
{
    auto record = std::make_unique<Record>();
    require(record->readRecordData({QString::fromStdString(path)}), "can't load " + path);
    return record;
}

/// Makes the table of a recording ready and shows its first rows.
Measurement openOf(const Record& record)
{
    return [&record] {
        TableModel model;
        model.updateProfile(*Profile::instance());
        return secondsOf([&] {
            model.updateRecord(&record);
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
Cells plainCells(const Record& record)
{
    Cells cells;
    int column = 0;
    for (const ProfileParameter* parameter : Profile::instance()->selectedParameters()) {
        ++column;
        const auto id = static_cast<unsigned>(parameter->id);
        for (std::size_t k = 0; k < record.recordData().count(); ++k) {
            const RecordEntry& sample = record.recordData().inFileOrder(k);
            if (sample.id == id) {
                QColor unused;
                cells[timeKeyOf(sample.time())][column] =
                    Profile::instance()->getDataString(sample, *parameter, unused);
            }
        }
    }
    return cells;
}

void checkTable(const Record& record, std::size_t rows)
{
    TableModel model;
    model.updateProfile(*Profile::instance());
    model.updateRecord(&record);
    const Cells cells = plainCells(record);
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

std::unique_ptr<Record> checkedRecord(Suite& suite, std::size_t rows)
{
    auto record = loaded(suite.tableRecording(rows));
    inChild([&] {
        checkTable(*record, rows);
        return 0.0;
    });
    return record;
}

} // namespace

void tableFigures(Suite& suite)
{
    selectParameters(*Profile::instance());
    suite.figure("table.open", atMost(0.05), [&] {
        const auto record = checkedRecord(suite, HourOfRows);
        return ratioOf(openOf(*record), fillCells, 5);
    });
    suite.figure("table.growth", atMost(11.0), [&] {
        const auto hour = checkedRecord(suite, HourOfRows);
        const auto tenHours = checkedRecord(suite, 10 * HourOfRows);
        return ratioOf(openOf(*tenHours), openOf(*hour));
    });
}

} // namespace TARN::Bench
