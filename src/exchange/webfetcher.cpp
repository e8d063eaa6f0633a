#include "webfetcher.h"

#include <QEventLoop>
#include <QNetworkReply>
#include <QNetworkRequest>

using namespace Qt::StringLiterals;

namespace heft {

bool SameServer(const QUrl& a, const QUrl& b)
{
    const int defaultPort = a.scheme() == u"https" ? 443 : 80;
    return a.scheme() == b.scheme() && a.host().compare(b.host(), Qt::CaseInsensitive) == 0 &&
           a.port(defaultPort) == b.port(defaultPort);
}

WebReply WebFetcher::Get(const QUrl& url)
{
    WebReply answer;
    if (!url.isValid() || (url.scheme() != u"http" && url.scheme() != u"https")) {
        answer.error = u"Ungültige Adresse: %1"_s.arg(url.toString());
        return answer;
    }
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setTransferTimeout(m_limits.idleMs);

    QNetworkReply* reply = m_manager.get(request);
    QString refusal;
    QObject::connect(reply, &QNetworkReply::redirected, reply, [&, reply](const QUrl& target) {
        if (SameServer(url, target)) {
            Q_EMIT reply->redirectAllowed();
            return;
        }
        refusal = u"Umleitung auf einen anderen Server: %1"_s.arg(target.toString());
        reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::downloadProgress, reply, [&, reply](qint64 received, qint64 total) {
        if (refusal.isEmpty() && (received > m_limits.maxBytes || total > m_limits.maxBytes)) {
            refusal = u"Antwort größer als %1 Bytes"_s.arg(m_limits.maxBytes);
            reply->abort();
        }
    });
    if (!reply->isFinished()) {
        QEventLoop loop;
        QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
    }

    answer.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    // Connection and protocol errors end the transfer, also after the
    // headers came (a stalled body); an error status is an answer.
    const QNetworkReply::NetworkError error = reply->error();
    const bool broken = error != QNetworkReply::NoError &&
                        (error < QNetworkReply::ContentAccessDenied ||
                         (error >= QNetworkReply::ProtocolUnknownError && error <= QNetworkReply::ProtocolFailure));
    if (!refusal.isEmpty()) {
        answer.error = refusal;
    } else if (broken) {
        answer.error = reply->errorString();
    } else {
        answer.ok = true;
        answer.body = reply->readAll();
        if (answer.status < 200 || answer.status >= 300)
            answer.error = u"HTTP %1"_s.arg(answer.status);
    }
    reply->deleteLater();
    return answer;
}

} // namespace heft
