#pragma once

#include "maps/map_file.h"

// The map as a data stream: loads several times as fast as XML, keeps coordinates as they are and the images inside.
class VyxBinMapFile final : public MapFile {
    Q_OBJECT

public:
    explicit VyxBinMapFile(QObject *parent = nullptr) : MapFile(Map, parent) { }

    int capability() const override { return Read | Write; }
    QString defaultSuffix() const override { return QStringLiteral("map"); }

protected:
    bool openFile() override;
    void closeFile() override { m_version = 0; }
    MapData readFile() override;
    bool writeFile(const MapData &map) override;

private:
    bool writeMagic();
    bool readMagic();

    int m_version = 0; // of the file being read; 0: none
};
