#include "app/DialogHelp.h"

#include <QtCore/QFile>
#include <QtGui/QAction>
#include <QtGui/QIcon>
#include <QtGui/QTextBlock>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace {

QString manual(const QString& language)
{
    for (const QString& name : {language, QString("us")}) {
        QFile file(QString(":/help/manual_%1.md").arg(name));
        if (file.open(QIODevice::ReadOnly)) {
            return QString::fromUtf8(file.readAll());
        }
    }
    return {};
}

} // namespace

DialogHelp::DialogHelp(QWidget* parent, const QString& language)
    : QDialog(parent), mText(new QTextBrowser), mSections(new QListWidget), mSearch(new QLineEdit),
      mCount(new QLabel)
{
    setWindowTitle(tr("ORNA Help"));
    createText(language);
    listSections();
    auto* splitter = new QSplitter;
    splitter->addWidget(mSections);
    splitter->addWidget(mText);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({230, 600});
    splitter->setChildrenCollapsible(false);
    auto* buttons = new QDialogButtonBox;
    QPushButton* close = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    close->setToolTip(tr("Close this window"));
    close->setAutoDefault(false); // Enter belongs to the search
    connect(close, &QPushButton::clicked, this, &DialogHelp::slotClose);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(createSearch());
    layout->addWidget(splitter, 1);
    layout->addWidget(buttons);
    resize(980, 700); // the pictures have room
    mSearch->setFocus();
}

void DialogHelp::createText(const QString& language)
{
    mText->setObjectName("manual");
    mText->setAccessibleName(tr("Manual"));
    mText->setOpenExternalLinks(true);
    mText->document()->setDocumentMargin(14);
    mText->setSearchPaths({":/help"}); // of the pictures
    mText->setMarkdown(manual(language));
    // What was found stands out although the focus is in the search field.
    QPalette palette = mText->palette();
    palette.setColor(QPalette::Inactive, QPalette::Highlight, palette.color(QPalette::Highlight));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText,
                     palette.color(QPalette::HighlightedText));
    mText->setPalette(palette);
}

void DialogHelp::listSections()
{
    constexpr int DeepestLevel = 3;
    mSections->setObjectName("sections");
    mSections->setAccessibleName(tr("Sections of the manual"));
    mSections->setToolTip(tr("Sections of the manual"));
    for (QTextBlock block = mText->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level > 0 && level <= DeepestLevel) {
            const QString indent(3 * (level - 1), ' ');
            auto* item = new QListWidgetItem(indent + block.text(), mSections);
            item->setData(Qt::UserRole, block.position());
        }
    }
    connect(mSections, &QListWidget::currentRowChanged, this, &DialogHelp::slotSection);
    connect(mSections, &QListWidget::itemClicked, this,
            [this] { slotSection(mSections->currentRow()); });
}

QHBoxLayout* DialogHelp::createSearch()
{
    mSearch->setObjectName("search");
    mSearch->setPlaceholderText(tr("Search the manual"));
    mSearch->setToolTip(tr("Words to find; Enter goes to the next place"));
    mSearch->setAccessibleName(tr("Search the manual"));
    mSearch->setClearButtonEnabled(true);
    mSearch->addAction(QIcon(":/icons/search.svg"), QLineEdit::LeadingPosition);
    connect(mSearch, &QLineEdit::textChanged, this, &DialogHelp::slotSearch);
    connect(mSearch, &QLineEdit::returnPressed, this, &DialogHelp::slotNext);
    mCount->setMinimumWidth(fontMetrics().horizontalAdvance("999 / 999"));
    auto* find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, mSearch, [this] {
        mSearch->setFocus();
        mSearch->selectAll();
    });
    addAction(find);
    auto* layout = new QHBoxLayout;
    layout->addWidget(mSearch, 1);
    layout->addWidget(mCount);
    layout->addWidget(createStep("eventPrevious", tr("Previous place"), QKeySequence("Shift+F3"),
                                 &DialogHelp::slotPrevious));
    layout->addWidget(
        createStep("eventNext", tr("Next place"), QKeySequence("F3"), &DialogHelp::slotNext));
    return layout;
}

QToolButton* DialogHelp::createStep(const char* icon, const QString& text, const QKeySequence& key,
                                    void (DialogHelp::*slot)())
{
    auto* button = new QToolButton;
    button->setIcon(QIcon(QString(":/icons/%1.svg").arg(icon)));
    button->setToolTip(QString("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText)));
    button->setAccessibleName(text);
    button->setShortcut(key);
    connect(button, &QToolButton::clicked, this, slot);
    return button;
}

void DialogHelp::slotClose()
{
    hide();
}

void DialogHelp::slotSection(int row)
{
    if (row >= 0) {
        QTextCursor heading(mText->document());
        heading.setPosition(mSections->item(row)->data(Qt::UserRole).toInt());
        scrollTo(heading);
    }
}

/// Finds every place of the text and keeps the sections that hold one.
void DialogHelp::slotSearch(const QString& text)
{
    mFound.clear();
    mCurrent = -1;
    QTextCursor place(mText->document());
    while (!text.isEmpty() && !(place = mText->document()->find(text, place)).isNull()) {
        mFound.push_back(place);
    }
    for (int row = 0; row < mSections->count(); ++row) {
        const auto position = [this](int i) {
            return i < mSections->count() ? mSections->item(i)->data(Qt::UserRole).toInt()
                                          : mText->document()->characterCount();
        };
        const bool holdsOne = std::ranges::any_of(mFound, [&](const QTextCursor& found) {
            return found.position() >= position(row) && found.position() < position(row + 1);
        });
        mSections->item(row)->setHidden(!text.isEmpty() && !holdsOne);
    }
    goToFound(1);
}

void DialogHelp::slotNext()
{
    goToFound(1);
}

void DialogHelp::slotPrevious()
{
    goToFound(-1);
}

/// Goes on by so many places, round at the ends.
void DialogHelp::goToFound(int step)
{
    const int count = static_cast<int>(mFound.size());
    if (count > 0) {
        mCurrent = mCurrent < 0 && step < 0 ? count - 1 : (mCurrent + step + count) % count;
        scrollTo(mFound[static_cast<std::size_t>(mCurrent)]);
    }
    showFound();
}

/// Marks every place found, the current one by the selection, and says how many there are.
void DialogHelp::showFound()
{
    QList<QTextEdit::ExtraSelection> marks;
    for (const QTextCursor& found : mFound) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = found;
        mark.format.setBackground(QColor(255, 214, 90));
        mark.format.setForeground(Qt::black);
        marks.append(mark);
    }
    mText->setExtraSelections(marks);
    mCount->setText(mSearch->text().isEmpty()
                        ? QString()
                        : QString("%1 / %2").arg(mCurrent + 1).arg(mFound.size()));
}

/// Shows a place at the top of the text and selects it.
void DialogHelp::scrollTo(const QTextCursor& place)
{
    constexpr int Above = 8; // pixels that stay free above the place
    mText->setTextCursor(place);
    QTextCursor start(place);
    start.setPosition(place.selectionStart());
    QScrollBar* bar = mText->verticalScrollBar();
    bar->setValue(bar->value() + mText->cursorRect(start).top() - Above);
}
