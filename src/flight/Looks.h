#pragma once

#include "profile/CurveLooks.h"

#include <QtCore/QObject>

namespace TARN {

/// How the user wants curves to look, for all who draw or keep it.
class Looks : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    const CurveLooks& now() const { return mLooks; }
    void set(const CurveLooks& looks);

Q_SIGNALS:
    void changed();

private:
    CurveLooks mLooks;
};

} // namespace TARN
