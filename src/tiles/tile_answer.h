#pragma once

#include <QByteArray>
#include <QString>

class QNetworkReply;

// How a request for a tile ended.
struct TileAnswer {
    enum Kind {
        Image,
        Missing, // there is no such tile
        Malformed, // the service does not understand the request
        Authentication, // key or account rejected
        RateLimited,
        ServiceError,
        NetworkError, // the service was not reached
    };

    Kind kind = NetworkError;
    QByteArray octets; // of an image
    // Why there is none, in words. Made of status codes and host names alone: addresses may hold keys, and so may what
    // a server writes.
    QString reason;
    QByteArray retryAfter;
    bool fromCache = false;

    static TileAnswer of(QNetworkReply *finished);

    // The line for the log; empty for an image and for a missing tile.
    QString message() const;
};

// The dynamic property of a reply that we gave up, with the reason in words.
constexpr char TileRefusal[] = "tileRefusal";
