#include "display/TableModel.h"

#include "base/ClockTime.h"

#include <QtGui/QBrush>

namespace TARN {

namespace {

const QColor TimeBackground(230, 230, 230);

/// Black or white, whichever stands out from the cell.
QColor textColorOn(const QColor& background)
{
    constexpr int MidGrey = 128;
    return qGray(background.rgb()) < MidGrey ? Qt::white : Qt::black;
}

} // namespace

TableModel::TableModel(QObject* parent) : QAbstractTableModel(parent) {}

void TableModel::updateProfile(const Profile& profile)
{
    beginResetModel();
    mRows.clear();
    mParameters.clear();
    mDecoders.clear();
    for (const ProfileParameter* parameter : profile.selectedParameters()) {
        mParameters.push_back(*parameter);
        mDecoders.emplace_back(profile.data(), *parameter);
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
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
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
        return QBrush(TimeBackground);
    case Qt::ForegroundRole:
        return QBrush(Qt::black);
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
    // A normal value takes the table's own colours, which are white in a light theme only.
    if (!color.isValid() || color == QColor(Qt::white)) {
        return {};
    }
    return QBrush(role == Qt::BackgroundRole ? color : textColorOn(color));
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= columnCount()) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return section == 0 ? tr("Time") : mParameters[static_cast<std::size_t>(section - 1)].title();
}

} // namespace TARN
