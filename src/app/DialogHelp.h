#pragma once

#include <QtGui/QTextCursor>
#include <QtWidgets/QDialog>

#include <vector>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QTextBrowser;
class QToolButton;

/// The manual: its sections on the left, its text on the right, and a search through all of it.
class DialogHelp : public QDialog
{
    Q_OBJECT

public:
    /// Shows the manual in a language of the settings ("de"), in English where there is none.
    DialogHelp(QWidget* parent, const QString& language);

private Q_SLOTS:
    void slotClose();
    void slotSearch(const QString& text);
    void slotNext();
    void slotPrevious();
    void slotSection(int row);

private:
    void createText(const QString& language);
    void listSections();
    QHBoxLayout* createSearch();
    QToolButton* createStep(const char* icon, const QString& text, const QKeySequence& key,
                            void (DialogHelp::*slot)());
    void showFound();
    void goToFound(int step);
    void scrollTo(const QTextCursor& place);

    QTextBrowser* mText;
    QListWidget* mSections; ///< rows in document order, their data the heading's position
    QLineEdit* mSearch;
    QLabel* mCount;
    std::vector<QTextCursor> mFound; ///< places of the text searched for, in document order
    int mCurrent = -1;               ///< the one shown, -1 for none
};
