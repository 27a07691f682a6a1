#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

// WGS-84 degrees as a file gives them: the longitude may lie beyond 180.
struct LonLat {
    double longitude = 0;
    double latitude = 0;

    bool operator==(const LonLat &) const = default;
};

using LonLatLine = QList<LonLat>;

// The outside first, then the holes; no ring repeats its first point.
using LonLatArea = QList<LonLatLine>;

// One thing in a file, with whatever shapes it has.
struct ImportFeature {
    QString layer;
    QList<QPair<QString, QString>> properties; // in the file's order; objects and lists as JSON
    QList<LonLat> points;
    QList<LonLatLine> lines;
    QList<LonLatArea> areas;

    bool hasShape() const { return !points.isEmpty() || !lines.isEmpty() || !areas.isEmpty(); }
    // Of the first of the names, whatever their case, that has a value; empty when none has.
    QString property(const QStringList &names) const;
};
