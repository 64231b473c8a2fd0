#pragma once

#include "flight/Job.h"
#include "record/CardInfo.h"

#include <QtCore/QObject>

namespace TARN {

/// Lists the recordings of a card folder beside the event loop: a card may be slow.
class CardOpener : public QObject
{
    Q_OBJECT

public:
    explicit CardOpener(QObject* parent = nullptr);

    /// Another folder takes the place of one that is being listed.
    void open(const QString& folder);

    /// The card that was listed last.
    const CardInfo& card() const { return mCard; }

Q_SIGNALS:
    void listed();

private:
    Job<CardInfo> mJob;
    CardInfo mCard;
};

} // namespace TARN
