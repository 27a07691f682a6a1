#include "astfile/rec_file.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>
#include <array>

namespace korvane::astfile {

namespace {

struct FormatRow {
    RecFile::Format format;
    const char *name;
    std::array<const char *, 3> suffixes; // null where there are fewer
};

constexpr std::array Formats = {
    FormatRow{RecFile::Pcap, QT_TRANSLATE_NOOP("RecFile", "Network capture"), {"pcap", "cap", nullptr}},
    FormatRow{RecFile::PcapNg, QT_TRANSLATE_NOOP("RecFile", "Network capture, next generation"),
        {"pcapng", nullptr, nullptr}},
    FormatRow{RecFile::RawAsterix, QT_TRANSLATE_NOOP("RecFile", "Raw ASTERIX data blocks"), {"ast", nullptr, nullptr}},
    FormatRow{RecFile::FinalFormat, QT_TRANSLATE_NOOP("RecFile", "Final format recording"), {"ff", nullptr, nullptr}},
    FormatRow{RecFile::Gps, QT_TRANSLATE_NOOP("RecFile", "GPS recording"), {"gps", nullptr, nullptr}},
    FormatRow{RecFile::ModeS, QT_TRANSLATE_NOOP("RecFile", "Mode S recording"), {"modes", "beast", "avr"}},
};

// Of packed files, behind the format's own.
constexpr QLatin1String CompressedSuffix(".gz");

const FormatRow *rowOf(RecFile::Format format)
{
    const auto row = std::find_if(
        Formats.begin(), Formats.end(), [format](const FormatRow &candidate) { return candidate.format == format; });
    return row == Formats.end() ? nullptr : &*row;
}

bool hasSuffix(const FormatRow &row, const QString &suffix)
{
    return std::any_of(row.suffixes.begin(), row.suffixes.end(), [&suffix](const char *candidate) {
        return candidate && suffix.compare(QLatin1String(candidate), Qt::CaseInsensitive) == 0;
    });
}

QStringList patternsOf(const FormatRow &row)
{
    QStringList patterns;
    for (const char *suffix : row.suffixes) {
        if (suffix) {
            const QString pattern = QStringLiteral("*.") + QLatin1String(suffix);
            patterns += {pattern, pattern + CompressedSuffix};
        }
    }
    return patterns;
}

QString filterEntry(const QString &name, const QStringList &patterns)
{
    return name + QStringLiteral(" (") + patterns.join(u' ') + u')';
}

} // namespace

QList<RecFile::Format> RecFile::formats()
{
    QList<Format> all;
    for (const FormatRow &row : Formats) {
        all += row.format;
    }
    return all;
}

RecFile::Format RecFile::formatFromFileName(const QString &fileName)
{
    const bool packed = fileName.endsWith(CompressedSuffix, Qt::CaseInsensitive);
    const QString suffix = QFileInfo(packed ? fileName.chopped(CompressedSuffix.size()) : fileName).suffix();
    for (const FormatRow &row : Formats) {
        if (hasSuffix(row, suffix)) {
            return row.format;
        }
    }
    return Unknown;
}

QString RecFile::formatName(Format format)
{
    const FormatRow *row = rowOf(format);
    return row ? QCoreApplication::translate("RecFile", row->name)
               : QCoreApplication::translate("RecFile", "Unknown recording format");
}

QString RecFile::formatNameFilter(const QList<Format> &formats)
{
    QStringList entries;
    QStringList allPatterns;
    for (const Format format : formats) {
        if (const FormatRow *row = rowOf(format)) {
            entries += filterEntry(formatName(format), patternsOf(*row));
            allPatterns += patternsOf(*row);
        }
    }
    if (entries.size() > 1) {
        entries.prepend(filterEntry(QCoreApplication::translate("RecFile", "Recording files"), allPatterns));
    }
    return entries.join(QStringLiteral(";;"));
}

} // namespace korvane::astfile
