#include "widgets/Kernel.h"

#include <QtWidgets/QStyleFactory>

namespace TARN {

Kernel* Kernel::instance()
{
    static Kernel kernel;
    return &kernel;
}

// The styles live as long as the program; widgets that use them are never outlived.
Kernel::Kernel() : mStyle(QStyleFactory::create("Fusion")), mStyle2(QStyleFactory::create("Fusion"))
{}

} // namespace TARN
