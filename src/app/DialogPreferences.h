#pragma once

#include <QtWidgets/QDialog>

#include <map>
#include <string>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QStackedWidget;

namespace TARN {

class QwtComboBox;

/// The settings of the program. Every change holds and is written at once; the language takes
/// effect at the next start.
class DialogPreferences : public QDialog
{
    Q_OBJECT

public:
    explicit DialogPreferences(QWidget* parent);

    /// Shows the settings as they are now.
    void fillDialog();

Q_SIGNALS:
    void signalProfileFileChanged();
    void signalLanguageChanged();
    void signalAllDigitsChanged(bool on);
    /// Where flights are kept, or which.
    void signalLogbookChanged();

protected:
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void slotClose();
    void slotChangePage(QListWidgetItem* current, QListWidgetItem* previous);
    void slotProfilePath(const QString& path);
    void slotProfileSelect();
    void slotLanguage(int number);
    void slotAllDigits(bool on);

private:
    QWidget* createGeneralPage();
    void createProfileField();
    void createLanguageBox();
    void createDigitsBox();
    void createLogbookFields();
    void takeLogbookUrl();

    bool mFilling = false; ///< controls follow the settings, not the user
    QListWidget* mPageList;
    QStackedWidget* mPages;
    QLineEdit* mProfilePath;
    QwtComboBox* mLanguage;
    QCheckBox* mAllDigits;
    QLineEdit* mLogbookUrl;
    QLabel* mLogbookFault; ///< what is wrong with the URL
    QCheckBox* mAddsOpened;
    std::map<int, std::string> mLanguageCodes; ///< by the data of the items in the box
};

} // namespace TARN
