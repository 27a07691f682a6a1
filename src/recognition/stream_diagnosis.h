#pragma once

#include "recognition/stream_findings.h"

#include <QList>
#include <QString>

struct RecordingFindings;

// One thing that was found out about a stream, for who has to put it right.
struct DiagnosisRemark {
    enum class Level {
        Fine, // as it should be
        Note, // worth knowing, nothing is lost by it
        Wrong, // data are lost or shown wrongly until somebody does something
    };
    enum class Topic {
        Contents, // what the stream holds
        Format, // kind of data, encapsulation
        Mixture, // several formats in one stream
        Trailer, // octets behind the blocks
        Damage, // cut short, malformed, unreadable
        Edition, // which edition of a category
        Category, // one without a table
        Processor, // settings of the processor that do not suit the stream
        Sensor, // settings of the sensor that do not suit the stream
    };

    Level level = Level::Note;
    Topic topic = Topic::Contents;
    QString sentence; // plain, ends with a full stop
    QString evidence; // what it was concluded from, a sentence too; may be empty
    QString source; // "25/11"; empty where it concerns the whole stream
    int category = 0; // 0: not one category's
};

using Diagnosis = QList<DiagnosisRemark>;

// Stable identifiers for files, such as "wrong" and "edition"; static.
const char *levelName(DiagnosisRemark::Level level);
const char *topicName(DiagnosisRemark::Topic topic);

// Of what one source sends: editions, blocks that cannot be decoded, categories without a table. Empty where there is
// nothing to say but what describe() says.
Diagnosis diagnose(const SourceFindings &source);
// Of the whole stream, its sources included. The contents come first.
Diagnosis diagnose(const StreamFindings &stream);
// The same for a recording, with what is wrong with its file.
Diagnosis diagnose(const RecordingFindings &recording);
// What the settings that it is read with make of it. Empty where they suit it.
Diagnosis diagnoseSettings(const StreamFindings &stream, const Config &config);

// Whether anything is wrong.
bool isAnyWrong(const Diagnosis &diagnosis);
// Sentence and evidence, one after the other.
QString remarkText(const DiagnosisRemark &remark);
