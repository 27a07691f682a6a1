#include "app/weather_color_scheme.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

// A static library's resources are linked in only when something asks for them by name; the macro behind that must
// stand outside any namespace.
static void loadSchemeResource()
{
    Q_INIT_RESOURCE(color_schemes);
}

namespace {

QList<QColor> levelColors(const QJsonObject &scheme)
{
    QList<QColor> colors;
    for (int level = 0; level < WeatherColorScheme::Levels; ++level) {
        QColor color = QColor::fromString(scheme[QStringLiteral("level%1").arg(level)].toString());
        if (color.isValid()) {
            color.setAlpha(255);
        }
        colors.append(color);
    }
    while (!colors.isEmpty() && !colors.last().isValid()) {
        colors.removeLast();
    }
    return colors;
}

} // namespace

const QList<WeatherColorScheme> &WeatherColorScheme::predefinedSchemes()
{
    static const QList<WeatherColorScheme> schemes = [] {
        loadSchemeResource();
        return loadFromJsonFile(QStringLiteral(":/resource/local/weather-color-scheme.json"));
    }();
    return schemes;
}

WeatherColorScheme WeatherColorScheme::defaultScheme()
{
    return predefinedSchemes().value(0);
}

QList<WeatherColorScheme> WeatherColorScheme::loadFromJsonFile(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QList<WeatherColorScheme> schemes;
    const QJsonArray elements = QJsonDocument::fromJson(file.readAll()).array();
    for (const QJsonValue &element : elements) {
        if (element.isObject()) {
            schemes.append({element[QStringLiteral("name")].toString(), levelColors(element.toObject())});
        }
    }
    return schemes;
}
