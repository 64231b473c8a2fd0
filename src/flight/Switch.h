#pragma once

#include <QtCore/QObject>

namespace TARN {

/// Something that is so or not, and tells when it changes. Off to begin with.
class Switch : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool isOn() const { return mIsOn; }
    void turn(bool on);

Q_SIGNALS:
    void turned(bool on);

private:
    bool mIsOn = false;
};

} // namespace TARN
