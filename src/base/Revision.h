#pragma once

#include <string>

namespace TARN {

/// Name and version of the program, and the banner printed at start.
class Revision
{
public:
    static constexpr int major = 1;
    static constexpr int minor = 2;
    static constexpr int build = 19;
    static constexpr int year = 2021;

    static std::string getName();           ///< "ORNA"
    static std::string getRevisionString(); ///< "ORNA 1.2.19"
    static std::string getRevisionNumber(); ///< "1.2.19"
    static std::string compileTime();       ///< date and time as the compiler writes them
    static void printHeader();
};

} // namespace TARN
