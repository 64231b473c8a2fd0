#include "widgets/Kernel.h"

#include "widgets/ClearStyle.h"

namespace TARN {

Kernel* Kernel::instance()
{
    static Kernel kernel;
    return &kernel;
}

// The styles live as long as the program; widgets that use them are never outlived.
Kernel::Kernel() : mStyle(new ClearStyle), mStyle2(new ClearStyle) {}

} // namespace TARN
