#include "ui/set_center_window.h"

#include "app/ui_state.h"
#include "widgets/coordinate_edit.h"
#include "widgets/dialog_layout.h"
#include "widgets/field_form.h"

#include <QComboBox>

namespace {

constexpr qsizetype MaximumRecent = 10;
const QString recentKey = QStringLiteral("recentCenters");

} // namespace

SetCenterWindow::SetCenterWindow(QWidget *parent)
    : GeometryDialog(QStringLiteral("SetCenterWindow"), parent), m_form(new FieldForm(this)),
      m_center(new CoordinateEdit(GeoCoordinate::NormalPrecision)), m_recent(new QComboBox)
{
    setWindowTitle(tr("Go To"));
    m_center->setObjectName(QStringLiteral("center"));
    m_recent->setObjectName(QStringLiteral("recent"));
    m_recent->setPlaceholderText(tr("choose one"));
    m_form->addField(tr("&Coordinate:"), m_center);
    m_form->addField(tr("&Recent:"), m_recent);
    connect(m_recent, &QComboBox::textActivated, m_center, &QLineEdit::setText);
    layOutDialog(this, m_form, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    const QString recent = QString::fromLatin1(UiState::value(stateGroup(), recentKey));
    m_recent->addItems(recent.split(u' ', Qt::SkipEmptyParts));
    m_recent->setCurrentIndex(-1);
    m_recent->setEnabled(m_recent->count() > 0);
}

void SetCenterWindow::setCenter(const GeoCoordinate &center)
{
    m_center->setCoordinate(center);
    m_center->selectAll();
    m_center->setFocus();
}

void SetCenterWindow::accept()
{
    if (!m_form->checkCoordinate(m_center)) {
        m_center->setFocus();
        return;
    }
    const GeoCoordinate center = m_center->coordinate();
    remember(center.toATCString());
    Q_EMIT centerEntered(center);
    QDialog::accept();
}

void SetCenterWindow::remember(const QString &text)
{
    const int known = m_recent->findText(text);
    if (known >= 0) {
        m_recent->removeItem(known);
    }
    m_recent->insertItem(0, text);
    while (m_recent->count() > MaximumRecent) {
        m_recent->removeItem(m_recent->count() - 1);
    }
    m_recent->setCurrentIndex(-1);
    m_recent->setEnabled(true);
    QStringList texts;
    for (int i = 0; i < m_recent->count(); ++i) {
        texts.append(m_recent->itemText(i));
    }
    UiState::saveValue(stateGroup(), recentKey, texts.join(u' ').toLatin1());
}
