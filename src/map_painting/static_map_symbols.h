#pragma once

#include <QString>
#include <QStringList>

class QColor;
class QPainter;

// The symbols of static maps, by the names of their types.
QStringList staticMapSymbolTypes();

// Draws one into the square from the painter's origin; a circle with a cross for an unknown type. Pixels.
void drawStaticMapSymbol(QPainter &painter, const QString &type, int size, const QColor &color);
