#include "base/Diagnostics.h"

#include <cstdarg>

namespace TARN {

namespace {
std::FILE* gStream = nullptr;
}

void diagnose(const char* format, ...)
{
    std::FILE* stream = gStream != nullptr ? gStream : stdout;
    std::va_list arguments;
    va_start(arguments, format);
    std::vfprintf(stream, format, arguments);
    va_end(arguments);
    std::fflush(stream);
}

void setDiagnosticStream(std::FILE* stream)
{
    gStream = stream;
}

} // namespace TARN
