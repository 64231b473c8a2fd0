#include "base/Revision.h"

#include "base/Diagnostics.h"

#include <unistd.h>

namespace TARN {

namespace {

constexpr const char* PRG = "ORNA";
constexpr const char* Rule = "-------------------------------------------------";

// Eleven lines.
constexpr const char* Logo = R"(                                   ___
      ___  ____  _   _   ___      /  /
     / _ \|  _ \| \ | | / _ \    /  /  ________
    | | | | |_) |  \| |/ /_\ \__/__/__/_______/
    | |_| |  _ <| |\  ||  _  |__   ___\
     \___/|_| \_\_| \_||_| |_|  \  \
                                 \__\

       Reads the card, finds what was exceeded,
          and shows every moment around it.

)";

} // namespace

std::string Revision::getName()
{
    return PRG;
}

std::string Revision::getRevisionString()
{
    return getName() + " " + getRevisionNumber();
}

std::string Revision::getRevisionNumber()
{
    return std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(build);
}

std::string Revision::compileTime()
{
    return __DATE__ " " __TIME__;
}

void Revision::printHeader()
{
    char directory[256] = "";
    if (getcwd(directory, sizeof directory) == nullptr) {
        directory[0] = '\0';
    }
    diagnose("%s\n\n%s", Rule, Logo);
    diagnose("                Version  : %s\n", getRevisionString().c_str());
    diagnose("                Compiled : %s\n", compileTime().c_str());
    diagnose("                CWD      : %s\n%s\n", directory, Rule);
}

} // namespace TARN
