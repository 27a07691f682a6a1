#pragma once

#include <QNetworkProxy>
#include <QString>

// The SOCKS 5 proxy of the settings.
struct TileProxy {
    bool enabled = false;
    QString host;
    quint16 port = 1080;
    QString user;
    QString password;
    bool hostNameLookup = true; // by the proxy, so that this terminal needs no name server

    bool operator==(const TileProxy &) const = default;

    // That of the application while none is enabled.
    QNetworkProxy toNetworkProxy() const
    {
        if (!enabled) {
            return QNetworkProxy(QNetworkProxy::DefaultProxy);
        }
        QNetworkProxy proxy(QNetworkProxy::Socks5Proxy, host, port, user, password);
        proxy.setCapabilities(proxy.capabilities().setFlag(QNetworkProxy::HostNameLookupCapability, hostNameLookup));
        return proxy;
    }
};
