#pragma once

#include <QLabel>

// A few words at the foot of the plan view that tell what state it is in. Takes no mouse input; hidden while it has
// nothing to say.
class ScopeChip final : public QLabel {
    Q_OBJECT

public:
    explicit ScopeChip(QWidget *scope);

    void showText(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();
};
