#pragma once

#include "profile/ProfileTypes.h"
#include "record/Record.h"
#include "widgets/DataView.h"

#include <QtWidgets/QWidget>

#include <vector>

class QLabel;
class QVBoxLayout;

namespace TARN {

class WidgetFaultMatrix;

/// The error matrices of the profile, one below the other.
class DialogDataErrorMatrix : public QWidget, public DataView
{
    Q_OBJECT

public:
    explicit DialogDataErrorMatrix(QWidget* parent = nullptr);

    /// Builds the matrices of a newly loaded profile; they have no recording until updateRecord.
    void loadProfile(const ProfileInfo& profile);

    void updateProfile() override {}
    void updateRecord(Record* record) override;
    void updateOffset(Record*) override {}
    void setTime(double time) override;

Q_SIGNALS:
    /// The user picked this time in a timeline, seconds.
    void signalTime(double time);

private:
    QWidget* mInner;
    QVBoxLayout* mLayout;
    QLabel* mEmpty;
    std::vector<WidgetFaultMatrix*> mMatrices;
};

} // namespace TARN
