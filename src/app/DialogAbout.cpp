#include "app/DialogAbout.h"

#include "base/Revision.h"

#include <QtCore/QFile>
#include <QtGui/QIcon>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTextBrowser>

using TARN::Revision;

namespace {

QString resourceText(const char* path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QTextBrowser* createText(const QString& name)
{
    auto* text = new QTextBrowser;
    text->setOpenExternalLinks(true);
    text->setAccessibleName(name);
    text->setToolTip(name);
    return text;
}

} // namespace

DialogAbout::DialogAbout(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("About ORNA"));
    auto* tabs = new QTabWidget;
    QTextBrowser* licence = createText(tr("Licence"));
    licence->setPlainText(resourceText(":/about/LICENSE"));
    tabs->addTab(licence, licence->accessibleName());
    QTextBrowser* notices = createText(tr("Third-party notices"));
    notices->setMarkdown(resourceText(":/about/notices.md"));
    tabs->addTab(notices, notices->accessibleName());
    auto* buttons = new QDialogButtonBox;
    QPushButton* close = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    close->setToolTip(tr("Close this window"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &DialogAbout::slotClose);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(createTitle());
    layout->addWidget(tabs, 1);
    layout->addWidget(buttons);
    resize(640, 520);
    close->setFocus();
}

QLayout* DialogAbout::createTitle()
{
    constexpr int IconSize = 64; // logical pixels
    auto* icon = new QLabel;
    icon->setPixmap(
        QIcon(":/icons/orna.svg").pixmap(QSize(IconSize, IconSize), devicePixelRatio()));
    auto* name = new QLabel(QString::fromStdString(Revision::getName()));
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    large.setBold(true);
    name->setFont(large);
    auto* subtitle = new QLabel(tr("Reads engine and flight recordings of an aircraft's SD card"));
    subtitle->setWordWrap(true);
    auto* version = new QLabel(tr("Version %1, built %2")
                                   .arg(QString::fromStdString(Revision::getRevisionNumber()),
                                        QString::fromStdString(Revision::compileTime())));
    version->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(name);
    texts->addWidget(subtitle);
    texts->addWidget(version);
    auto* layout = new QHBoxLayout;
    layout->setSpacing(16);
    layout->addWidget(icon);
    layout->addLayout(texts, 1);
    return layout;
}

void DialogAbout::slotClose()
{
    hide();
}
