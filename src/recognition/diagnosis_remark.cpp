#include "recognition/diagnosis_remark.h"

#include <QLocale>

#include <algorithm>

using Level = DiagnosisRemark::Level;
using Topic = DiagnosisRemark::Topic;

DiagnosisRemark makeRemark(Level level, Topic topic, const QString &sentence, const QString &evidence)
{
    DiagnosisRemark remark;
    remark.level = level;
    remark.topic = topic;
    remark.sentence = sentence;
    remark.evidence = evidence;
    return remark;
}

const char *levelName(Level level)
{
    switch (level) {
    case Level::Fine:
        return "fine";
    case Level::Note:
        return "note";
    case Level::Wrong:
        break;
    }
    return "wrong";
}

const char *topicName(Topic topic)
{
    static constexpr const char *Names[] = {
        "contents", "format", "mixture", "trailer", "damage", "edition", "category", "processor", "sensor"};
    return Names[static_cast<std::size_t>(topic)];
}

bool isAnyWrong(const Diagnosis &diagnosis)
{
    return std::any_of(
        diagnosis.begin(), diagnosis.end(), [](const DiagnosisRemark &remark) { return remark.level == Level::Wrong; });
}

QString remarkText(const DiagnosisRemark &remark)
{
    return remark.evidence.isEmpty() ? remark.sentence : remark.sentence + u' ' + remark.evidence;
}

QString countText(qint64 count)
{
    return QLocale(QLocale::English).toString(count);
}
