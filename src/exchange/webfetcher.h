#pragma once
// One HTTP transfer at a time, waited for in a local event loop: the caller
// reads like a blocking call, while windows keep painting and take input.
// The limits guard against a server that sends too much, stalls, or sends
// the transfer elsewhere.

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QString>
#include <QUrl>

namespace heft {

struct WebLimits {
    qint64 maxBytes = 20 * 1024 * 1024;
    // A transfer that has received nothing for this long is given up.
    int idleMs = 30000;
};

struct WebReply {
    // False when the transfer failed or broke a limit; error tells why.
    bool ok = false;
    int status = 0;
    QByteArray body;
    QString error;
    // A transfer that worked and got a 2xx answer.
    bool Succeeded() const { return ok && status >= 200 && status < 300; }
};

// Same scheme, host and port: a link or redirect that stays on the server.
bool SameServer(const QUrl& a, const QUrl& b);

class WebFetcher {
public:
    explicit WebFetcher(WebLimits limits = {}) : m_limits(limits) {}
    // Redirects are followed only within the host and port of `url`.
    WebReply Get(const QUrl& url);

private:
    WebLimits m_limits;
    QNetworkAccessManager m_manager;
};

} // namespace heft
