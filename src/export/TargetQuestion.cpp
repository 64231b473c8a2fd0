#include "export/TargetQuestion.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtWidgets/QMessageBox>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct TargetTexts
{
    Q_DECLARE_TR_FUNCTIONS(TargetQuestion)
};

/// Why nothing can be written there; empty when nothing speaks against it.
QString obstacle(const QFileInfo& folder, const QString& file)
{
    if (file.isEmpty() || file.contains('/')) {
        return TargetTexts::tr("Type a file name, without a folder.");
    }
    if (!folder.isDir()) {
        return TargetTexts::tr("The folder \"%1\" does not exist. Choose another.")
            .arg(folder.filePath());
    }
    if (!folder.isWritable()) {
        return TargetTexts::tr("The folder \"%1\" may not be written to. Choose another.")
            .arg(folder.filePath());
    }
    return {};
}

} // namespace

bool confirmTarget(QWidget* parent, const std::string& directory, const std::string& fileName)
{
    const QFileInfo folder(QString::fromStdString(directory));
    const QString file = QString::fromStdString(fileName);
    const QString reason = obstacle(folder, file);
    if (!reason.isEmpty()) {
        QMessageBox::warning(parent, TargetTexts::tr("ORNA Warning"), reason);
        return false;
    }
    if (!QFileInfo::exists(folder.filePath() + "/" + file)) {
        return true;
    }
    return QMessageBox::question(
               parent, TargetTexts::tr("ORNA Warning"),
               TargetTexts::tr("\"%1\" exists in this folder. Replace it?").arg(file)) ==
           QMessageBox::Yes;
}

} // namespace TARN
