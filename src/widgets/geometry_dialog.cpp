#include "widgets/geometry_dialog.h"

#include "app/ui_state.h"

GeometryDialog::GeometryDialog(const QString &stateGroup, QWidget *parent) : QDialog(parent), m_stateGroup(stateGroup)
{
    setObjectName(stateGroup);
}

GeometryDialog::~GeometryDialog()
{
    if (isVisible()) {
        UiState::saveGeometry(m_stateGroup, saveGeometry());
    }
}

void GeometryDialog::setVisible(bool visible)
{
    if (visible && !m_restored) {
        // Before the window appears, so that it neither jumps nor is sized by its contents.
        restoreGeometry(UiState::geometry(m_stateGroup));
        m_restored = true;
    }
    if (!visible && isVisible()) {
        UiState::saveGeometry(m_stateGroup, saveGeometry());
    }
    QDialog::setVisible(visible);
}
