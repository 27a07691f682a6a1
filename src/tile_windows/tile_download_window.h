#pragma once

#include "tile_download/tile_downloader.h"
#include "widgets/geometry_dialog.h"

#include <functional>

class CoordinateEdit;
class FieldForm;
class FileEdit;
class QCheckBox;
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;

// Downloads map tiles of an area ahead of need. A download goes on while the window is closed; one that was broken off
// by the end of the program is offered to be taken up again.
class TileDownloadWindow final : public GeometryDialog {
    Q_OBJECT

public:
    // Config is asked for the settings whenever a download begins.
    TileDownloadWindow(std::function<Config()> config, QWidget *parent = nullptr);

    // Where the button for the area of the view finds it, see TileArea.
    void setView(std::function<TileArea()> view) { m_view = std::move(view); }
    // Asked before a service is contacted for the first time; true when the operator agrees, or has agreed before.
    void setConsent(std::function<bool(TileService)> consent) { m_consent = std::move(consent); }
    // Fills in the view's area unless a download is under way.
    void prepare();

    // What the fields say; its plan is empty where area or levels are not complete.
    TileDownloadJob job() const;

Q_SIGNALS:
    void message(LogLevel level, const QString &text);

private:
    void addRows();
    void addTargetRows();
    void addProgress();
    void takeView();
    void showJob(const TileDownloadJob &job);
    void offerStored();
    void showService();
    void showEstimate();
    bool validate();
    QString targetProblem() const;
    void startOrPause();
    void begin(const TileDownloadJob &job);
    void cancel();
    void showProgress(const TileDownloadProgress &progress);
    void showButtons();

    std::function<Config()> m_config;
    std::function<TileArea()> m_view;
    std::function<bool(TileService)> m_consent;
    TileDownloader m_downloader;
    qint64 m_stored = 0; // position of the job that is offered; 0: none is
    FieldForm *m_form = nullptr;
    QComboBox *m_service = nullptr;
    CoordinateEdit *m_northWest = nullptr;
    CoordinateEdit *m_southEast = nullptr;
    QSpinBox *m_firstLevel = nullptr;
    QSpinBox *m_lastLevel = nullptr;
    QComboBox *m_target = nullptr;
    FileEdit *m_archive = nullptr;
    QLabel *m_terms = nullptr;
    QCheckBox *m_confirmed = nullptr;
    QLabel *m_estimate = nullptr;
    QProgressBar *m_bar = nullptr;
    QLabel *m_status = nullptr;
    QPushButton *m_start = nullptr;
    QPushButton *m_cancel = nullptr;
};
