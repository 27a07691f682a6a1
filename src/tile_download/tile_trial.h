#pragma once

#include "app/config.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class TileFetcher;
struct TileIndex;

// Fetches one tile of a service with settings that need not hold yet, and says in words what happened. GUI thread.
class TileTrial final : public QObject {
    Q_OBJECT

public:
    explicit TileTrial(QObject *parent = nullptr);
    ~TileTrial() override;

    // Gives up a trial that is under way. The operator has asked for this one tile, so that no other consent is needed.
    void start(TileService service, const Config &config);

Q_SIGNALS:
    // One sentence. Not from within start().
    void finished(const QString &words);

private:
    void ask(const Config &config);
    void finish(const QString &words);
    void noteReceived(const QByteArray &octets);
    static QString tryArchive(const QString &path);

    TileFetcher *m_fetcher = nullptr; // while a trial is under way
    QTimer m_limit{this};
    QElapsedTimer m_time;
};
