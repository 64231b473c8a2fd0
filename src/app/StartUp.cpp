#include "app/StartUp.h"

#include "app/Bundle.h"
#include "app/DialogMain.h"
#include "app/DialogSplash.h"
#include "base/Diagnostics.h"
#include "base/Directory.h"
#include "base/Property.h"
#include "base/Revision.h"
#include "graph/GraphContext.h"
#include "widgets/ClearStyle.h"
#include "widgets/Kernel.h"

#include <QtCore/QLocale>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <clocale>
#include <cstdlib>

namespace TARN {

namespace {

/// Where the program keeps its files; both empty without a home directory, else ending in "/".
struct StartPaths
{
    std::string data;
    std::string userData;
};

void createMissing(const std::string& path, const char* message)
{
    if (!Directory::exists(path)) {
        Directory::createDirectoryRecursive(path);
        diagnose("%s created <%s>\n", message, path.c_str());
    }
}

void install(QTranslator& translator, const char* prefix, const char* label,
             const std::string& language)
{
    const bool loaded = translator.load(QString(prefix) + QString::fromStdString(language),
                                        inBundle(BundleResources));
    diagnose("Translation %s <%s> %d\n", label, language.c_str(), loaded ? 1 : 0);
    if (loaded) {
        QCoreApplication::installTranslator(&translator);
    }
}

StartPaths findPaths()
{
    const char* home = std::getenv("HOME");
    if (home == nullptr) {
        return {};
    }
    diagnose("HOME: <%s>\n", home);
    return {std::string(home) + "/Library/ORNA/", std::string(home) + "/ORNA/"};
}

void createPaths(const StartPaths& paths, const std::string& resources)
{
    createMissing(paths.data, "DataPath");
    createMissing(paths.userData, "UserDataPath");
    diagnose("Data Path      : <%s>\n", paths.data.c_str());
    diagnose("User Data Path : <%s>\n", paths.userData.c_str());
    diagnose("Resource Path  : <%s>\n", resources.c_str());
}

void loadSettings(const StartPaths& paths)
{
    Property::instance()->setConfigFile(paths.userData + "ORNA.ini");
    Property::instance()->readXmlFile();
}

/// Installs the toolkit's and our own texts in the language of the settings, where there are
/// any; the built-in texts are English.
void installTranslators()
{
    static QTranslator qtTranslatorQt;
    static QTranslator qtTranslatorIos;
    const std::string language = Property::instance()->getString("Locale", "us");
    install(qtTranslatorQt, "qt_", "QT", language);
    install(qtTranslatorIos, "tarn_", "IOS", language);
}

} // namespace

void useDecimalPoint()
{
    std::setlocale(LC_NUMERIC, "C");
    QLocale::setDefault(QLocale::C);
}

DialogMain* startUp(QApplication& application)
{
    DialogSplash* splash = DialogSplash::instance();
    // Not before a first window has been shown: that may start helper processes, and a process is
    // best copied while it has one thread.
    loadGraphics();
    splash->addEntry("Starting up ORNA...");
    splash->addEntry(
        QString("Version %1").arg(QString::fromStdString(Revision::getRevisionString())));
    Kernel::instance()->application = &application;
    if (QApplication::style()->name() == "fusion") { // a desktop's own style is left alone
        QApplication::setStyle(new ClearStyle);
    }
    const QString resources =
        QCoreApplication::applicationDirPath().section('/', 0, -2) + "/Resources/";
    const StartPaths paths = findPaths();
    createPaths(paths, resources.toStdString());
    loadSettings(paths);
    installTranslators();
    splash->addEntry(QCoreApplication::translate("StartUp", "Creating Dialogs ..."));
    auto* mainWindow = new DialogMain;
    Kernel::instance()->mainWindow = mainWindow;
    application.installEventFilter(mainWindow);
    mainWindow->show();
    splash->finish();
    return mainWindow;
}

} // namespace TARN
