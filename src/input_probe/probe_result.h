#pragma once

#include "recognition/diagnosis_remark.h"
#include "recognition/stream_findings.h"

#include <QString>

// What an input brings, as far as it has been listened to: a plain value.
struct ProbeResult {
    enum class State {
        Idle, // nobody listens
        Opening,
        Listening,
        Refused, // it cannot be listened to, fault says why
    };

    State state = State::Idle;
    QString fault; // one or two sentences
    Config::InputComm comm = Config::InputComm::Udp;
    QString endpoint; // "239.0.0.1:50000", "port 50000", a serial device, a file
    bool ofRunningInput = false; // as the program's own input accounts for it
    bool paused = false; // that input

    qint64 listenedMs = 0;
    qint64 silentMs = 0; // since something arrived last; since the beginning where nothing has
    quint64 messages = 0; // datagrams, chunks of a serial line, messages of a recording
    quint64 octets = 0;
    double messageRate = 0.0; // a second, over the last ten seconds
    double octetRate = 0.0;

    StreamFindings findings; // of the last minute or two; without a kind while nothing could be made out
    Diagnosis troubles; // of the findings: what is wrong

    // The engine's counts come later than what is analysed.
    bool hasArrived() const { return messages > 0 || findings.messages > 0; }
    bool isRecognised() const { return findings.kind.has_value(); }
};
