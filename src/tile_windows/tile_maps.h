#pragma once

#include "app/config.h"
#include "app/log_level.h"

#include <QObject>
#include <QPoint>
#include <QPointer>

#include <functional>
#include <memory>

class GeoStaticMap;
class GeoTileMap;
class GeoWidget;
class Projector;
class QWidget;
class TileDownloadWindow;
class TileProvider;
class TileStocks;
struct TileArea;

// The map tiles of the window: gives the two tile layers the providers that the settings choose, asks the operator once
// before a service is contacted, and has the window that downloads tiles. GUI thread.
class TileMaps final : public QObject {
    Q_OBJECT

public:
    using Edit = std::function<void(const std::function<void(Config &)> &change)>;

    // All must outlive this object; the plan view has its map by now. The window asks questions and is the parent of
    // the download window. The operator's changes of settings go through edit. What the views of the program show they
    // have from the same stocks.
    TileMaps(
        QWidget *window, GeoWidget *plan, Projector *projector, const std::shared_ptr<TileStocks> &stocks, Edit edit);
    ~TileMaps() override;

    // Nothing is asked of any service from now on, whatever the settings say; tiles on this machine are shown. For the
    // demonstration.
    void barServices();
    bool barred() const { return m_barred; }
    void applyConfig(const Config &config);

    // Whether tiles are switched on: a service that may not be asked yet counts as off.
    bool shown() const;
    // What keeps tiles away that are switched on, one line; empty when nothing does.
    QString notice() const;

    // Replaces the question whether these services may be asked; true: they may.
    void setQuestion(std::function<bool(const QString &services)> question) { m_question = std::move(question); }

public Q_SLOTS:
    // The operator's choice.
    void show(bool on);
    void showDownloadWindow();

Q_SIGNALS:
    void logMessage(LogLevel level, const QString &text);
    // shown() or notice()
    void changed();

private:
    struct Layer {
        GeoTileMap *map = nullptr;
        TileService service = TileService::None;
        std::unique_ptr<TileProvider> provider; // null: none
    };

    void give(Layer &layer, TileService service, bool anew);
    void showLayers();
    // The services of the layers that would have to be asked, as a text; empty: none.
    QString servicesToAsk() const;
    bool needsService(TileService service) const;
    bool askConsent(const QString &services);
    // What may be done with services is as the settings say, or less.
    Config allowed() const;
    TileArea areaOfView() const;

    QWidget *m_window;
    Projector *m_projector;
    const std::shared_ptr<TileStocks> m_stocks;
    Edit m_edit;
    Config m_config;
    QPoint m_northWest; // of the view, metres of the plane
    QPoint m_southEast;
    bool m_barred = false;
    GeoStaticMap *m_staticMap;
    Layer m_bottom;
    Layer m_top;
    QPointer<TileDownloadWindow> m_downloads;
    std::function<bool(const QString &services)> m_question;
};
