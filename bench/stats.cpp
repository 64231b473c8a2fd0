#include "Flights.h"
#include "Suite.h"
#include "flight/Statistics.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace TARN::Bench {

namespace {

constexpr std::size_t MeasuredCurves = 30;

struct DecodedColumns
{
    std::vector<std::vector<double>> times;
    std::vector<std::vector<double>> values;
};

class StatisticsBench
{
public:
    explicit StatisticsBench(Suite& suite)
        : mFlight(flightOf(suite.tableRecording(suite.options().quick ? 100'000 : 1'000'000),
                           tableMessages()))
    {
        for (const auto& [device, parameter] : mFlight->profile()->parameters()) {
            if (mParameters.size() < MeasuredCurves) {
                mParameters.push_back(parameter);
                const std::size_t size = mFlight->series(*parameter, 0.0).size();
                mColumns.times.emplace_back(size);
                mColumns.values.emplace_back(size);
            }
        }
        decode();
        const TimeRange whole = mFlight->range(0.0);
        const double tenth = (whole.stop - whole.start) / 10.0;
        mRange = {whole.start + tenth, whole.stop - tenth};
    }

    double buildRatio()
    {
        return ratioOf([this] { return secondsOf([this] { build(); }); },
                       [this] { return secondsOf([this] { decode(); }); }, 5);
    }

    double rangeRatio()
    {
        build();
        for (std::size_t k = 0; k < MeasuredCurves; ++k) {
            const Statistics found = mIndexes[k]->range(mRange);
            const Scan scan = scanOf(k);
            require(found.samples == scan.count && found.max->value == scan.max &&
                        std::fabs(*found.mean - scan.sum / static_cast<double>(scan.count)) <
                            1e-9 * (1.0 + std::fabs(*found.mean)) &&
                        std::fabs(*found.integral - scan.integral) <
                            1e-9 * (1.0 + std::fabs(scan.integral)),
                    "a statistic differs");
        }
        const auto ask = [this] {
            return secondsOf([this] {
                for (const auto& index : mIndexes) {
                    keep(index->range(mRange));
                }
            });
        };
        const auto scan = [this] {
            return secondsOf([this] {
                for (std::size_t k = 0; k < MeasuredCurves; ++k) {
                    keep(scanOf(k));
                }
            });
        };
        return ratioOf(ask, scan, 9);
    }

private:
    struct Scan
    {
        std::size_t count = 0;
        double max = -INFINITY;
        double min = INFINITY;
        double sum = 0.0;
        double squares = 0.0;
        double held = 0.0;
        double integral = 0.0;
    };

    void decode()
    {
        for (std::size_t k = 0; k < mParameters.size(); ++k) {
            const Series series = mFlight->series(*mParameters[k], 0.0);
            series.timesOf(series.entries(), mColumns.times[k].data());
            series.decoder().toDoubles(series.entries(), true, mColumns.values[k].data());
            keep(mColumns);
        }
    }

    void build()
    {
        Progress none;
        mIndexes.clear();
        mIndexes = makeIndexes(mFlight, mParameters, 0.0, none);
    }

    Scan scanOf(std::size_t curve) const
    {
        const std::vector<double>& times = mColumns.times[curve];
        const std::vector<double>& values = mColumns.values[curve];
        Scan scan;
        for (std::size_t k = 0; k < times.size(); ++k) {
            if (!mRange.contains(times[k])) {
                continue;
            }
            ++scan.count;
            scan.max = std::max(scan.max, values[k]);
            scan.min = std::min(scan.min, values[k]);
            scan.sum += values[k];
            scan.squares += values[k] * values[k];
            if (k > 0 && mRange.contains(times[k - 1])) {
                const double step = times[k] - times[k - 1];
                scan.held += values[k - 1] * step;
                scan.integral += (values[k - 1] + values[k]) / 2.0 * step;
            }
        }
        return scan;
    }

    std::shared_ptr<const Flight> mFlight;
    std::vector<const ProfileParameter*> mParameters;
    DecodedColumns mColumns;
    TimeRange mRange;
    StatisticsIndexes mIndexes;
};

} // namespace

void statisticsFigures(Suite& suite)
{
    if (suite.isWanted("stats.range") || suite.isWanted("stats.build")) {
        StatisticsBench bench(suite);
        suite.figure("stats.range", 0.02, [&] { return bench.rangeRatio(); });
        suite.figure("stats.build", 1.5, [&] { return bench.buildRatio(); });
    }
}

} // namespace TARN::Bench
