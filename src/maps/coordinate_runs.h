#pragma once

#include "geo/geo_coordinate.h"

#include <QByteArray>
#include <QList>
#include <QString>

// Most of a large map is "coordinate" elements that hold nothing but a coordinate text. An XML reader takes
// microseconds for each; here those that follow one another are found in the octets, and the reader gets a short
// document in which one processing instruction stands for each run of them. Line numbers stay as they were.
class CoordinateRuns {
public:
    // The document's octets, which must outlive this.
    explicit CoordinateRuns(const QByteArray &document);

    // What the XML reader is to read.
    const QByteArray &shortDocument() const { return m_short; }
    static bool isRun(QStringView instructionTarget);
    // Appends the run's coordinates; none when the data names no run.
    void append(QStringView instructionData, QList<GeoCoordinate> &points) const;

private:
    struct Run {
        qsizetype begin; // in the document
        qsizetype count; // coordinates
    };

    void shorten();
    bool takeRun(qsizetype &at);

    const QByteArray &m_document;
    QByteArray m_short;
    QList<Run> m_runs;
};
