#include "base/Timer.h"

#include "base/Api.h"
#include "base/Diagnostics.h"

namespace TARN {

Timer::Timer(const std::string& name) : mStart(apiGetTime()), mName(name) {}

Timer::~Timer()
{
    diagnose("%s : %g ms\n", mName.c_str(), (apiGetTime() - mStart) * 1000.0);
}

} // namespace TARN
