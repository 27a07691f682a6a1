#pragma once

#include <QJsonObject>
#include <QString>

// What a running terminal can be asked and told from outside. On the thread of the server. A function that may be
// refused returns why, in a sentence; an empty text: done.
class ControlTarget {
public:
    virtual ~ControlTarget() = default;

    // See statusJson().
    virtual QJsonObject status() const = 0;
    // The newest air picture, as SnapshotJson has it, with the sources.
    virtual QJsonObject snapshot() const = 0;

    // Begins to open the input; status tells what has come of it.
    virtual QString start() = 0;
    // Begins to close it, without a question.
    virtual QString stop() = 0;

    // Writes the window as a PNG picture.
    virtual QString saveScreenshot(const QString &path) = 0;

    // {"latitude", "longitude", "metresPerPixel", "rotation"}: the centre in degrees, null where it is off the globe,
    // and the rotation in degrees clockwise. Without a plan view it is empty.
    virtual QJsonObject view() const = 0;
    // Some of the same.
    virtual QString setView(const QJsonObject &view) = 0;
};
