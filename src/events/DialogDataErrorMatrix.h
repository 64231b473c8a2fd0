#pragma once

#include "flight/Session.h"
#include "widgets/SeenFirst.h"

#include <QtWidgets/QWidget>

#include <vector>

class QLabel;
class QVBoxLayout;

namespace TARN {

class EpisodeWatch;
class WidgetFaultMatrix;

/// The error matrices of the profile, one below the other, and below them when their errors were
/// active.
class DialogDataErrorMatrix : public QWidget
{
    Q_OBJECT

public:
    DialogDataErrorMatrix(Session& session, EpisodeWatch& episodes, QWidget* parent = nullptr);

private:
    void loadProfile();
    void build();
    void showFlight();
    void showTime(double time);

    Session& mSession;
    QWidget* mInner;
    QVBoxLayout* mLayout;
    QLabel* mEmpty;
    std::vector<WidgetFaultMatrix*> mMatrices;
    SeenFirst mSeenFirst;
};

} // namespace TARN
