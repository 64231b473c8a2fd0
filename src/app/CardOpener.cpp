#include "app/CardOpener.h"

namespace TARN {

CardOpener::CardOpener(QObject* parent) : QObject(parent) {}

void CardOpener::open(const QString& folder)
{
    mJob.start([folder](Progress& progress) { return readCard(folder, progress); },
               [this](const CardInfo& card) {
                   mCard = card;
                   Q_EMIT listed();
               });
}

} // namespace TARN
