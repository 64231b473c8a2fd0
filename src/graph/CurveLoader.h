#pragma once

#include "flight/Job.h"
#include "graph/CurveDecoder.h"

#include <QtCore/QObject>

#include <array>
#include <atomic>
#include <map>
#include <utility>
#include <vector>

namespace TARN {

/// Decodes the curves of a selection beside the event loop and keeps those that are decoded, so
/// that each is decoded once for a flight and an offset. Curves are told as they are ready, in
/// the order in which they were asked for.
class CurveLoader : public QObject
{
    Q_OBJECT

public:
    explicit CurveLoader(QObject* parent = nullptr);

    /// Asks for the curves of these parameters of a flight; what was asked for before does not
    /// count any more. Those that are known are told before it returns, the others after start().
    void load(std::shared_ptr<const Flight> flight,
              const std::vector<const ProfileParameter*>& parameters, double offset);

    /// Decodes what was asked for.
    void start();

    /// Whether curves that were asked for are still to come.
    bool isBusy() const;

    /// Samples of the curves told last that are left out of them, because their time falls.
    std::size_t leftOut() const;

Q_SIGNALS:
    /// A curve, by its place among the parameters asked for.
    void curveReady(unsigned place, const DecodedCurve& curve);
    /// Curves were told, some or all of those that were asked for.
    void ready();
    void outOfMemory();

private:
    struct Placed
    {
        unsigned place; ///< among the parameters
        DecodedCurve curve;
    };
    using Decoding = Job<std::vector<Placed>>;

    /// What is still to be decoded, in the order in which it was asked for; for both lanes.
    struct Waiting
    {
        std::vector<std::pair<unsigned, const ProfileParameter*>> curves;
        std::atomic<std::size_t> next = 0;

        bool isEmpty() const { return next >= curves.size(); }
    };

    void startJob(Decoding& job);
    void take(const std::vector<Placed>& decoded);

    /// Two are decoded at a time.
    static constexpr std::size_t Lanes = 2;

    std::shared_ptr<const Flight> mFlight;
    double mOffset = 0.0;
    std::vector<const ProfileParameter*> mParameters;
    std::shared_ptr<Waiting> mWaiting = std::make_shared<Waiting>();
    std::map<int, DecodedCurve> mDecoded; ///< by the parameter's uid
    std::array<Decoding, Lanes> mJobs;
};

} // namespace TARN
