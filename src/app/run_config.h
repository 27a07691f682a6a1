#pragma once

#include "app/config.h"

#include <functional>

// The settings of this run, and the settings file behind them. What the command line sets holds for this run alone: the
// file keeps the user's own values of those keys, unless he changes them in the settings window.
class RunConfig final {
public:
    // Loads the file; a missing one leaves the defaults.
    explicit RunConfig(const QString &fileName);

    // What is in force.
    const Config &live() const { return m_live; }

    // For this run only, to settings of inputs, processor and sensor.
    void overrideWith(const std::function<void(Config &)> &change);

    // Takes over settings that the user edited, beginning from live(), and writes the file.
    void apply(const Config &edited);
    // The same for a change of the user's to single keys, wherever he made it.
    void edit(const std::function<void(Config &)> &change);

private:
    QString m_fileName;
    Config m_stored; // as in the file
    Config m_live;
};
