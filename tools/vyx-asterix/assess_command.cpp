#include "vyx-asterix/assess_command.h"

#include "assessment/assessment_text.h"
#include "assessment/recording_assessment.h"
#include "assessment_report/report_document.h"
#include "view/label_face.h"

#include <QGuiApplication>
#include <QJsonDocument>

#include <cstdio>
#include <unistd.h>

namespace {

SensorAssessor::Options optionsOf(const CommandLine::Assess &command)
{
    SensorAssessor::Options options;
    options.onlyThose = !command.sensors.empty();
    for (const int id : command.sensors) {
        SensorAssessor::Radar radar{static_cast<quint8>(id / 256), static_cast<quint8>(id % 256), {}, {}};
        if (command.isSiteGiven) {
            radar.site = GeoCoordinate(command.site[0], command.site[1], command.site[2]);
        }
        options.radars += radar;
    }
    return options;
}

// One line that is written over, on terminals only.
class ProgressLine {
public:
    ~ProgressLine()
    {
        if (m_percent >= 0) {
            std::fputs("\r      \r", stderr);
        }
    }

    void show(qint64 done, qint64 total)
    {
        const int percent = total > 0 ? static_cast<int>(100 * done / total) : 0;
        if (m_isTerminal && percent != m_percent) {
            m_percent = percent;
            std::fprintf(stderr, "\r%3d %% ", percent);
        }
    }

private:
    const bool m_isTerminal = ::isatty(STDERR_FILENO) == 1;
    int m_percent = -1;
};

RecordingAssessment assess(const CommandLine &command, const std::atomic<bool> &stop)
{
    ProgressLine line;
    return assessRecording(
        QString::fromStdString(command.fileName), optionsOf(command.assess), [&](qint64 done, qint64 total) {
            line.show(done, total);
            return !stop;
        });
}

// Fonts are a GUI application's, which needs no screen for this.
QString writeDocument(const AssessmentReport &report, const std::string &fileName)
{
    char name[] = "vyx-asterix";
    char option[] = "-platform";
    char platform[] = "offscreen";
    char *arguments[] = {name, option, platform, nullptr};
    int count = 3;
    std::unique_ptr<QGuiApplication> application;
    if (!QCoreApplication::instance()) {
        application = std::make_unique<QGuiApplication>(count, arguments);
    }
    loadLabelFace();
    return assessment::writeReport(report, QString::fromStdString(fileName));
}

} // namespace

int runAssess(const CommandLine &command, const TextSink &out, const LineSink &err, const std::atomic<bool> &stop)
{
    const RecordingAssessment result = assess(command, stop);
    if (!result.fault.isEmpty()) {
        err(command.fileName + ": " + result.fault.toStdString());
        return 1;
    }
    if (!result.damage.isEmpty()) {
        err(command.fileName + ": " + result.damage.toStdString());
    }
    if (result.cancelled) {
        err(command.fileName + ": interrupted; this is of what was read until then");
    }
    const QByteArray text = command.isJson
        ? QJsonDocument(assessment::toJson(result.report)).toJson(QJsonDocument::Indented)
        : assessment::toText(result.report).toUtf8();
    bool isDone = out({text.constData(), static_cast<std::size_t>(text.size())});
    if (!command.assess.reportName.empty()) {
        const QString fault = writeDocument(result.report, command.assess.reportName);
        isDone = isDone && fault.isEmpty();
        if (!fault.isEmpty()) {
            err(fault.toStdString());
        }
    }
    return isDone && result.damage.isEmpty() && !result.cancelled ? 0 : 1;
}
