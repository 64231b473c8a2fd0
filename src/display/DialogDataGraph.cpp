#include "display/DialogDataGraph.h"

#include "display/DialogGraphSetup.h"
#include "display/WidgetGraph.h"
#include "profile/Decoder.h"
#include "profile/Profile.h"
#include "record/Record.h"

#include <QtWidgets/QLabel>

#include <algorithm>

namespace TARN {

void DialogDataGraph::updateProfile()
{
    if (mGraph == nullptr) {
        return;
    }
    const auto selected = Profile::instance()->selectedParameters();
    for (unsigned k = 0; k < GraphModel::MaxCurves; ++k) {
        mGraph->setActive(k, k < selected.size());
        if (k < selected.size()) {
            mGraph->setParameterName(k, selected[k]->name);
        }
    }
    updateRecord(mRecord, true);
}

void DialogDataGraph::updateRecord(Record* record, bool isNew)
{
    mRecord = record;
    if (mGraph == nullptr) {
        return;
    }
    mGraph->clear();
    if (record != nullptr) {
        const auto selected = Profile::instance()->selectedParameters();
        const auto count = std::min<std::size_t>(selected.size(), GraphModel::MaxCurves);
        for (std::size_t k = 0; k < count; ++k) {
            fillIndex(static_cast<int>(k), *selected[k]);
        }
        if (isNew) {
            const RecordInfo& info = record->recordInfo();
            const auto margin = 0.1F * static_cast<float>(info.stopTime - info.startTime);
            mGraph->setXmin(static_cast<float>(info.startTime - margin));
            mGraph->setXmax(static_cast<float>(info.stopTime + margin));
            mGraph->setCursorPosition(info.startTime);
        }
        mGraph->recalcFrameBuffer();
    }
    updateTexts();
}

void DialogDataGraph::fillIndex(int k, const ProfileParameter& parameter)
{
    constexpr std::size_t Chunk = 65536; // samples decoded at once
    const RecordData& samples = mRecord->recordData();
    const RecordIdList* list =
        samples.find(static_cast<unsigned>(parameter.channel), static_cast<unsigned>(parameter.id));
    if (list == nullptr) {
        return;
    }
    const double shift = list->shift(samples.offset);
    const Decoder decoder(Profile::instance()->data(), parameter);
    std::vector<double> times(std::min(Chunk, list->entries.size()));
    std::vector<double> values(times.size());
    for (auto rest = list->entries; !rest.empty();) {
        const auto entries = rest.first(std::min(Chunk, rest.size()));
        std::ranges::transform(entries, times.begin(),
                               [shift](const RecordEntry& entry) { return entry.time() + shift; });
        decoder.toDoubles(entries, true, values.data());
        mGraph->putSeries(static_cast<unsigned>(k), std::span(times).first(entries.size()),
                          std::span(values).first(entries.size()));
        rest = rest.subspan(entries.size());
    }
}

void DialogDataGraph::updateTexts()
{
    const auto selected = Profile::instance()->selectedParameters().size();
    mNote->setText(
        tr("%1 of %2 selected parameters shown").arg(GraphModel::MaxCurves).arg(selected));
    mNote->setVisible(selected > GraphModel::MaxCurves);
    mGraph->setEmptyText(emptyText());
}

QString DialogDataGraph::emptyText() const
{
    if (Profile::instance()->selectedParameters().empty()) {
        return tr("No parameter is selected.\nTick parameters in the list on the left and press "
                  "\"Confirm Selection\".");
    }
    if (mRecord == nullptr) {
        return tr("No recording is loaded.\nOpen a card and pick one or more recordings in the "
                  "list on the left.");
    }
    if (mGraph->model().hasSamples()) {
        // Read when they are gone.
        return tr("The graph was cleared.\nPress \"Confirm Selection\" to fill it again.");
    }
    return tr("The recording holds no sample of the selected parameters.");
}

void DialogDataGraph::setTime(double time)
{
    if (mGraph == nullptr) {
        return;
    }
    mGraph->setCursorPosition(time);
    const GraphView& view = mGraph->model().view();
    const double width = view.xmax - view.xmin;
    const double margin = 0.1 * width;
    if (time < view.xmin + margin) {
        mGraph->setT0(static_cast<float>(time - margin));
    }
    if (time > view.xmax - margin) {
        mGraph->setT0(static_cast<float>(time + margin - width));
    }
}

double DialogDataGraph::markStart() const
{
    return mGraph != nullptr ? mGraph->model().markStart() : 0.0;
}

double DialogDataGraph::markStop() const
{
    return mGraph != nullptr ? mGraph->model().markStop() : 0.0;
}

} // namespace TARN
