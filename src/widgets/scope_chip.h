#pragma once

#include <QLabel>

// A few words at the foot of the plan view that tell what state it is in. Takes no mouse input; hidden while it has
// nothing to say.
class ScopeChip final : public QLabel {
    Q_OBJECT

public:
    // Chips in different rows, counted upwards from 0, do not cover each other.
    explicit ScopeChip(QWidget *scope, int row = 0);

    void showText(const QString &text);

private:
    void place();

    int m_row;
};
