#pragma once

#include <QColor>
#include <QList>
#include <QString>

// Colours for the intensity levels of weather.
class WeatherColorScheme {
public:
    static constexpr int Levels = 8;

    WeatherColorScheme() = default;
    WeatherColorScheme(const QString &name, const QList<QColor> &colors) : m_name(name), m_colors(colors) { }

    // The schemes that come with the program: read once and kept. Any thread.
    static const QList<WeatherColorScheme> &predefinedSchemes();
    // The first of them; empty when there is none.
    static WeatherColorScheme defaultScheme();

    // An array of objects with a "name" and the colours "level0" to "level7". A level that is missing or no colour
    // stays as an invalid colour, so that the others keep their places; at the end of a scheme it is left out. Empty
    // when the file cannot be read or holds no array.
    static QList<WeatherColorScheme> loadFromJsonFile(const QString &fileName);

    QString name() const { return m_name; }
    // Opaque, level 0 first; at most Levels.
    const QList<QColor> &colors() const { return m_colors; }

private:
    QString m_name;
    QList<QColor> m_colors;
};
