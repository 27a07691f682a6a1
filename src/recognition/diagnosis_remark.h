#pragma once

#include <QList>
#include <QString>

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

DiagnosisRemark makeRemark(
    DiagnosisRemark::Level level, DiagnosisRemark::Topic topic, const QString &sentence, const QString &evidence = {});

// Stable identifiers for files, such as "wrong" and "edition"; static.
const char *levelName(DiagnosisRemark::Level level);
const char *topicName(DiagnosisRemark::Topic topic);

// Whether anything is wrong.
bool isAnyWrong(const Diagnosis &diagnosis);
// Sentence and evidence, one after the other.
QString remarkText(const DiagnosisRemark &remark);

// With commas between the thousands.
QString countText(qint64 count);
