#include "Harness.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <malloc.h>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace TARN::Bench {

namespace {

bool roundsAreShown = false;

/// The allocator learns from what is freed and then keeps large blocks for later. Naming its
/// threshold stops that, so that a second run finds none of the memory that the first one touched.
void stopLearning()
{
    mallopt(M_MMAP_THRESHOLD, 128 << 10);
}

[[noreturn]] void runChild(const Measurement& measurement, int result)
{
    stopLearning();
    try {
        const double value = measurement();
        const bool sent = write(result, &value, sizeof value) == sizeof value;
        _exit(sent ? 0 : 1); // what the parent left in its buffers is the parent's to write
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
    _exit(1);
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

} // namespace

void showRounds()
{
    roundsAreShown = true;
}

void require(bool holds, const std::string& what)
{
    if (!holds) {
        throw std::runtime_error(what);
    }
}

double inChild(const Measurement& measurement)
{
    int ends[2];
    require(pipe(ends) == 0, "no pipe");
    const pid_t child = fork();
    require(child >= 0, "no process");
    if (child == 0) {
        runChild(measurement, ends[1]);
    }
    close(ends[1]);
    double value = 0.0;
    const bool received = read(ends[0], &value, sizeof value) == sizeof value;
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    require(received && status == 0, "a measurement failed");
    return value;
}

double ratioOf(const Measurement& ours, const Measurement& rival, int rounds)
{
    const auto secondRunOf = [](const Measurement& measurement) {
        return [&measurement] {
            measurement();
            return measurement();
        };
    };
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        const double our = inChild(secondRunOf(ours));
        const double other = inChild(secondRunOf(rival));
        ratios.push_back(our / other);
        if (roundsAreShown) {
            std::fprintf(stderr, "%12.6g / %12.6g = %.4g\n", our, other, our / other);
        }
    }
    return median(ratios);
}

double medianOf(const Measurement& measurement, int rounds)
{
    std::vector<double> values;
    for (int round = 0; round < rounds; ++round) {
        values.push_back(inChild(measurement));
    }
    return median(values);
}

double secondsOfReading(const std::vector<std::string>& paths)
{
    using Bytes = std::unique_ptr<char, decltype(&std::free)>;
    std::vector<Bytes> all; // giving them back is not timed
    return secondsOf([&] {
        for (const std::string& path : paths) {
            const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
            const auto size = static_cast<std::size_t>(lseek(file, 0, SEEK_END));
            const Bytes& bytes = all.emplace_back(static_cast<char*>(std::malloc(size)), std::free);
            lseek(file, 0, SEEK_SET);
            std::size_t done = 0;
            for (ssize_t got = 1; got > 0 && done < size; done += static_cast<std::size_t>(got)) {
                got = read(file, bytes.get() + done, size - done);
            }
            close(file);
            require(done == size, "short read");
        }
    });
}

} // namespace TARN::Bench
