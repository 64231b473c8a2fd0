#include "export/DirectoryEdit.h"

#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace TARN {

DirectoryEdit::DirectoryEdit(const QString& title, QWidget* parent)
    : QWidget(parent), mTitle(title), mEdit(new QLineEdit)
{
    auto* browse = new QPushButton(QIcon(":/icons/projectOpen.svg"), tr("Browse..."));
    browse->setToolTip(title);
    browse->setAutoDefault(false); // Enter in a field goes on
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

} // namespace TARN
