#pragma once

#include <QObject>

// Counts the starts, one after the other, that ended within a minute without an orderly end, so that nothing is begun
// by itself that brings the program down again and again. One a process, for as long as it runs. GUI thread.
class StartGuard final : public QObject {
    Q_OBJECT

public:
    static constexpr int AllowedCrashes = 2;

    explicit StartGuard(QObject *parent = nullptr);
    // An orderly end.
    ~StartGuard() override;

    // False: the last two starts, or more, have failed.
    bool startsWell() const { return m_crashes < AllowedCrashes; }

private:
    int m_crashes;
};
