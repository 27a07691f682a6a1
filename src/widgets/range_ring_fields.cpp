#include "widgets/range_ring_fields.h"

#include <QDoubleSpinBox>
#include <QSpinBox>

QSpinBox *makeRingNumberBox()
{
    auto *box = new QSpinBox;
    box->setObjectName(QStringLiteral("ringNumber"));
    box->setRange(1, 50);
    return box;
}

QDoubleSpinBox *makeRingDistanceBox()
{
    auto *box = new QDoubleSpinBox;
    box->setObjectName(QStringLiteral("ringDistance"));
    box->setRange(0.1, 1000.0);
    box->setDecimals(2);
    box->setSuffix(QDoubleSpinBox::tr(" NM"));
    return box;
}
