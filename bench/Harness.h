#pragma once

#include <chrono>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace TARN::Bench {

/// Measures once and returns seconds or bytes.
using Measurement = std::function<double()>;

/// Throws std::runtime_error with \p what unless \p holds: a wrong answer is not timed.
void require(bool holds, const std::string& what);

/// Seconds that \p work takes.
template <typename Work>
double secondsOf(Work work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The least that a program can do which wants the bytes of files in its memory, one after the
/// other, each of them fresh.
double secondsOfReading(const std::vector<std::string>& paths);

/// Keeps the compiler from dropping the computation of \p value.
template <typename Value>
void keep(const Value& value)
{
    asm volatile("" : : "g"(&value) : "memory");
}

/// Runs \p measurement in a process of its own, as an opened recording meets it: with an
/// allocator that holds nothing yet. Throws when the child fails.
double inChild(const Measurement& measurement);

/// Median of \p rounds ratios ours / rival. The two take turns, each in a fresh process and each
/// run once untimed just before: memory that was freed a while ago is back with the machine's
/// host and costs up to ten times more to touch, and a busy machine slows neighbours in time
/// alike.
double ratioOf(const Measurement& ours, const Measurement& rival, int rounds = 7);

/// Later ratios tell each of their rounds on standard error.
void showRounds();

/// Median of \p rounds values of \p measurement, each from a process of its own.
double medianOf(const Measurement& measurement, int rounds = 5);

} // namespace TARN::Bench
