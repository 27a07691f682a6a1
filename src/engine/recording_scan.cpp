#include "engine/recording_scan.h"

#include <utility>

using korvane::astfile::RecFile;
using korvane::astfile::RecordingIndex;

RecordingScan::RecordingScan(QObject *parent) : QObject(parent) { }

RecordingScan::~RecordingScan()
{
    end();
}

void RecordingScan::start(const QString &fileName)
{
    end();
    m_pass = std::make_shared<Pass>();
    m_thread.reset(QThread::create([this, pass = m_pass, fileName] { scan(pass, fileName); }));
    m_thread->setObjectName("scan");
    m_thread->start(QThread::LowPriority);
}

void RecordingScan::cancel()
{
    end();
}

// On the scan's own thread. What it posts after it has been cancelled is not delivered.
void RecordingScan::scan(const std::shared_ptr<Pass> &pass, const QString &fileName)
{
    const auto post = [this, pass](auto deliver) {
        const auto unlessCancelled = [pass, deliver] {
            if (!pass->cancelled) {
                deliver();
            }
        };
        QMetaObject::invokeMethod(this, unlessCancelled, Qt::QueuedConnection);
    };
    const auto progress = [this, pass, post](qint64 octetsRead, qint64 octetsTotal) {
        const int percent = octetsTotal > 0 ? static_cast<int>(100 * octetsRead / octetsTotal) : 0;
        if (pass->percent.exchange(percent) != percent) {
            post([this, percent] { Q_EMIT progressed(percent); });
        }
        return !pass->cancelled;
    };
    QString error;
    const RecordingIndex index =
        RecordingIndex::build(fileName, RecFile::formatFromFileName(fileName), progress, &error);
    post([this, index, error] {
        end();
        Q_EMIT finished(index, error);
    });
}

void RecordingScan::end()
{
    if (const std::shared_ptr<Pass> pass = std::exchange(m_pass, nullptr)) {
        pass->cancelled = true;
        m_thread->wait();
        m_thread.reset();
    }
}
