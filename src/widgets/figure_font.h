#pragma once

#include <QFont>

// The face for figures that stand under each other or change in place: Cascadia Code where it is installed, else the
// system's fixed-width font; in the size of the interface's own font. Cheap enough to ask for each cell of a list. GUI
// thread only.
QFont figureFont();
