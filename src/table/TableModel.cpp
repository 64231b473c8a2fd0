#include "table/TableModel.h"

#include "base/CellColor.h"
#include "base/ClockTime.h"

namespace TARN {

namespace {

QString textOf(const Decoder& decoder, const RecordEntry& entry, bool allDigits)
{
    std::string text;
    if (allDigits) {
        decoder.appendText(entry, text);
    } else {
        decoder.appendShort(entry, text);
    }
    return QString::fromStdString(text);
}

} // namespace

TableModel::TableModel(QObject* parent)
    : QAbstractTableModel(parent),
      mRows(std::make_shared<TableRows>(std::make_shared<Profile>(), Selection()))
{}

void TableModel::setRows(std::shared_ptr<const TableRows> rows)
{
    beginResetModel();
    mRows = std::move(rows);
    endResetModel();
}

void TableModel::setReference(std::shared_ptr<const ReferenceColumns> columns, double shift,
                              bool inColumns)
{
    beginResetModel();
    mReference = std::move(columns);
    mShift = shift;
    mInColumns = inColumns;
    endResetModel();
}

void TableModel::setAllDigits(bool on)
{
    beginResetModel();
    mAllDigits = on;
    endResetModel();
}

int TableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : truncatedTo<int>(static_cast<double>(mRows->rowCount()));
}

int TableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mRows->columnCount()) * columnsEach() + 1;
}

QVariant TableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const int column = index.column();
    return column == 0             ? timeData(index.row(), role)
           : isOfReference(column) ? referenceData(index.row(), placeOf(column), role)
                                   : valueData(index.row(), placeOf(column), role);
}

QVariant TableModel::timeData(int row, int role) const
{
    const std::int64_t milliseconds = std::int64_t(mRows->key(static_cast<std::size_t>(row))) * 100;
    switch (role) {
    case Qt::DisplayRole:
        return clockTime(milliseconds).toString("hh:mm:ss.zzz");
    case Qt::UserRole:
        return static_cast<qlonglong>(milliseconds);
    case Qt::BackgroundRole:
        return backgroundOf(TimeCellColor);
    case Qt::ForegroundRole:
        return foregroundOn(TimeCellColor);
    default:
        return {};
    }
}

/// At the moment of the sample that stands in the row, where none does at the row's tenth.
QString TableModel::referenceText(int row, std::size_t place) const
{
    constexpr double Tenth = 0.1; // s
    const auto number = static_cast<std::size_t>(row);
    const RecordEntry* entry = mRows->sample(number, place);
    const double time =
        entry != nullptr ? mRows->timeOf(*entry, place) : mRows->key(number) * Tenth;
    return mReference->textAt(place, time - mShift, mAllDigits);
}

QVariant TableModel::referenceData(int row, std::size_t place, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return referenceText(row, place);
    case Qt::ForegroundRole:
        return QColor(Qt::gray);
    case Qt::TextAlignmentRole:
        return int(Qt::AlignRight | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant TableModel::valueData(int row, std::size_t place, int role) const
{
    const bool isShown = role == Qt::DisplayRole || role == Qt::BackgroundRole ||
                         role == Qt::ForegroundRole || role == Qt::ToolTipRole;
    const Decoder& decoder = mRows->decoder(place);
    if (role == Qt::TextAlignmentRole && decoder.isNumeric()) {
        return int(Qt::AlignRight | Qt::AlignVCenter);
    }
    const RecordEntry* entry =
        isShown ? mRows->sample(static_cast<std::size_t>(row), place) : nullptr;
    if (entry == nullptr) {
        return {};
    }
    if (role == Qt::DisplayRole) {
        return textOf(decoder, *entry, mAllDigits);
    }
    if (role == Qt::ToolTipRole) {
        QString tip = decoder.isSingle() ? textOf(decoder, *entry, true) : QString();
        if (mReference != nullptr) {
            const QString other = referenceText(row, place);
            tip = (decoder.isSingle() ? tip : textOf(decoder, *entry, true)) + "\n" +
                  tr("Reference: %1").arg(other.isEmpty() ? "---" : other);
        }
        return tip.isEmpty() ? QVariant() : tip;
    }
    const QColor color = decoder.cellColor(*entry);
    return role == Qt::BackgroundRole ? backgroundOf(color) : foregroundOn(color);
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle =
        orientation == Qt::Horizontal && (role == Qt::DisplayRole || role == Qt::ToolTipRole);
    if (!isTitle || section < 0 || section >= columnCount()) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    if (section == 0) {
        return tr("Time");
    }
    const QString title = mRows->parameter(placeOf(section)).title();
    return isOfReference(section) ? tr("ref. %1").arg(title) : title;
}

} // namespace TARN
