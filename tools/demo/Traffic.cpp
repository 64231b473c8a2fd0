#include "Traffic.h"

#include "Payload.h"

#include <algorithm>
#include <cmath>

namespace TARN::Demo {

namespace {

// Units that count or measure a flow report a plain zero when nothing moves.
bool restsAtZero(Signal signal)
{
    return signal == Signal::IndicatedAirspeed || signal == Signal::TrueAirspeed ||
           signal == Signal::GroundSpeed || signal == Signal::Rpm || signal == Signal::FuelFlow ||
           signal == Signal::AlternatorCurrent;
}

} // namespace

Traffic::Traffic(std::uint64_t startTicks, int scale, std::uint64_t seed)
    : mDay(weekOf(seed).day), mStartTicks(startTicks), mRandom(seed ^ 0xB05)
{
    // A frame with eight data bytes takes about 125 us at 1 Mbit/s. Scaled rates are those of an
    // accordingly faster bus.
    mFrameTicks = std::max<std::uint64_t>(1, 4000 / static_cast<std::uint64_t>(scale));
    for (const MessageRow& row : messageTable()) {
        double period = 1.0 / (row.hertz * scale);
        double phase = period * (0.3 + 0.25 * mRandom.symmetric());
        mSenders.push_back({&row, period, phase, 0, phase, 0});
    }
}

void Traffic::schedule(Sender& sender)
{
    ++sender.count;
    double jitter = sender.period < 0.1 ? 0.01 * sender.period : 0.001;
    sender.due = sender.phase + static_cast<double>(sender.count) * sender.period +
                 jitter * mRandom.symmetric();
}

const std::vector<CanSample>& Traffic::messages(Flight& flight)
{
    mMessages.clear();
    mTurns.clear();
    double end = flight.timeAfter();
    for (std::size_t i = 0; i < mSenders.size(); ++i) {
        while (mSenders[i].due < end) {
            mTurns.push_back({mSenders[i].due, i});
            schedule(mSenders[i]);
        }
    }
    std::sort(mTurns.begin(), mTurns.end(), [](const Turn& a, const Turn& b) {
        return a.time < b.time || (a.time == b.time && a.sender < b.sender);
    });
    for (const Turn& turn : mTurns)
        send(mSenders[turn.sender], turn.time, flight);
    return mMessages;
}

void Traffic::send(Sender& sender, double time, Flight& flight)
{
    const MessageRow& row = *sender.row;
    double tick = std::floor(time * static_cast<double>(kTicksPerSecond));
    std::uint64_t ticks = mStartTicks + static_cast<std::uint64_t>(std::max(tick, 0.0));
    std::uint64_t latest = std::max(mLastTicks[0], mLastTicks[1]);
    ticks = std::max({ticks, latest + 1, mLastTicks[row.channel] + mFrameTicks});
    mLastTicks[row.channel] = ticks;

    std::array<double, 3> values = measure(row, time, flight);
    int second = static_cast<int>(ticks / kTicksPerSecond);
    CanSample sample;
    sample.ticks = ticks;
    sample.id = row.id;
    sample.channel = row.channel;
    sample.data = makePayload(row, sender.sent++, values, mDay, second);
    mMessages.push_back(sample);
}

std::array<double, 3> Traffic::measure(const MessageRow& row, double time, Flight& flight)
{
    double share = isHeld(row.encoding) ? 1.0 : (time - flight.timeBefore()) / Flight::kStep;
    std::array<double, 3> values{};
    for (std::size_t i = 0; i < values.size(); ++i) {
        double from = flight.before()[row.signals[i]];
        double to = flight.after()[row.signals[i]];
        values[i] = from + (to - from) * share;
        if (row.noise > 0.0)
            values[i] += row.noise * mRandom.normal();
    }
    if (restsAtZero(row.signals[0]))
        values[0] = flight.after()[row.signals[0]] > 0.0 ? std::max(values[0], 0.0) : 0.0;
    if (row.signals[0] == Signal::Egt5)
        values[0] = flight.exhaustReading(time, values[0]);
    return values;
}

} // namespace TARN::Demo
