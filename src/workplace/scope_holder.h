#pragma once

#include <QWidget>

// The place of the scope in the middle of a window. Usually the scope fills it; spread, it lies under the whole window,
// and what stands over it at the edges does not move it. GUI thread.
class ScopeHolder final : public QWidget {
    Q_OBJECT

public:
    // Takes the scope as a child.
    ScopeHolder(QWidget *scope, QWidget *parent);

    QWidget *scope() const { return m_scope; }
    bool spread() const { return m_spread; }
    void setSpread(bool spread);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void moveEvent(QMoveEvent *event) override;

private:
    void place();

    QWidget *m_scope;
    bool m_spread = false;
};
