#pragma once

#include "map_painting/static_map_frame.h"
#include "map_painting/static_map_geometry.h"
#include "map_painting/static_map_label_layout.h"
#include "map_painting/static_map_region.h"
#include "maps/map_library.h"
#include "maps/map_style_sheet.h"
#include "view/geo_layer.h"
#include "view/sheet_picture.h"

#include <QHash>
#include <QList>
#include <QPointer>
#include <QThreadPool>

#include <array>
#include <atomic>
#include <memory>
#include <vector>

class Projector;
class StaticMapPainter;

// The static maps: higher priorities over lower ones, equal ones in the order of the list; within one map images,
// areas, lines, symbols and labels over each other in this order. The drawn picture is kept until maps, styles or view
// change, and moved along with the view. Large maps are brought into the plane in the background and appear when that
// is done; until then a changed map shows what it was.
class GeoStaticMap final : public GeoLayer {
    Q_OBJECT

public:
    // The projector must outlive the layer.
    explicit GeoStaticMap(Projector *projector, QObject *parent = nullptr);
    ~GeoStaticMap() override; // waits for what runs in the background

    void paint(QPainter &painter, const GeoView &view) override;
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override { return SettingGroup::StaticMaps | SettingGroup::PlanView; }

    // Where the texts of the last frame stand in a view, which may lie beside it: what can stand elsewhere leaves them
    // free. Those within the view only, pixels.
    QList<QRectF> textPlaces(const GeoView &view) const;

    // What the other layer, of the same library and projector, has brought into the plane is not done once more.
    void shareGeometryOf(const GeoStaticMap *other) { m_other = other; }

    // True while maps are being prepared in the background; polluted() follows each.
    bool preparing() const;

public Q_SLOTS:
    // All maps of a library, loaded or not. A map is known by its identifier, and prepared again when its revision
    // differs from the last.
    void setMaps(const QList<MapLibrary::Map> &maps);
    void setStyleSheet(const MapStyleSheet &sheet);
    void setSymbolSize(int pixels);
    // Tiles lie under the maps: areas that would hide them altogether are not filled.
    void setOverTiles(bool over);

private:
    using Token = std::shared_ptr<std::atomic<bool>>; // true: cancelled

    struct Prepared {
        quint64 revision = 0; // the newest asked for
        QSharedPointer<const MapData> data; // of that revision
        StaticMapGeometry::Pointer geometry; // the newest ready; null before the first is
        Token token; // of the preparation that is under way; null without one

        void cancel() const
        {
            if (token) {
                *token = true;
            }
        }
    };

    // How a group is painted.
    struct Look {
        MapStyleClass style;
        bool cased = false; // set off against the ground, of which whoever chose the style knew nothing
    };

    void prepare(const MapLibrary::Map &map);
    StaticMapGeometry::Pointer geometryOfOther(const MapLibrary::Map &map) const;
    void prepareInBackground(quint64 id, Prepared &prepared);
    void takeGeometry(quint64 id, const Token &token, const StaticMapGeometry::Pointer &geometry);
    void forgetPainted();
    Look lookOf(const QString &className) const;
    std::vector<ShownMap> shownMaps(double metresPerPixel) const;
    void decideForRegion(const std::vector<ShownMap> &maps, double metresPerPixel);
    QList<QRectF> labelsIn(const QRectF &part) const;
    void paintPart(QImage &picture, const GeoView &part, const std::vector<ShownMap> &maps);
    static void paintGroup(QPainter &painter, const GeoView &view, const StaticMapFrame &frame,
        const StaticMapGroup &group, double period, const Look &look, StaticMapPainter &elements);

    Projector *m_projector;
    QPointer<const GeoStaticMap> m_other;
    QList<MapLibrary::Map> m_maps;
    QHash<quint64, Prepared> m_prepared;
    MapStyleSheet m_styles;
    int m_symbolSize = 0;
    bool m_smoothImages = false;
    bool m_overTiles = false;
    QColor m_ground;

    std::array<std::unique_ptr<StaticMapPainter>, 5> m_painters; // in drawing order
    bool m_regionValid = false;
    StaticMapRegion m_region; // that what follows was decided for
    StaticMapLabelLayout m_labels;
    bool m_crowded = false;
    SheetPicture m_picture;
    QThreadPool m_pool; // last, so that it ends first
};
