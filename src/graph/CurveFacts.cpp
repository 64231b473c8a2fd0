#include "graph/CurveFacts.h"

namespace TARN {

namespace {

std::optional<GraphColor> colorOf(const QColor& color)
{
    return color.isValid() ? std::optional(GraphColor::of(color)) : std::nullopt;
}

} // namespace

CurveFacts::CurveFacts(std::shared_ptr<const Flight> flight, Series series, GapRule gaps)
    : mFlight(std::move(flight)), mSeries(std::move(series)), mGaps(std::move(gaps)),
      mHasWords(mFlight->profile()->data().enums.contains(parameter().enumId) &&
                !mSeries.decoder().isNumeric())
{
    mSeries.isInOrder(); // is found out now: many threads may ask later
    const ThresholdSteps& steps = mSeries.decoder().thresholds();
    for (std::size_t i = 0; i < steps.limits().size(); ++i) {
        const ProfileThrValue& value = steps.threshold()->values[i];
        mLevels.push_back({steps.limits()[i], value.state, colorOf(value.color)});
    }
}

/// Null where there is no value.
const RecordEntry* CurveFacts::holdingAt(double time) const
{
    const std::size_t next = mSeries.firstAfter(time);
    if (next == 0) {
        return nullptr;
    }
    const bool isOver =
        next == mSeries.size() || mGaps.isGap(mSeries.time(next - 1), mSeries.time(next));
    return isOver && time > mSeries.time(next - 1) ? nullptr : &mSeries.entry(next - 1);
}

std::optional<GraphColor> CurveFacts::alertAt(double time) const
{
    const RecordEntry* entry = mLevels.empty() ? nullptr : holdingAt(time);
    if (entry == nullptr || mSeries.decoder().cellState(*entry) == StateOk) {
        return std::nullopt;
    }
    return colorOf(mSeries.decoder().cellColor(*entry));
}

QString CurveFacts::wordsAt(double time) const
{
    std::string text;
    if (const RecordEntry* entry = holdingAt(time)) {
        mSeries.decoder().appendText(*entry, text);
    }
    return QString::fromStdString(text);
}

} // namespace TARN
