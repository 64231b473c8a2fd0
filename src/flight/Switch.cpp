#include "flight/Switch.h"

namespace TARN {

void Switch::turn(bool on)
{
    if (mIsOn != on) {
        mIsOn = on;
        Q_EMIT turned(on);
    }
}

} // namespace TARN
