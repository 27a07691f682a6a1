#pragma once

#include "app/background_pass.h"
#include "map_import/map_import.h"

#include <QObject>
#include <QString>
#include <QStringList>

// Makes a map file of a file in a foreign format, beside everything else. One at a time; given up with this object.
class MapConversion final : public QObject {
    Q_OBJECT

public:
    explicit MapConversion(QObject *parent = nullptr);

    // Gives up the conversion under way. The target's suffix says which of our formats it is to have.
    void start(const QString &source, const QString &target, const MapImport::Options &options);
    // finished() is not emitted any more, and the target is left as it was.
    void cancel() { m_pass.cancel(); }
    bool running() const { return m_pass.running(); }

Q_SIGNALS:
    // 0 to 100.
    void progressed(int percent);
    // The error is empty after a success. The notes say what was left out.
    void finished(const QString &target, const QString &error, const QStringList &notes);

private:
    BackgroundPass m_pass;
};
