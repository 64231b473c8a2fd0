#include "app/StartUp.h"
#include "base/Revision.h"

#include <QtWidgets/QApplication>

int main(int argc, char** argv)
{
    TARN::Revision::printHeader();
    TARN::useDecimalPoint();
    // Never deleted: widgets and styles may go on using it until the process ends.
    auto* application = new QApplication(argc, argv);
    TARN::useDecimalPoint(); // making the application has set the user's locale
    TARN::startUp(*application);
    return QApplication::exec();
}
