#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace korvane::astfile {

// What kinds of recording files there are and how their names tell them apart.
class RecFile {
public:
    // The values are stored in settings; do not renumber.
    enum Format : int {
        Unknown = 0,
        Pcap = 1, // network capture
        PcapNg = 2, // network capture, next generation
        RawAsterix = 3, // ASTERIX data blocks one after the other, without time stamps of their own
        FinalFormat = 4, // data blocks in frames with a time stamp each
        Gps = 5, // data blocks with positioning-system time stamps
        ModeS = 6, // Mode S frames as receivers hand them out, binary or text
    };

    // All but Unknown.
    static QList<Format> formats();

    // By the suffix of the name, in upper or lower case, with or without ".gz" behind it; the file itself is not looked
    // at. Unknown for any other suffix.
    static Format formatFromFileName(const QString &fileName);

    // By what the file begins with, packed by gzip or not; its name decides only where that leaves a choice. Reads a
    // few hundred KiB. Unknown, with the reason in error, for what is no recording, cannot be read, or is no regular
    // file. cancel is asked before each read from the disk; true ends it.
    static Format formatOfFile(
        const QString &fileName, QString *error = nullptr, const std::function<bool()> &cancel = {});

    // Name for lists and log lines, such as "Network capture".
    static QString formatName(Format format);

    // Filter for a file dialog: one entry that takes in all the formats, then one each. Formats that are no recording
    // format are left out; empty when none remains.
    static QString formatNameFilter(const QList<Format> &formats);
};

} // namespace korvane::astfile
