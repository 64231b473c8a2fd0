#pragma once

#include "base/Progress.h"
#include "graph/CurveDecoder.h"
#include "report/ReportMatter.h"
#include "report/ReportPages.h"

namespace TARN {

/// Charts of a flight, on pages.
class ReportCharts
{
public:
    /// All live as long.
    ReportCharts(const ReportMatter& matter, ReportPages& pages, Progress& progress);

    /// The worst times out of range, each as two minutes of the parameter and of the others of its
    /// device.
    void writeWorst();

    /// All of the range, a strip for each selected parameter.
    void writeWhole();

    /// Parameters of the flight, which are a few, with the reference, which there is, behind them.
    void writeCompared(const std::vector<const ProfileParameter*>& parameters,
                       const TimeRange& range);

private:
    void writeEpisode(const Episode& episode);

    const ReportMatter& mMatter;
    ReportPages& mPages;
    Progress& mProgress;
    CurveWindows mWindows;
};

} // namespace TARN
