#pragma once

#include "map_import/map_import.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QThread>

#include <atomic>
#include <memory>

// Makes a map file of a file in a foreign format, beside everything else. One at a time; ends with this object.
class MapConversion final : public QObject {
    Q_OBJECT

public:
    explicit MapConversion(QObject *parent = nullptr);
    ~MapConversion() override;

    // Ends the conversion under way. The target's suffix says which of our formats it is to have.
    void start(const QString &source, const QString &target, const MapImport::Options &options);
    // No answer comes any more; waits for the end.
    void cancel();
    bool running() const { return m_pass != nullptr; }

Q_SIGNALS:
    // 0 to 100.
    void progressed(int percent);
    // The error is empty after a success. The notes say what was left out.
    void finished(const QString &target, const QString &error, const QStringList &notes);

private:
    // What both threads see of one pass.
    struct Pass {
        std::atomic<bool> cancelled = false;
        int percent = -1; // converting thread
    };

    void convert(const std::shared_ptr<Pass> &pass, const QString &source, const QString &target,
        const MapImport::Options &options);

    std::shared_ptr<Pass> m_pass; // null while none is under way
    std::unique_ptr<QThread> m_thread;
};
