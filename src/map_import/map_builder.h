#pragma once

#include "map_import/import_feature.h"
#include "map_import/map_import.h"

#include <optional>

// Puts features into a map: finds their class, name and caption, and makes elements of their shapes.
class MapBuilder {
public:
    explicit MapBuilder(const MapImport::Options &options) : m_options(options) { }

    void add(const ImportFeature &feature);

    const MapData &map() const { return m_map; }
    qint64 features() const { return m_features; }

private:
    struct Described {
        QString name;
        QString caption;
        QString className;
        bool isText = false; // a point that is a caption and no symbol
        bool isAirspace = false;
    };

    Described describe(const ImportFeature &feature) const;
    QString classOf(const ImportFeature &feature) const;
    QString symbolOf(const ImportFeature &feature, const QString &className) const;
    void addPoints(const ImportFeature &feature, const Described &described, MapElementGroup &group) const;
    void addLine(const LonLatLine &line, const QString &name, MapElementGroup &group) const;
    void addArea(const LonLatArea &area, const QString &name, MapElementGroup &group) const;
    void addAreaLabel(const ImportFeature &feature, const Described &described, MapElementGroup &group) const;

    MapImport::Options m_options;
    MapData m_map;
    qint64 m_features = 0;
};
