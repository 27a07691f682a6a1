#pragma once

#include "tile_painting/tile_attribution.h"
#include "tile_painting/tile_picture.h"
#include "tile_painting/tile_source.h"
#include "tile_painting/toned_tiles.h"
#include "view/geo_layer.h"

#include <QPointer>

#include <functional>

// Online tiles under or over the static maps. While a tile is not there, coarser or finer ones stand in for it; it
// fades in when it comes, as the plan view's frames follow each other. The drawn picture is kept until tiles or view
// change, and moved along with the view; see TilePicture. On a screen of twice the density tiles are a level deeper.
class GeoTileMap final : public GeoLayer {
    Q_OBJECT

public:
    // The bottom layer is dimmed and desaturated as the settings say; the top layer shows what it gets.
    enum class Layer { Bottom, Top };

    explicit GeoTileMap(Layer layer, QObject *parent = nullptr);
    ~GeoTileMap() override;

    // Shows this provider's tiles and asks it for those of the view; null: none. It may be destroyed at any time, and
    // is hidden along with the layer.
    void setProvider(TileProvider *provider);
    TileProvider *provider() const { return m_provider; }
    // Tiles from elsewhere; tilesChanged() tells of new ones.
    void setSource(const TileSource &source);

    // The view is this rectangle of the plane; metres of the plane per pixel. To be called when a change of the view is
    // complete.
    void requestTiles(const QPointF &topLeft, const QPointF &bottomRight, double metresPerPixel);

    void placeTexts(const GeoView &view, TextRoom &room) override;
    void paint(QPainter &painter, const GeoView &view) override;
    QRectF readOutPlace() const override { return m_attribution.rect(); }
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override
    {
        return SettingGroup::Tiles | SettingGroup::PlanView | SettingGroup::Orientation;
    }

    // A drawing of tiles is under way in the background; polluted() follows it.
    bool drawing() const { return m_picture.drawing(); }

    // Milliseconds; tests have a clock of their own.
    void setClock(const std::function<qint64()> &clock) { m_clock = clock; }

public Q_SLOTS:
    void tilesChanged();

private:
    struct Request {
        QPointF topLeft;
        QPointF bottomRight;
        double metresPerPixel = 0.0; // 0: there was none yet
    };

    void followProvider();
    void forgetPainted();
    void sendRequest();
    void followVisibility();
    void followDensity(double devicePixelRatio);
    void updatePicture();

    const Layer m_layer;
    QPointer<TileProvider> m_provider;
    TileSource m_source;
    Request m_request;
    double m_devicePixelRatio = 1.0;
    bool m_stale = true; // tiles may have come or gone since the picture was last brought up to date
    TonedTiles m_toned;
    TilePicture m_picture;
    TileAttribution m_attribution;
    std::function<qint64()> m_clock;
};
