#pragma once

#include "maps/map_file.h"

// The map as text that can be edited and compared. Coordinates are kept to 0.01 seconds of arc; characters that XML
// cannot hold are left out. A coordinate that does not parse is read as an invalid one, so that an editor can show it.
//
// Images are files of their own, named relative to the map's folder. One that already shows the same picture is left
// alone: writing a photograph again would lose quality each time.
class VyxXmlMapFile final : public MapFile {
    Q_OBJECT

public:
    explicit VyxXmlMapFile(QObject *parent = nullptr) : MapFile(Xml, parent) { }

    int capability() const override { return Read | Write; }
    QString defaultSuffix() const override { return QStringLiteral("xml"); }

protected:
    bool openFile() override { return true; }
    void closeFile() override { }
    MapData readFile() override;
    bool writeFile(const MapData &map) override;
};
