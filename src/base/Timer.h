#pragma once

#include <string>

namespace TARN {

/// Times a block: made at its top, it prints "name : milliseconds ms" when the block ends.
class Timer
{
public:
    explicit Timer(const std::string& name);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

private:
    double mStart;
    std::string mName;
};

} // namespace TARN
