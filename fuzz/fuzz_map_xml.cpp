// Reads its input as each of the XML files of maps: map, airport map, style sheet and map index. The mutator mends a
// length in the second and third octet: the input begins with three octets that are left out.

#include "map_fuzz_files.h"

#include "maps/map_index.h"
#include "maps/map_style_sheet.h"

namespace {

void readStyleSheet(const QString &path, const QString &copy)
{
    MapStyleSheet sheet;
    QString error;
    if (!sheet.load(path, &error)) {
        require(!error.isEmpty() && !sheet.isValid(), "style sheet without reason");
        return;
    }
    require(sheet.save(copy, &error), "style sheet not saved");
    MapStyleSheet again;
    require(again.load(copy, &error), "saved style sheet not read");
    require(again.names().size() <= sheet.names().size(), "style classes from nowhere");
}

void readIndex(const QString &path, const QString &copy)
{
    QString error;
    const auto entries = readMapIndex(path, &error);
    require(error.isEmpty() || entries.isEmpty(), "index in spite of an error");
    require(
        writeMapIndex(copy, entries, &error) && readMapIndex(copy, &error).size() == entries.size(), "index differs");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    constexpr std::size_t PrefixSize = 3;
    if (size < PrefixSize) {
        return 0;
    }
    static MapFuzzFiles files;
    files.readTwice(MapFile::Xml, data + PrefixSize, size - PrefixSize);
    files.read(MapFile::Legacy);
    readStyleSheet(files.path(), files.copyPath());
    readIndex(files.path(), files.copyPath());
    return 0;
}
