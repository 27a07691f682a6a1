#include "widgets/range_ring_fields.h"

#include "app/setting.h"

#include <QDoubleSpinBox>
#include <QSpinBox>

QSpinBox *makeRingNumberBox()
{
    auto *box = new QSpinBox;
    box->setObjectName(QStringLiteral("ringNumber"));
    const Setting &setting = Setting::of(&Config::mapRangeRingNumber);
    box->setRange(static_cast<int>(setting.minimum()), static_cast<int>(setting.maximum()));
    return box;
}

QDoubleSpinBox *makeRingDistanceBox()
{
    auto *box = new QDoubleSpinBox;
    box->setObjectName(QStringLiteral("ringDistance"));
    const Setting &setting = Setting::of(&Config::mapRangeRingDistance);
    box->setDecimals(2);
    box->setRange(setting.minimum(), setting.maximum());
    box->setSuffix(setting.unitSuffix());
    return box;
}
