#pragma once

#include <QLabel>

#include <array>

// The safety nets over the upper right corner of the scope, for when the status bar, which has them otherwise, is out
// of sight. Takes no mouse input.
class AlertIndicator final : public QWidget {
    Q_OBJECT

public:
    explicit AlertIndicator(QWidget *scope);

    // MSAW, APW, STCA, and how many alerts and emergencies ask to be acknowledged.
    void showAlerts(const std::array<bool, 3> &active, int asking);

private:
    void place();

    std::array<QLabel *, 3> m_nets = {};
    QLabel *m_asking;
};
