#pragma once

#include "health/source_judgement.h"

#include <QPixmap>

// A light as it stands in lists: green a disc, amber a triangle, red a square, none a ring, so that nobody needs to
// tell the colours apart. The size is in logical pixels.
QPixmap lightPixmap(SourceJudgement::Light light, int size, qreal devicePixelRatio);
