#pragma once

#include "app/config.h"

#include <QJsonObject>
#include <QString>

#include <array>
#include <span>

// One layer that a further plan view switches for itself.
struct PlanLayer {
    const char *key; // under which the choice is stored
    const char *text; // English source text, context "PlanLayers"
    const char *icon; // file of :/icons without its suffix
    bool Config::*visible;
};

// Which layers a further plan view shows, whatever the settings say of them. A plain value.
class PlanLayers {
public:
    static constexpr std::size_t Count = 10;

    static std::span<const PlanLayer> all();

    bool shown(const PlanLayer &layer) const { return m_shown[index(layer)]; }
    void show(const PlanLayer &layer, bool on) { m_shown[index(layer)] = on; }
    bool labelsShown() const { return m_labels; }
    void showLabels(bool on) { m_labels = on; }

    // As the settings have them.
    void takeFrom(const Config &config);
    // Everything else of the settings stays.
    void applyTo(Config &config) const;

    QJsonObject toJson() const;
    // What is not mentioned stays as it is.
    void takeJson(const QJsonObject &json);

private:
    static std::size_t index(const PlanLayer &layer) { return static_cast<std::size_t>(&layer - all().data()); }

    std::array<bool, Count> m_shown = {};
    bool m_labels = true;
};
