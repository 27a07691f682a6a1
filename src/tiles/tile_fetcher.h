#pragma once

#include "app/log_level.h"
#include "tiles/tile_answer.h"
#include "tiles/tile_pacing.h"
#include "tiles/tile_request.h"

#include <QHash>
#include <QNetworkProxy>
#include <QObject>
#include <QPointF>
#include <QSet>
#include <QTimer>

class QNetworkAccessManager;
class QNetworkReply;

// Asks one service for tiles: the queue, the requests in flight, the tiles known to be unavailable, and the pauses
// after failures. A tile is in the queue or in flight at most once. After a failure of the service or of the way to it
// the tile goes back into the queue. For the GUI thread; nothing here waits or decodes.
class TileFetcher final : public QObject {
    Q_OBJECT

public:
    static constexpr int DefaultConcurrentRequests = 6;

    // The middle of what is wanted, in tiles of its level.
    struct Centre {
        quint8 level = 0;
        QPointF place;
    };

    explicit TileFetcher(const TileRequest &request, QObject *parent = nullptr);
    ~TileFetcher() override;

    const TileRequest &request() const { return m_request; }

    void setProxy(const QNetworkProxy &proxy);
    // Absolute; the answers of each service have a directory of their own in there. Empty: no cache.
    void setCacheDirectory(const QString &directory);
    void setClock(TilePacing::Clock clock) { m_pacing.setClock(std::move(clock)); }
    void setMaxConcurrentRequests(int count); // 1 to 32
    int maxConcurrentRequests() const { return m_maxConcurrent; }
    // Whether the operator lets this service be asked. Not by default.
    void setConsent(bool given);
    bool consent() const { return m_consent; }

    // Whether requests can be sent at all: with consent, key and address.
    bool canAsk() const { return m_consent && m_request.problem.isEmpty(); }
    // Whether requests wait after a failure.
    bool paused() const { return m_pacing.authenticationBlocked() || m_pacing.backingOff(); }

    // The requests nearest to one of these places of their level go first; those of other levels before them. Without
    // any, the coarsest level goes first, row by row from the north.
    void setCentres(const QList<Centre> &centres) { m_centres = centres; }
    // Ignored when it is on its way or known to be unavailable. Nothing is sent before pump().
    void enqueue(const TileIndex &index);
    // What else is in the queue is dropped; requests in flight go on unless the service takes its time over them.
    void keepOnly(const QSet<TileIndex> &wanted);
    bool holds(const TileIndex &index) const { return m_queue.contains(index) || m_inFlight.contains(index); }
    qsizetype queued() const { return m_queue.size(); }
    qsizetype inFlight() const { return m_inFlight.size(); }
    // Sends what may be sent now.
    void pump();
    // Empties the queue and gives up what is in flight.
    void clear();
    // Empties the cache on disk.
    void clearCache();

    // Known to be unavailable for a while yet.
    bool isMissing(const TileIndex &index) const;
    // How many tiles the service has said that it lacks, and a line that says so.
    int missingCount() const;
    static QString missingText(qsizetype count);
    // The tile came, but it cannot be used: it is not asked for again for a while.
    void reject(const TileIndex &index, const QString &reason);

    void resetBackoff();
    void resetAuthBlock();

    // What keeps tiles away, in a line for the operator; empty when all is well.
    QString stateText() const;

Q_SIGNALS:
    void received(const TileIndex &index, const QByteArray &octets);
    // It is not asked for again for a while; the answer says why.
    void unavailable(const TileIndex &index, const TileAnswer &answer);
    void message(LogLevel level, const QString &text);
    void stateChanged();
    void idle(); // the last request was answered, and nothing is queued

private:
    struct InFlight {
        QNetworkReply *reply = nullptr;
        QDateTime since;
        int round = 0; // m_round when it was sent
        int redirects = 0; // that led to it
        bool wanted = true; // by the present view
    };
    struct Unavailable {
        QDateTime until;
        bool absent = false;
    };

    QNetworkAccessManager &network();
    double distance(const TileIndex &index) const; // squared, or a rank where there is no centre
    void forget(const InFlight &request);
    void forgetCached(const QUrl &url);
    void send(const TileIndex &index, bool pastCache);
    void get(const TileIndex &index, const QUrl &url, bool pastCache, const InFlight &before);
    void finish(const TileIndex &index, QNetworkReply *reply);
    bool follow(const TileIndex &index, QNetworkReply *reply, const InFlight &request);
    // Why a redirect is not followed; empty where it is.
    QString refusal(const QUrl &from, const QUrl &target, int redirects) const;
    void settle(const TileIndex &index, const TileAnswer &answer, const InFlight &request);
    bool failsAlone(const TileIndex &index);
    void pauseAfter(const TileAnswer &answer, int round);
    void markUnavailable(const TileIndex &index, const TileAnswer &answer);
    void forgetExpired();
    void succeed(int round);
    void complain(const QString &text, bool connection);
    void reportMissing();

    TileRequest m_request;
    QNetworkAccessManager *m_network = nullptr; // made with the first request
    QNetworkProxy m_proxy;
    QString m_cacheDirectory;
    TilePacing m_pacing;
    QTimer m_pacingTimer;
    QSet<TileIndex> m_queue;
    QList<Centre> m_centres;
    QHash<TileIndex, InFlight> m_inFlight;
    QHash<TileIndex, Unavailable> m_unavailable;
    QHash<QString, QDateTime> m_said; // lines of the log, and until when they are not repeated; null: an outage's end
    QString m_trouble; // the last failure; empty after a success
    QHash<TileIndex, int> m_answersAtFailure; // m_answers when a tile last failed
    int m_answers = 0; // tiles that came
    int m_newlyAbsent = 0; // tiles, since the last line about them
    int m_maxConcurrent = DefaultConcurrentRequests;
    int m_round = 0; // of pauses: failures of requests sent before the last pause do not begin another
    bool m_consent = false;
    bool m_disconnected = false; // the connection failed, and has not been restored
};

// "Vyx Display/<version>", and " (+<contact>)" when the process has one.
QString tileUserAgent();
// An address or telephone number under which the operators of a service reach those of this terminal.
void setTileUserAgentContact(const QString &contact);
