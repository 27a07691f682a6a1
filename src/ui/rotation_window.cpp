#include "ui/rotation_window.h"

#include "view/geo_view.h"
#include "widgets/dialog_layout.h"
#include "widgets/field_form.h"

#include <QDoubleSpinBox>

RotationWindow::RotationWindow(QWidget *parent)
    : GeometryDialog(QStringLiteral("RotationWindow"), parent), m_rotation(new QDoubleSpinBox)
{
    setWindowTitle(tr("Rotate View"));
    m_rotation->setObjectName(QStringLiteral("rotation"));
    m_rotation->setRange(-180.0, 180.0);
    m_rotation->setDecimals(1);
    m_rotation->setSuffix(QStringLiteral("°"));
    m_rotation->setWrapping(true);
    m_rotation->setToolTip(tr("Positive turns the picture clockwise"));
    auto *form = new FieldForm(this);
    form->addField(tr("&Rotation, clockwise:"), m_rotation);
    layOutDialog(this, form, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
}

void RotationWindow::setRotation(double degrees)
{
    m_rotation->setValue(GeoView::normalizedRotation(degrees));
    m_rotation->selectAll();
    m_rotation->setFocus();
}

void RotationWindow::accept()
{
    Q_EMIT rotationEntered(m_rotation->value());
    QDialog::accept();
}
