#include "ui/range_ring_window.h"

#include "widgets/coordinate_edit.h"
#include "widgets/field_form.h"
#include "widgets/range_ring_fields.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

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
    auto *buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Apply, Qt::Horizontal, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &RangeRingWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &RangeRingWindow::reject);
    connect(buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &RangeRingWindow::apply);
    connect(m_center, &QLineEdit::textChanged, this, [this] { m_form->clearNotes(); });
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_form);
    layout->addSpacing(8);
    layout->addStretch(1);
    layout->addWidget(buttons);
}

void RangeRingWindow::setRings(const GeoCoordinate &center, int number, double distance)
{
    m_center->setCoordinate(center);
    m_number->setValue(number);
    m_distance->setValue(distance);
}

bool RangeRingWindow::apply()
{
    const GeoCoordinate center = m_center->coordinate();
    if (!m_form->check(m_center, center.isValid() ? QString() : tr("INVALID COORDINATE"))) {
        m_center->setFocus();
        return false;
    }
    Q_EMIT ringsEntered(center, m_number->value(), m_distance->value());
    return true;
}

void RangeRingWindow::accept()
{
    if (apply()) {
        QDialog::accept();
    }
}
