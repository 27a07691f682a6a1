#pragma once

#include <QObject>

class QSocketNotifier;

// Turns SIGINT and SIGTERM into a Qt signal, so that the program ends in order. One at a time; the handlers that were
// there before come back with its end.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void requested();

private:
    void receive();

    QSocketNotifier *m_notifier = nullptr;
};
