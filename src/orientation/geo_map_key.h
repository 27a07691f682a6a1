#pragma once

#include "view/geo_layer.h"

#include <QColor>
#include <QPixmap>
#include <QString>

#include <functional>
#include <vector>

class GeoWeatherMap;

// What the marks on the picture mean, in the lower left corner of the view: symbols and weather levels, those alone
// that are shown now.
class GeoMapKey final : public GeoLayer {
    Q_OBJECT

public:
    struct Symbol {
        QString meaning;
        QPixmap picture; // for the device's pixel ratio
    };
    // The symbols on the picture now, for a device pixel ratio.
    using SymbolSource = std::function<std::vector<Symbol>(double devicePixelRatio)>;

    // The weather must outlive the layer.
    explicit GeoMapKey(const GeoWeatherMap *weather, QObject *parent = nullptr);

    void placeTexts(const GeoView &view, TextRoom &room) override;
    void paint(QPainter &painter, const GeoView &view) override;
    QRectF readOutPlace() const override { return m_place; }
    void applyConfig(const Config &config) override;
    SettingGroups settings() const override;

    // Those of earlier sources stand above those of later ones.
    void addSymbolSource(SymbolSource source);

private:
    struct Item {
        Symbol symbol;
        QRectF place; // pixels
    };

    static QString levelsTitle();
    static double levelsTitleWidth();
    void collectLevels();
    void placeSymbols(std::vector<Symbol> symbols, QPointF bottomLeft, double height);
    void paintLevels(QPainter &painter) const;

    const GeoWeatherMap *m_weather;
    std::vector<SymbolSource> m_sources;
    QColor m_color;
    QColor m_ground;

    // Of the frame.
    std::vector<int> m_levels; // of the weather, weakest first
    QPointF m_levelsPlace; // upper left corner
    std::vector<Item> m_items;
    QRectF m_place; // empty: nothing to draw
};
