#pragma once

#include "flight/EpisodeWatch.h"
#include "track/TrackLoader.h"

#include <QtWidgets/QWidget>

class QComboBox;
class QHBoxLayout;

namespace TARN {

class WidgetTrack;

/// The view of the path: where it happened. While it is hidden nothing is made for it.
class DialogDataTrack : public QWidget
{
    Q_OBJECT

public:
    DialogDataTrack(Session& session, EpisodeWatch& episodes, QWidget* parent = nullptr);

Q_SIGNALS:
    void signalLink(const QString& link);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void createControls(QHBoxLayout& row);
    void listen();
    void reload();
    void begin();
    void listParameters();
    void applyColoring();
    void showScene();
    void applyTheme();
    QString emptyText() const;

    Session& mSession;
    EpisodeWatch& mEpisodes;
    TrackLoader mLoader;
    WidgetTrack* mTrack;
    QComboBox* mColors;
    QComboBox* mAxis;
    bool mIsStale = true; ///< what is shown is not the session's
};

} // namespace TARN
