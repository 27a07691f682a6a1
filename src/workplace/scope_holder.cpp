#include "workplace/scope_holder.h"

ScopeHolder::ScopeHolder(QWidget *scope, QWidget *parent) : QWidget(parent), m_scope(scope)
{
    scope->setParent(this);
    setMinimumSize(scope->minimumSize());
    setFocusProxy(scope);
}

void ScopeHolder::setSpread(bool spread)
{
    m_spread = spread;
    place();
}

void ScopeHolder::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    place();
}

void ScopeHolder::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    place();
}

void ScopeHolder::place()
{
    m_scope->setGeometry(m_spread ? QRect(-mapTo(window(), QPoint()), window()->size()) : rect());
}
