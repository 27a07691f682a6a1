#include "ui/range_ring_window.h"

#include "widgets/coordinate_edit.h"
#include "widgets/dialog_layout.h"
#include "widgets/field_form.h"
#include "widgets/range_ring_fields.h"

#include <QDoubleSpinBox>
#include <QPushButton>
#include <QSpinBox>

RangeRingWindow::RangeRingWindow(QWidget *parent)
    : GeometryDialog(QStringLiteral("RangeRingWindow"), parent), m_form(new FieldForm(this)),
      m_center(new CoordinateEdit(GeoCoordinate::NormalPrecision)), m_number(makeRingNumberBox()),
      m_distance(makeRingDistanceBox())
{
    setWindowTitle(tr("Range Rings"));
    m_center->setObjectName(QStringLiteral("center"));
    m_form->addField(tr("&Centre:"), m_center);
    m_form->addField(tr("&Number of rings:"), m_number);
    m_form->addField(tr("&Distance between rings:"), m_distance);
    const auto *buttons =
        layOutDialog(this, m_form, QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply);
    connect(buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &RangeRingWindow::apply);
}

void RangeRingWindow::setRings(const GeoCoordinate &center, int number, double distance)
{
    m_center->setCoordinate(center);
    m_number->setValue(number);
    m_distance->setValue(distance);
}

bool RangeRingWindow::apply()
{
    if (!m_form->checkCoordinate(m_center)) {
        m_center->setFocus();
        return false;
    }
    Q_EMIT ringsEntered(m_center->coordinate(), m_number->value(), m_distance->value());
    return true;
}

void RangeRingWindow::accept()
{
    if (apply()) {
        QDialog::accept();
    }
}
