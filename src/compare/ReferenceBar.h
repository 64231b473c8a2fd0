#pragma once

#include "flight/Aligner.h"

#include <QtWidgets/QWidget>

#include <optional>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QToolButton;

namespace TARN {

class ElidedLabel;

/// Says which flight is which while there is a reference, how the two lie on each other, and
/// changes that. Hidden without a reference.
class ReferenceBar : public QWidget
{
    Q_OBJECT

public:
    explicit ReferenceBar(Session& session, QWidget* parent = nullptr);

private:
    QWidget* createNames();
    QToolButton* createAway();
    QWidget* createControls();
    void preparePassing();
    void prepareShift();
    QComboBox* createModes();
    QCheckBox* createSwitch(const QString& text, const QString& toolTip, Switch& on);
    void followSession();
    void showFlights();
    void showParameters();
    void showAlignment();
    void updateNote();
    QString note() const;
    QString missing() const;
    bool haveCommonTime() const;
    void chooseMode(int mode);
    void choosePassing();
    void pickMoment();

    Session& mSession;
    Aligner mAligner;
    std::optional<double> mPicked; ///< moment of the flight, while that of the reference is sought
    ElidedLabel* mFlight;
    ElidedLabel* mReference;
    QLabel* mNote;
    QComboBox* mModes;
    QComboBox* mParameter;
    QDoubleSpinBox* mValue;
    QDoubleSpinBox* mShift;
    QToolButton* mPick;
};

} // namespace TARN
