#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

// The stroke drawing ":/icons/<name>.svg" in the palette's text colours, enabled and disabled. Null when there is none.
QIcon actionIcon(const QString &name, const QPalette &palette);
