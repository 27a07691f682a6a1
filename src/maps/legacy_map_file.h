#pragma once

#include "maps/map_file.h"

// Airport maps of older systems: XML with decimal degrees, read only.
class LegacyMapFile final : public MapFile {
    Q_OBJECT

public:
    explicit LegacyMapFile(QObject *parent = nullptr) : MapFile(Legacy, parent) { }

    int capability() const override { return Read; }
    QString defaultSuffix() const override { return QStringLiteral("mapx"); }

protected:
    bool openFile() override { return m_mode == QIODeviceBase::ReadOnly; }
    void closeFile() override { }
    MapData readFile() override;
    bool writeFile(const MapData &map) override;
};
