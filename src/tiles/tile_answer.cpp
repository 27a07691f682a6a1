#include "tiles/tile_answer.h"

#include "tiles/tile_image.h"

#include <QCoreApplication>
#include <QNetworkReply>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(TileAnswer)
};

QString statusName(int status)
{
    switch (status) {
    case 400:
        return QStringLiteral("Bad Request");
    case 401:
        return QStringLiteral("Unauthorized");
    case 403:
        return QStringLiteral("Forbidden");
    case 429:
        return QStringLiteral("Too Many Requests");
    case 500:
        return QStringLiteral("Internal Server Error");
    case 502:
        return QStringLiteral("Bad Gateway");
    case 503:
        return QStringLiteral("Service Unavailable");
    case 504:
        return QStringLiteral("Gateway Timeout");
    default:
        return {};
    }
}

QString statusText(int status, const QString &host)
{
    const QString name = statusName(status);
    const QString code = QString::number(status);
    return Text::tr("HTTP %1 from %2").arg(name.isEmpty() ? code : code + u' ' + name, host);
}

QString networkErrorText(QNetworkReply::NetworkError error)
{
    switch (error) {
    case QNetworkReply::ConnectionRefusedError:
        return Text::tr("the connection was refused");
    case QNetworkReply::RemoteHostClosedError:
        return Text::tr("the connection was closed before the answer was complete");
    case QNetworkReply::HostNotFoundError:
        return Text::tr("the host was not found");
    case QNetworkReply::TimeoutError:
    case QNetworkReply::OperationCanceledError:
        return Text::tr("no answer in time");
    case QNetworkReply::SslHandshakeFailedError:
        return Text::tr("no secure connection could be made");
    case QNetworkReply::ProxyConnectionRefusedError:
    case QNetworkReply::ProxyConnectionClosedError:
    case QNetworkReply::ProxyTimeoutError:
        return Text::tr("the proxy cannot be reached");
    case QNetworkReply::ProxyNotFoundError:
        return Text::tr("the proxy's host was not found");
    case QNetworkReply::ProxyAuthenticationRequiredError:
        return Text::tr("the proxy asks for another user name or password");
    case QNetworkReply::TooManyRedirectsError:
        return Text::tr("the service redirects without end");
    case QNetworkReply::InsecureRedirectError:
        return Text::tr("the service redirects to an insecure address");
    default:
        return Text::tr("error %1").arg(static_cast<int>(error));
    }
}

TileAnswer::Kind kindOfStatus(int status)
{
    switch (status) {
    case 400:
    case 414:
    case 422:
        return TileAnswer::Malformed;
    case 401:
    case 402:
    case 403:
        return TileAnswer::Authentication;
    case 204:
    case 404:
    case 410:
        return TileAnswer::Missing;
    case 429:
    case 503:
        return TileAnswer::RateLimited;
    default:
        return TileAnswer::ServiceError;
    }
}

bool isServiceFault(QNetworkReply::NetworkError error)
{
    return error == QNetworkReply::TooManyRedirectsError || error == QNetworkReply::InsecureRedirectError
        || error == QNetworkReply::ProtocolUnknownError;
}

TileAnswer imageOf(QNetworkReply *reply, TileAnswer answer)
{
    answer.octets = reply->readAll();
    if (isWholeTileImage(answer.octets)) {
        answer.kind = TileAnswer::Image;
        return answer;
    }
    answer.kind = TileAnswer::ServiceError;
    answer.reason = answer.octets.isEmpty()
        ? Text::tr("an empty answer from %1").arg(reply->url().host())
        : Text::tr("an answer from %1 that is no whole image").arg(reply->url().host());
    answer.octets.clear();
    return answer;
}

} // namespace

TileAnswer TileAnswer::of(QNetworkReply *reply)
{
    TileAnswer answer;
    answer.fromCache = reply->attribute(QNetworkRequest::SourceIsFromCacheAttribute).toBool();
    answer.retryAfter = reply->rawHeader("Retry-After");
    const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QString host = reply->url().host();
    const QString refusal = reply->property(TileRefusal).toString();
    if (!refusal.isEmpty()) {
        answer.kind = ServiceError;
        answer.reason = refusal;
    } else if (status == 204 || status >= 400) {
        answer.kind = kindOfStatus(status);
        answer.reason = statusText(status, host);
    } else if (reply->error() != QNetworkReply::NoError) {
        answer.kind = isServiceFault(reply->error()) ? ServiceError : NetworkError;
        answer.reason = QStringLiteral("%1 (%2)").arg(networkErrorText(reply->error()), host);
    } else {
        return imageOf(reply, answer);
    }
    return answer;
}

QString TileAnswer::message() const
{
    switch (kind) {
    case Malformed:
        return Text::tr("Request parameter error.");
    case Authentication:
        return Text::tr("Tile service rejected the request (authentication failed): %1").arg(reason);
    case RateLimited:
        return Text::tr("Tile service is rate limiting requests: %1").arg(reason);
    case ServiceError:
        return Text::tr("Tile service error: %1").arg(reason);
    case NetworkError:
        return Text::tr("Network error while requesting tiles: %1").arg(reason);
    case Image:
    case Missing:
        break;
    }
    return {};
}
