#include "card/DialogRecordDetails.h"

#include "flight/Flight.h"

#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace TARN {

DialogRecordDetails::DialogRecordDetails(QWidget* parent) : QDialog(parent), mTree(new QTreeWidget)
{
    setWindowTitle(tr("Recording Details"));
    setWindowIcon(QIcon(":/icons/details.svg"));
    mTree->setObjectName("recordDetails");
    mTree->setAccessibleName(tr("Recording details"));
    mTree->setHeaderLabels({tr("Field"), tr("Value")});
    mTree->setSelectionMode(QAbstractItemView::ExtendedSelection);
    mTree->setAlternatingRowColors(true);
    mTree->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    auto* copyAction = new QAction(tr("Copy"), this);
    copyAction->setShortcut(QKeySequence::Copy);
    connect(copyAction, &QAction::triggered, this, &DialogRecordDetails::copy);
    addAction(copyAction);
    auto* buttons = new QDialogButtonBox;
    QPushButton* close = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    close->setToolTip(tr("Close this window"));
    close->setDefault(true);
    auto* copyButton = buttons->addButton(tr("Copy"), QDialogButtonBox::ActionRole);
    copyButton->setToolTip(tr("Copy the selected lines, or all when none is selected"));
    connect(copyButton, &QPushButton::clicked, this, &DialogRecordDetails::copy);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(mTree);
    layout->addWidget(buttons);
    resize(640, 480);
}

bool DialogRecordDetails::showAll(const Flight* flight, const CardInfo& card)
{
    QList<RecordSection> sections;
    if (flight != nullptr) {
        const RecordIntegrity& integrity = flight->record()->integrity();
        sections += recordSection(integrity, flight->positionQuality().remarks()
                                                 << flight->unknown().remark());
        for (const FileIntegrity& file : integrity.files) {
            sections += recordSection(file);
        }
    } else {
        for (const auto& [path, info] : card.records) {
            sections += recordSection(info);
        }
    }
    if (!sections.isEmpty()) {
        showReport(sections);
    }
    return !sections.isEmpty();
}

bool DialogRecordDetails::showFile(const QString& path, const Flight* flight, const CardInfo& card)
{
    if (flight != nullptr) {
        for (const FileIntegrity& file : flight->record()->integrity().files) {
            if (file.info.fileName == path) {
                showReport({recordSection(file)});
                return true;
            }
        }
    }
    const auto listed = card.records.find(path);
    if (listed != card.records.end()) {
        showReport({recordSection(listed->second)});
        return true;
    }
    return showAll(flight, card);
}

void DialogRecordDetails::showReport(const QList<RecordSection>& sections)
{
    mTree->clear();
    for (const RecordSection& section : sections) {
        auto* title = new QTreeWidgetItem(mTree, {section.title});
        title->setFirstColumnSpanned(true);
        for (const RecordField& field : section.fields) {
            auto* line = new QTreeWidgetItem(title, {field.label, field.value});
            line->setToolTip(1, field.value);
        }
    }
    mTree->expandAll();
    show();
    raise();
    activateWindow();
}

void DialogRecordDetails::copy()
{
    QStringList lines;
    const bool all = mTree->selectedItems().isEmpty();
    for (QTreeWidgetItemIterator item(mTree); *item != nullptr; ++item) {
        if (all || (*item)->isSelected()) {
            const bool isTitle = (*item)->parent() == nullptr;
            lines += isTitle ? (*item)->text(0) : (*item)->text(0) + ": " + (*item)->text(1);
        }
    }
    QGuiApplication::clipboard()->setText(lines.join('\n'));
}

} // namespace TARN
