#pragma once

#include <QFont>

// The face for figures that stand under each other or change in place: Cascadia Code where it is installed, else the
// system's fixed-width font; in the size of the interface's own font.
QFont figureFont();
