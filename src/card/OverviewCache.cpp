#include "card/OverviewCache.h"

#include "base/OutputFile.h"
#include "base/Revision.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

constexpr std::size_t MostEntries = 5000;
constexpr qint64 LargestFile = 16 << 20;
constexpr qint64 Overview::*const Counts[] = {
    &Overview::samples, &Overview::watched, &Overview::limits, &Overview::warnings,
    &Overview::lamps,   &Overview::faults,  &Overview::remarks};

QJsonArray arrayOf(const Overview& overview)
{
    QJsonArray array = {overview.duration};
    for (const auto count : Counts) {
        array.append(overview.*count);
    }
    return array;
}

/// Nothing for what no overview is written as.
std::optional<Overview> overviewOf(const QJsonArray& array)
{
    Overview overview;
    if (array.size() != 1 + qsizetype(std::size(Counts)) || !array[0].isDouble() ||
        !std::isfinite(array[0].toDouble())) {
        return std::nullopt;
    }
    overview.duration = array[0].toDouble();
    qsizetype i = 1;
    for (const auto count : Counts) {
        overview.*count = array[i++].toInteger(-1);
        if (overview.*count < 0) {
            return std::nullopt;
        }
    }
    return overview;
}

} // namespace

OverviewCache::OverviewCache(const QString& file) : mFile(file)
{
    QFile in(file);
    if (!QFileInfo(file).isFile() || in.size() > LargestFile || !in.open(QIODevice::ReadOnly)) {
        return;
    }
    const QJsonObject all = QJsonDocument::fromJson(in.read(LargestFile)).object();
    for (auto item = all.begin(); item != all.end(); ++item) {
        if (const auto overview = overviewOf(item.value().toArray())) {
            mEntries[item.key()] = {*overview, false};
        }
    }
}

QString OverviewCache::keyOf(const std::list<QString>& files, const Profile& profile)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArray::fromStdString(Revision::getRevisionString())); // and its rules
    hash.addData(profile.fileHash());
    for (const QString& file : files) {
        const QFileInfo info(file);
        hash.addData(QString("%1\n%2\n%3\n")
                         .arg(info.absoluteFilePath())
                         .arg(info.size())
                         .arg(info.lastModified().toMSecsSinceEpoch())
                         .toUtf8());
        const QFileInfo offset(info.absolutePath() + "/Offset.xml"); // moves what is found
        hash.addData(QString::number(offset.lastModified().toMSecsSinceEpoch()).toUtf8());
    }
    return QString::fromLatin1(hash.result().toHex());
}

std::optional<Overview> OverviewCache::find(const QString& key)
{
    const std::lock_guard guard(mGuard);
    const auto found = mEntries.find(key);
    if (found == mEntries.end()) {
        return std::nullopt;
    }
    found->second.isUsed = true;
    return found->second.overview;
}

void OverviewCache::insert(const QString& key, const Overview& overview)
{
    const std::lock_guard guard(mGuard);
    mEntries[key] = {overview, true};
    mIsNew = true;
}

void OverviewCache::save()
{
    const std::lock_guard guard(mGuard);
    if (!mIsNew || mFile.isEmpty()) {
        return;
    }
    if (mEntries.size() > MostEntries) {
        std::erase_if(mEntries, [](const auto& item) { return !item.second.isUsed; });
    }
    QJsonObject all;
    for (const auto& [key, entry] : mEntries) {
        all[key] = arrayOf(entry.overview);
    }
    OutputFile out(mFile);
    if (out.open()) {
        out.write(QJsonDocument(all).toJson(QJsonDocument::Compact).toStdString());
        mIsNew = !out.commit();
    }
}

} // namespace TARN
