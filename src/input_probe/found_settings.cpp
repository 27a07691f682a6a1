#include "input_probe/found_settings.h"

#include "app/setting.h"
#include "recognition/input_proposal.h"

namespace {

bool isSameSensor(const Config &a, const Config &b)
{
    return a.sensorType == b.sensorType && a.sensorSac == b.sensorSac && a.sensorSic == b.sensorSic;
}

void keepSensor(const Config &before, Config *config)
{
    const Config found = *config;
    for (const Setting &setting : Setting::all()) {
        if (setting.groups() & SettingGroup::Sensor) {
            setting.copy(before, *config);
        }
    }
    config->sensorRadarRotationPeriod = found.sensorRadarRotationPeriod;
    config->sensorRadarIsPrimary = found.sensorRadarIsPrimary;
    config->sensorRadarIsSecondary = found.sensorRadarIsSecondary;
    config->sensorRadarIsModeS = found.sensorRadarIsModeS;
    if (!before.sensorLocation.isValid()) {
        config->sensorLocation = found.sensorLocation;
    }
}

// No kind of detection has been reported yet, but a radar has one.
void keepKinds(const Config &before, Config *config)
{
    if (!config->sensorRadarIsPrimary && !config->sensorRadarIsSecondary && !config->sensorRadarIsModeS) {
        config->sensorRadarIsPrimary = before.sensorRadarIsPrimary;
        config->sensorRadarIsSecondary = before.sensorRadarIsSecondary;
        config->sensorRadarIsModeS = before.sensorRadarIsModeS;
    }
}

} // namespace

void applyFound(const InputProposal &found, Config *config)
{
    const Config before = *config;
    found.applyTo(config);
    if (found.rotationPeriodMissing()) {
        config->sensorRadarRotationPeriod = before.sensorRadarRotationPeriod;
    }
    keepKinds(before, config);
    if (!found.isFromSensorFile() && isSameSensor(before, *config)) {
        keepSensor(before, config);
    }
}
