#include "events/DialogDataErrorMatrix.h"

#include "events/DialogEventList.h"
#include "events/WidgetFaultMatrix.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

namespace TARN {

DialogDataErrorMatrix::DialogDataErrorMatrix(Session& session, EpisodeWatch& episodes,
                                             QWidget* parent)
    : QWidget(parent), mSession(session), mInner(new QWidget), mLayout(new QVBoxLayout(mInner)),
      mEmpty(new QLabel(tr("The profile describes no error matrix."))), mSeenFirst(*this)
{
    mEmpty->setAlignment(Qt::AlignCenter);
    mLayout->addWidget(mEmpty);
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setWidget(mInner);
    area->setAccessibleName(tr("Error matrices"));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* panes = new QSplitter(Qt::Vertical);
    panes->addWidget(area);
    panes->addWidget(
        new DialogEventList(session, episodes, EventKind::Faults, tr("Active Errors")));
    panes->setSizes({2000, 1000}); // only the ratio counts
    panes->setChildrenCollapsible(false);
    layout->addWidget(panes, 0, 0);
    connect(&mSession, &Session::profileChanged, this, &DialogDataErrorMatrix::loadProfile);
    connect(&mSession, &Session::flightChanged, this, &DialogDataErrorMatrix::showFlight);
    connect(&mSession, &Session::timeChanged, this, &DialogDataErrorMatrix::showTime);
    loadProfile();
}

/// Those of the profile before are gone at once, they would not fit its flight.
void DialogDataErrorMatrix::loadProfile()
{
    for (WidgetFaultMatrix* matrix : mMatrices) {
        delete matrix;
    }
    mMatrices.clear();
    mEmpty->setVisible(mSession.profile()->data().faultMatrices.empty());
    mSeenFirst.run([this] { build(); });
}

void DialogDataErrorMatrix::build()
{
    for (const FaultMatrix& description : mSession.profile()->data().faultMatrices) {
        auto* matrix = new WidgetFaultMatrix;
        matrix->setData(description);
        mLayout->addWidget(matrix);
        mMatrices.push_back(matrix);
        // Its own cells and cursor move too.
        connect(matrix, &WidgetFaultMatrix::signalTime, &mSession,
                [this](double time) { mSession.setTime(time, nullptr); });
    }
    showFlight();
}

void DialogDataErrorMatrix::showFlight()
{
    for (std::size_t i = 0; i < mMatrices.size(); ++i) {
        mMatrices[i]->setFlight(mSession.flight(), i);
    }
    showTime(mSession.time());
}

void DialogDataErrorMatrix::showTime(double time)
{
    for (WidgetFaultMatrix* matrix : mMatrices) {
        matrix->setTime(time);
    }
}

} // namespace TARN
