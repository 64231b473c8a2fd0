#include "Card.h"

#include <CLI/CLI.hpp>
#include <cstdio>

namespace {

constexpr int kWrongUsage = 2;

void describe(CLI::App& app, TARN::Demo::CardOptions& options)
{
    app.add_option("--out", options.folder, "Folder that takes the recording files")->required();
    app.add_option("--minutes", options.minutes,
                   "Length of the recording; the flight fills it from 56 minutes on, a shorter "
                   "recording ends on the way")
        ->check(CLI::Range(1, 180))
        ->capture_default_str();
    app.add_option("--scale", options.scale, "Factor of all message rates")
        ->check(CLI::Range(1, 1000))
        ->capture_default_str();
    app.add_option("--seed", options.seed,
                   "Number of the flight: each is a week after the one before, with other noise, "
                   "another take-off moment and a cylinder 6 that runs leaner from week to week")
        ->capture_default_str();
    app.add_option("--wear", options.wear,
                   "Weeks that cylinder 6 has been running leaner; without it those of the seed")
        ->check(CLI::Range(0, 5));
    app.add_option("--files", options.files, "Number of consecutive files")
        ->check(CLI::Range(1, 99))
        ->capture_default_str();
    app.add_flag("--little-endian", options.littleEndian, "Write as a little-endian unit does");
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app{"Writes the card folder of a demo flight.", "orna-demo"};
    TARN::Demo::CardOptions options;
    describe(app, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : kWrongUsage;
    }
    std::string failure = TARN::Demo::writeCard(options);
    if (failure.empty())
        return 0;
    std::fprintf(stderr, "orna-demo: %s\n", failure.c_str());
    return 1;
}
