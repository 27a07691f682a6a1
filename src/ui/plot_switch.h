#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>

class GeoPlotMap;
class QAction;
struct DisplaySnapshot;

// Whether plots are shown: as the operator wants it and, so that no scope stays empty without need, by themselves when
// an input brings plots and no track. The latter ends with the input and is never stored; it does not happen again once
// the operator has switched them off, until he has switched them on. GUI thread.
class PlotSwitch final : public QObject {
    Q_OBJECT

public:
    // Layer and action must outlive the switch.
    PlotSwitch(GeoPlotMap *layer, QAction *action);

    // Plots are shown by themselves, and there is still no track.
    bool standsIn() const { return m_byItself && !m_tracksCame; }
    // Why they are shown by themselves, one sentence, for half a minute; else empty. The input as in "UDP port 20000".
    QString notice(const QString &input) const;

public Q_SLOTS:
    // What the setting says.
    void setWanted(bool wanted);
    // The operator uses the action, or an equal one, to see or not to see them.
    void switchTo(bool on);
    // What the next snapshots show is of another input. The recording's name, empty for a live input: at another place
    // of the same recording plots stay as they are.
    void beginInput(const QString &recording);
    // To be called with every snapshot.
    void look(const DisplaySnapshot &snapshot);

Q_SIGNALS:
    // standsIn() or notice().
    void changed();

private:
    void standIn();
    void show();

    GeoPlotMap *m_layer;
    QAction *m_action;
    QString m_recording; // that is played
    bool m_wanted = false;
    bool m_declined = false;
    bool m_byItself = false;
    quint64 m_run = 0; // of the newest plots
    quint64 m_endedRun = 0; // of an input before
    bool m_tracksCame = false; // in this run
    std::optional<qint64> m_firstMs; // time of the first plot of this run
    QTimer m_noticeTimer; // active while the notice is shown
};
