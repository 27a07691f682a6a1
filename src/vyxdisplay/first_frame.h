#pragma once

#include <QElapsedTimer>
#include <QObject>

class QWidget;

// Tells how long after the start of a clock a widget had been painted for the first time.
class FirstFrame final : public QObject {
    Q_OBJECT

public:
    // The clock runs since the program's start.
    FirstFrame(QWidget *widget, const QElapsedTimer &clock, QObject *parent = nullptr);

Q_SIGNALS:
    void painted(qint64 milliseconds);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QElapsedTimer m_clock;
};
