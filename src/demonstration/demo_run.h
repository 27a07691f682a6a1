#pragma once

#include "app/background_pass.h"
#include "app/setting_group.h"
#include "demonstration/demo_traffic.h"

#include <QObject>
#include <QPointer>

class RunConfig;

// The demonstration in a window that also does other work: its settings hold until it ends, and the user's come back
// after it. GUI thread.
class DemoRun final : public QObject {
    Q_OBJECT

public:
    // The settings must outlive this object.
    explicit DemoRun(RunConfig *config, const QString &program = DemoTraffic::findProgram(), QObject *parent = nullptr);

    // Asks the generator, on a worker. Answers with begun, or with message.
    void begin();
    bool isActive() const { return m_traffic != nullptr; }

    // The input of the demonstration is open: traffic comes from now on.
    void send();
    // Ends the traffic and brings the user's settings back.
    void end();

Q_SIGNALS:
    void message(LogLevel level, const QString &text);
    // Settings of these groups changed; the input is to be opened anew.
    void begun(SettingGroups changed);
    void ended(SettingGroups changed);

private:
    struct Answer {
        QByteArray json;
        QString error;
    };

    void take(const Answer &answer);
    void dropTraffic();

    RunConfig *m_config;
    const QString m_program;
    QPointer<DemoTraffic> m_traffic; // a child
    BackgroundPass m_question;
};
