#include "app/DialogPreferences.h"

#include "app/Bundle.h"
#include "base/Property.h"
#include "logbook/LogbookError.h"
#include "logbook/LogbookSettings.h"
#include "widgets/QwtComboBox.h"

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QToolButton>

namespace TARN {

namespace {

struct Language
{
    const char* name; ///< in the language itself, whatever language the program speaks
    const char* code;
};

constexpr Language Languages[] = {{"deutsch", "de"}, {"español", "es"},   {"français", "fr"},
                                  {"english", "us"}, {"português", "pt"}, {"česky", "cz"}};

} // namespace

DialogPreferences::DialogPreferences(QWidget* parent)
    : QDialog(parent), mPageList(new QListWidget), mPages(new QStackedWidget),
      mProfilePath(new QLineEdit), mLanguage(new QwtComboBox(this, 0)),
      mAllDigits(new QCheckBox(tr("All recorded digits"))), mLogbookUrl(new QLineEdit),
      mLogbookFault(new QLabel), mAddsOpened(new QCheckBox(tr("Add every flight that I open")))
{
    setWindowTitle(tr("Preferences"));
    mPageList->setMovement(QListView::Static);
    mPageList->setMaximumWidth(150);
    mPageList->setAccessibleName(tr("Pages"));
    mPageList->setToolTip(tr("Pages of the preferences"));
    mPages->addWidget(createGeneralPage());
    connect(mPageList, &QListWidget::currentItemChanged, this, &DialogPreferences::slotChangePage);
    new QListWidgetItem(QIcon(":/icons/pageGeneral.svg"), tr("General"), mPageList);
    mPageList->setCurrentRow(0);
    auto* buttons = new QDialogButtonBox;
    QPushButton* ok = buttons->addButton(tr("Ok"), QDialogButtonBox::AcceptRole);
    ok->setToolTip(tr("Close; every change holds already"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &DialogPreferences::slotClose);
    auto* layout = new QGridLayout(this);
    layout->addWidget(mPageList, 0, 0);
    layout->addWidget(mPages, 0, 1);
    layout->addWidget(buttons, 1, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    resize(640, 300);
    mProfilePath->setFocus();
}

QWidget* DialogPreferences::createGeneralPage()
{
    createProfileField();
    createLanguageBox();
    createDigitsBox();
    createLogbookFields();
    auto* browse = new QToolButton;
    browse->setText(tr("..."));
    browse->setToolTip(tr("Choose a profile file"));
    browse->setAccessibleName(tr("Choose a profile file"));
    connect(browse, &QToolButton::clicked, this, &DialogPreferences::slotProfileSelect);
    auto* profileLabel = new QLabel(tr("Profile File :"));
    profileLabel->setBuddy(mProfilePath);
    auto* languageLabel = new QLabel(tr("Language :"));
    languageLabel->setBuddy(mLanguage);
    auto* logbookLabel = new QLabel(tr("Logbook :"));
    logbookLabel->setBuddy(mLogbookUrl);
    auto* page = new QGroupBox(tr("Application"));
    auto* layout = new QGridLayout(page);
    layout->addWidget(profileLabel, 0, 0);
    layout->addWidget(mProfilePath, 0, 1);
    layout->addWidget(browse, 0, 2);
    layout->addWidget(languageLabel, 1, 0);
    layout->addWidget(mLanguage, 1, 1, Qt::AlignLeft);
    layout->addWidget(mAllDigits, 2, 1, Qt::AlignLeft);
    layout->addWidget(logbookLabel, 3, 0);
    layout->addWidget(mLogbookUrl, 3, 1);
    layout->addWidget(mLogbookFault, 4, 1);
    layout->addWidget(mAddsOpened, 5, 1, Qt::AlignLeft);
    layout->setRowStretch(6, 1);
    layout->setColumnStretch(1, 1);
    return page;
}

void DialogPreferences::createProfileField()
{
    mProfilePath->setObjectName("profilePath");
    mProfilePath->setToolTip(tr("The XML file that says how the samples are decoded"));
    mProfilePath->setAccessibleName(tr("Profile file"));
    connect(mProfilePath, &QLineEdit::textChanged, this, &DialogPreferences::slotProfilePath);
}

void DialogPreferences::createLanguageBox()
{
    mLanguage->setObjectName("language");
    mLanguage->setToolTip(tr("Language of the program from its next start on"));
    mLanguage->setAccessibleName(tr("Language"));
    int number = 0;
    for (const Language& language : Languages) {
        mLanguage->addItem(QString::fromUtf8(language.name), number);
        mLanguageCodes[number++] = language.code;
    }
    connect(mLanguage, qOverload<int>(&QwtComboBox::signalActivated), this,
            &DialogPreferences::slotLanguage);
}

void DialogPreferences::createDigitsBox()
{
    mAllDigits->setObjectName("allDigits");
    mAllDigits->setToolTip(tr("Numbers on the screen with all the digits that were recorded, "
                              "instead of the fewest that read back as the same number; exports "
                              "have them always"));
    connect(mAllDigits, &QCheckBox::toggled, this, &DialogPreferences::slotAllDigits);
}

void DialogPreferences::createLogbookFields()
{
    mLogbookUrl->setObjectName("logbookUrl");
    mLogbookUrl->setPlaceholderText(tr("a file of the program's own"));
    mLogbookUrl->setToolTip(tr("Where flights are kept: empty for this machine alone, "
                               "\"postgresql://user@host/database\" for a team. A password is "
                               "taken from PGPASSWORD or ~/.pgpass and never kept"));
    mLogbookUrl->setAccessibleName(tr("Logbook"));
    mLogbookFault->setWordWrap(true);
    mLogbookFault->hide();
    mAddsOpened->setObjectName("addsOpened");
    mAddsOpened->setToolTip(tr("Keeps statistics and events of every flight in the logbook, not "
                               "its samples"));
    connect(mLogbookUrl, &QLineEdit::editingFinished, this, &DialogPreferences::takeLogbookUrl);
    connect(mAddsOpened, &QCheckBox::toggled, this, [this](bool on) {
        if (!mFilling) {
            LogbookSettings::setAddsOpened(on);
            Q_EMIT signalLogbookChanged(); // it asks no more
        }
    });
}

/// What is wrong is said; the URL before it stays in force.
void DialogPreferences::takeLogbookUrl()
{
    QString fault;
    try {
        const QString before = LogbookSettings::url();
        LogbookSettings::setUrl(mLogbookUrl->text());
        mLogbookUrl->setText(LogbookSettings::url());
        if (LogbookSettings::url() != before) {
            Q_EMIT signalLogbookChanged();
        }
    } catch (const LogbookError& error) {
        fault = QString::fromUtf8(error.what());
    }
    mLogbookFault->setText(fault);
    mLogbookFault->setVisible(!fault.isEmpty());
}

void DialogPreferences::fillDialog()
{
    const QScopedValueRollback filling(mFilling, true);
    const Property* settings = Property::instance();
    mProfilePath->setText(QString::fromStdString(settings->getString("Profile", DefaultProfile)));
    const std::string locale = settings->getString("Locale", "us");
    int current = -1;
    for (const auto& [number, code] : mLanguageCodes) {
        if (code == locale) {
            current = number;
        }
    }
    mLanguage->setData(current);
    mAllDigits->setChecked(settings->getSwitch("AllDigits", false));
    mLogbookUrl->setText(LogbookSettings::url());
    mLogbookFault->hide();
    mAddsOpened->setChecked(LogbookSettings::addsOpened());
}

void DialogPreferences::showEvent(QShowEvent* event)
{
    fillDialog();
    QDialog::showEvent(event);
}

void DialogPreferences::slotClose()
{
    accept();
}

void DialogPreferences::slotChangePage(QListWidgetItem* current, QListWidgetItem* previous)
{
    mPages->setCurrentIndex(mPageList->row(current != nullptr ? current : previous));
}

void DialogPreferences::slotProfilePath(const QString& path)
{
    if (mFilling) {
        return;
    }
    Property::instance()->setString("Profile", path.toStdString());
    Property::instance()->writeXmlFile();
    Q_EMIT signalProfileFileChanged();
}

void DialogPreferences::slotProfileSelect()
{
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Profile"), inBundle("orna.app/Contents/Resources"),
                                     tr("ORNA Profile (*.xml);;All files (*.*)"));
    if (!file.isEmpty()) {
        slotProfilePath(file);
        fillDialog();
    }
}

void DialogPreferences::slotAllDigits(bool on)
{
    if (!mFilling) {
        Property::instance()->setSwitch("AllDigits", on);
        Property::instance()->writeXmlFile();
        Q_EMIT signalAllDigitsChanged(on);
    }
}

void DialogPreferences::slotLanguage(int number)
{
    if (mFilling) {
        return;
    }
    Property::instance()->setString("Locale", mLanguageCodes[number]);
    Property::instance()->writeXmlFile();
    Q_EMIT signalLanguageChanged();
    QMessageBox box(QMessageBox::Information, tr("TARN Info"),
                    tr("Please restart TARN to load new language !"), QMessageBox::NoButton, this);
    box.addButton(tr("Ok"), QMessageBox::AcceptRole);
    box.exec();
}

} // namespace TARN
