#include "ui/view_state.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject toJson(const GeoCoordinate &coordinate)
{
    return coordinate.isValid()
        ? QJsonObject{{"latitude", coordinate.latitude()}, {"longitude", coordinate.longitude()}}
        : QJsonObject();
}

GeoCoordinate coordinate(const QJsonValue &json)
{
    return json["latitude"].isDouble() && json["longitude"].isDouble()
        ? GeoCoordinate(json["latitude"].toDouble(), json["longitude"].toDouble())
        : GeoCoordinate();
}

} // namespace

QByteArray ViewState::toBytes() const
{
    const QJsonObject view{{"sensor", sensor}, {"center", toJson(center)}, {"metresPerPixel", metresPerPixel},
        {"rotation", rotation}, {"ringCenter", toJson(ringCenter)}};
    return QJsonDocument(view).toJson(QJsonDocument::Compact);
}

bool ViewState::fromBytes(const QByteArray &bytes)
{
    const QJsonObject view = QJsonDocument::fromJson(bytes).object();
    const GeoCoordinate viewCenter = coordinate(view["center"]);
    const double zoom = view["metresPerPixel"].toDouble();
    if (!viewCenter.isValid() || zoom <= 0.0) {
        return false;
    }
    sensor = view["sensor"].toString();
    center = viewCenter;
    metresPerPixel = zoom;
    rotation = view["rotation"].toDouble();
    ringCenter = coordinate(view["ringCenter"]);
    return true;
}
