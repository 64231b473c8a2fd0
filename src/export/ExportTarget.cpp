#include "export/ExportTarget.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ExportTarget)
};

/// Why nothing can be written there; empty when nothing speaks against it.
QString obstacle(const QFileInfo& folder, const QString& file)
{
    if (file.isEmpty() || file.contains('/')) {
        return Texts::tr("Type a file name, without a folder.");
    }
    if (!folder.isDir()) {
        return Texts::tr("The folder \"%1\" does not exist. Choose another.")
            .arg(folder.filePath());
    }
    if (!folder.isWritable()) {
        return Texts::tr("The folder \"%1\" may not be written to. Choose another.")
            .arg(folder.filePath());
    }
    return {};
}

} // namespace

DirectoryEdit::DirectoryEdit(const QString& title, QWidget* parent)
    : QWidget(parent), mTitle(title), mEdit(new QLineEdit)
{
    auto* browse = new QPushButton(QIcon(":/icons/projectOpen.svg"), tr("Browse..."));
    browse->setToolTip(title);
    mEdit->setToolTip(tr("Folder of the file"));
    mEdit->setAccessibleName(title);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mEdit);
    layout->addWidget(browse);
    setFocusProxy(mEdit);
    connect(mEdit, &QLineEdit::textEdited, this, &DirectoryEdit::signalPath);
    connect(browse, &QPushButton::clicked, this, &DirectoryEdit::slotPathSelect);
}

void DirectoryEdit::setPath(const std::string& path)
{
    mEdit->setText(QString::fromStdString(path));
}

void DirectoryEdit::slotPathSelect()
{
    const QString path = QFileDialog::getExistingDirectory(this, mTitle, mEdit->text());
    if (!path.isEmpty()) {
        mEdit->setText(path);
        Q_EMIT signalPath(path);
    }
}

bool confirmTarget(QWidget* parent, const std::string& directory, const std::string& fileName)
{
    const QFileInfo folder(QString::fromStdString(directory));
    const QString file = QString::fromStdString(fileName);
    const QString reason = obstacle(folder, file);
    if (!reason.isEmpty()) {
        QMessageBox::warning(parent, Texts::tr("ORNA Warning"), reason);
        return false;
    }
    if (!QFileInfo::exists(folder.filePath() + "/" + file)) {
        return true;
    }
    return QMessageBox::question(
               parent, Texts::tr("ORNA Warning"),
               Texts::tr("\"%1\" exists in this folder. Replace it?").arg(file)) ==
           QMessageBox::Yes;
}

} // namespace TARN
