#include "display/TableModel.h"

#include "base/CellColor.h"
#include "base/ClockTime.h"

namespace TARN {

TableModel::TableModel(QObject* parent) : QAbstractTableModel(parent) {}

void TableModel::updateProfile(const Profile& profile)
{
    beginResetModel();
    mRows.clear();
    mParameters.clear();
    mDecoders.clear();
    mProfile = profile.data();
    for (const ProfileParameter* parameter : profile.selectedParameters()) {
        mParameters.push_back(*parameter);
        mDecoders.emplace_back(mProfile, *parameter);
    }
    endResetModel();
}

void TableModel::updateRecord(const Record* record)
{
    beginResetModel();
    mRows.clear();
    if (record != nullptr) {
        std::vector<const ProfileParameter*> parameters;
        for (const ProfileParameter& parameter : mParameters) {
            parameters.push_back(&parameter);
        }
        mRows.build(*record, parameters);
    }
    endResetModel();
}

int TableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : truncatedTo<int>(static_cast<double>(mRows.rowCount()));
}

int TableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(mParameters.size()) + 1;
}

QVariant TableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    return index.column() == 0 ? timeData(index.row(), role)
                               : valueData(index.row(), index.column(), role);
}

QVariant TableModel::timeData(int row, int role) const
{
    const std::int64_t milliseconds = std::int64_t(mRows.key(static_cast<std::size_t>(row))) * 100;
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

QVariant TableModel::valueData(int row, int column, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::BackgroundRole && role != Qt::ForegroundRole) {
        return {};
    }
    const auto parameter = static_cast<std::size_t>(column - 1);
    const RecordEntry* entry = mRows.sample(static_cast<std::size_t>(row), parameter);
    if (entry == nullptr) {
        return {};
    }
    std::string text;
    const QColor color = mDecoders[parameter].appendDisplay(*entry, text);
    if (role == Qt::DisplayRole) {
        return QString::fromStdString(text);
    }
    return role == Qt::BackgroundRole ? backgroundOf(color) : foregroundOn(color);
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= columnCount()) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return section == 0 ? tr("Time") : mParameters[static_cast<std::size_t>(section - 1)].title();
}

} // namespace TARN
