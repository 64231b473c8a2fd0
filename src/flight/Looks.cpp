#include "flight/Looks.h"

namespace TARN {

void Looks::set(const CurveLooks& looks)
{
    if (!(looks == mLooks)) {
        mLooks = looks;
        Q_EMIT changed();
    }
}

} // namespace TARN
