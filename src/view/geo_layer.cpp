#include "view/geo_layer.h"

GeoLayer::GeoLayer(const QString &name, QObject *parent) : QObject(parent), m_name(name) { }

void GeoLayer::placeTexts(const GeoView &, TextRoom &) { }

void GeoLayer::applyConfig(const Config &) { }

void GeoLayer::setVisible(bool visible)
{
    if (m_visible == visible) {
        return;
    }
    m_visible = visible;
    Q_EMIT polluted();
}
