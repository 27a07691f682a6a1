#pragma once

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QMap>
#include <QPen>
#include <QString>
#include <QStringList>

// How the elements of a class look.
struct MapStyleClass {
    QString name;
    QColor color; // of labels and symbols
    QPen pen; // of lines and outlines; width in pixels
    QBrush brush; // of areas
    QFont font; // of labels

    bool operator==(const MapStyleClass &) const = default;
};

// Black, solid, one pixel wide, in the default font: what a sheet's class starts from.
MapStyleClass defaultStyleClass(const QString &name);

// A style sheet file (*.mss).
class MapStyleSheet {
public:
    QString name;
    QString title;
    QString description;
    QString author;
    QString version;
    QString comment;

    // On failure the sheet is invalid and empty, and the reason is in the message, which may be null.
    bool load(const QString &fileName, QString *errorMessage);
    // Leaves the file's former contents beside it under its name with ".bak" appended.
    bool save(const QString &fileName, QString *errorMessage) const;

    bool isValid() const { return m_valid; }
    bool isEmpty() const { return m_classes.isEmpty(); }
    bool contains(const QString &className) const { return m_classes.contains(className); }
    QStringList names() const { return m_classes.keys(); }
    // The default class where the sheet has none of the name.
    MapStyleClass style(const QString &className) const;
    // Adds the class, or takes the place of the one of its name.
    void setStyle(const MapStyleClass &style);
    void removeStyle(const QString &className) { m_classes.remove(className); }

private:
    bool m_valid = false;
    QMap<QString, MapStyleClass> m_classes;
};
