#include "Suite.h"

#include <QtCore/QByteArray>

int main(int argc, char** argv)
{
    using namespace TARN;
    Bench::Options options;
    if (const auto status = Bench::parseOptions(options, argc, argv)) {
        return *status;
    }
    qputenv("QT_QPA_PLATFORM", QByteArray("offscreen")); // rivals with windows need no display
    return Bench::measure(options,
                          {Bench::loadFigures, Bench::decodeFigures, Bench::tableFigures,
                           Bench::graphFigures, Bench::statisticsFigures, Bench::reportFigures,
                           Bench::exportFigures, Bench::logbookFigures, Bench::peerFigures});
}
