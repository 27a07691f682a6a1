#include "engine/engine_host.h"

#include "app/crash_handler.h"
#include "engine/data_engine.h"

#include <QThread>

#include <utility>
#include <vector>

namespace {
constexpr int StopWaitMs = 5000;
}

EngineHost::EngineHost(QObject *parent)
    : QObject(parent), m_shared(std::make_shared<Shared>()),
      m_engine(new DataEngine(
          &m_shared->projector, &m_shared->display, &m_shared->video, &m_shared->weather, &m_shared->statistics))
{
    if (qEnvironmentVariableIsSet("VYXDISPLAY_NO_DATA_THREAD")) {
        return;
    }
    m_thread = new QThread;
    m_thread->setObjectName("data");
    m_engine->moveToThread(m_thread);
    connect(m_thread, &QThread::started, m_engine, [] { prepareThreadForCrashHandler(); });
    connect(m_thread, &QThread::started, m_engine, &DataEngine::init);
    connect(m_thread, &QThread::finished, m_engine, &QObject::deleteLater);
    connect(m_thread, &QThread::finished, m_thread, &QObject::deleteLater);
}

EngineHost::~EngineHost()
{
    stop(StopWaitMs);
}

void EngineHost::start()
{
    if (m_thread) {
        m_thread->start(QThread::InheritPriority);
    } else {
        m_engine->init();
    }
}

template <typename Command>
void EngineHost::post(Command command)
{
    if (m_engine) {
        QMetaObject::invokeMethod(
            m_engine, [engine = m_engine, command] { command(engine); }, Qt::QueuedConnection);
    }
}

void EngineHost::openInput(
    const Config &config, const QSharedPointer<SensorInfo> &sensor, const QDateTime &replayStart, quint64 requestId)
{
    post([=](DataEngine *engine) { engine->openInput(config, sensor, replayStart, requestId); });
}

void EngineHost::closeInput()
{
    if (m_engine) {
        m_engine->cancelReading();
    }
    post([](DataEngine *engine) {
        engine->allowReading();
        engine->closeInput(); // last: without a thread its answer may be the end of the engine
    });
}

void EngineHost::forgetPicture()
{
    post([](DataEngine *engine) { engine->forgetPicture(); });
}

void EngineHost::pauseInput(bool paused)
{
    post([paused](DataEngine *engine) { engine->pauseInput(paused); });
}

void EngineHost::setReplayAutoRewind(bool on)
{
    post([on](DataEngine *engine) { engine->setReplayAutoRewind(on); });
}

void EngineHost::setReplaySpeed(ReplaySpeed::Speed speed)
{
    post([speed](DataEngine *engine) { engine->setReplaySpeed(speed); });
}

void EngineHost::setRecordingIndex(const korvane::astfile::RecordingIndex &index)
{
    post([index](DataEngine *engine) { engine->setRecordingIndex(index); });
}

void EngineHost::startRecording(const QString &fileName)
{
    post([fileName](DataEngine *engine) { engine->startRecording(fileName); });
}

void EngineHost::stopRecording()
{
    post([](DataEngine *engine) { engine->stopRecording(); });
}

void EngineHost::setSnapshotTrailDots(int dots)
{
    post([dots](DataEngine *engine) { engine->setSnapshotTrailDots(dots); });
}

void EngineHost::askForReports(const ReportQuestion &question)
{
    post([question](DataEngine *engine) { engine->askForReports(question); });
}

void EngineHost::lookUp(const QString &text, quint64 requestId)
{
    post([=](DataEngine *engine) { engine->lookUp(text, requestId); });
}

void EngineHost::openTap(const std::shared_ptr<StreamTap> &tap)
{
    post([tap](DataEngine *engine) { engine->openTap(tap); });
}

void EngineHost::closeTap(const std::shared_ptr<StreamTap> &tap)
{
    post([tap](DataEngine *engine) { engine->closeTap(tap); });
}

bool EngineHost::stop(int waitMs)
{
    DataEngine *engine = std::exchange(m_engine, nullptr);
    QThread *thread = std::exchange(m_thread, nullptr);
    if (!thread) {
        delete engine;
        return true;
    }
    // A thread that was never started has no finished signal to come.
    if (!thread->isRunning()) {
        delete engine;
        delete thread;
        return true;
    }
    engine->cancelReading();
    thread->quit();
    if (thread->wait(waitMs)) {
        return true;
    }
    // It still reads the projector and writes the slots, so these must never go.
    static std::vector<std::shared_ptr<Shared>> abandoned;
    abandoned.push_back(m_shared);
    return false;
}
