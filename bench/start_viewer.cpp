// The viewer as its own program starts it, until its window has painted.

#include "FirstPaint.h"
#include "app/DialogMain.h"
#include "app/StartUp.h"
#include "base/Revision.h"

int main(int argc, char** argv)
{
    TARN::Revision::printHeader();
    TARN::useDecimalPoint();
    QApplication application(argc, argv);
    TARN::useDecimalPoint();
    const TARN::Bench::EndAfterFirstPaint end(*TARN::startUp(application));
    return QApplication::exec();
}
