#include "wikifixtureserver.h"

#include <QFile>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace heft::test {

namespace {
WikiFixtureServer::Answer Ok(QByteArray page) { return {200, std::move(page), {}, 0, true}; }
} // namespace

WikiFixtureServer::WikiFixtureServer()
{
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                if (!socket->canReadLine() || socket->property("served").toBool())
                    return;
                socket->setProperty("served", true);
                const QString path = QUrl::fromPercentEncoding(socket->readLine().split(' ').value(1));
                requests << path;
                const Answer answer = m_answers.value(path, {404, "<html>nicht da</html>", {}, 0, true});
                QByteArray reply = "HTTP/1.1 " + QByteArray::number(answer.status) + " X\r\nConnection: close\r\n";
                if (!answer.location.isEmpty())
                    reply += "Location: " + answer.location + "\r\n";
                if (answer.announceLength)
                    reply += "Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n";
                reply += "\r\n" + answer.body;
                QTimer::singleShot(answer.delayMs, socket, [socket, reply] {
                    socket->write(reply);
                    socket->disconnectFromHost();
                });
            });
        }
    });
    if (!m_server.listen(QHostAddress::LocalHost))
        qFatal("fixture server can't listen");
}

QString WikiFixtureServer::Url() const { return u"http://127.0.0.1:%1"_s.arg(m_server.serverPort()); }

QByteArray WikiFixtureServer::Fixture(const QString& name)
{
    QFile file(QStringLiteral(HEFTARIUM_FIXTURES "/web/") + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("fixture missing");
    return file.readAll();
}

QByteArray WikiFixtureServer::Padded(QByteArray page)
{
    // The wiki's pages are long with navigation; a comment stands in for it.
    return page.replace(QByteArrayView("</body>"), QByteArray("<!-- " + QByteArray(24 * 1024, 'n') + " -->\n</body>"));
}

void WikiFixtureServer::SetIssue(int nr, const QString& file)
{
    Set(u"/wiki/Quelle:VN%1"_s.arg(nr), Ok(Padded(Fixture(file))));
}

void WikiFixtureServer::SetPicture(const QString& page, const QString& link, const QString& file)
{
    Set(u"/wiki/Datei:"_s + page, Ok(Fixture(u"Datei.html"_s).replace("@LINK@", link.toUtf8())));
    Set(link, Ok(Fixture(file)));
}

void WikiFixtureServer::ServeSampleSite()
{
    for (const int nr : {2401, 2402, 2403}) {
        SetIssue(nr, u"VN%1.html"_s.arg(nr));
        SetPicture(u"VN%1.jpg"_s.arg(nr), u"/images/a/VN%1.jpg"_s.arg(nr), u"cover.jpg"_s);
    }
    Set(u"/wiki/Zyklen"_s, Ok(Fixture(u"Zyklen.html"_s)));
    SetPicture(u"VN2401Illu.jpg"_s, u"/images/b/VN2401Illu.jpg"_s, u"illu.jpg"_s);
    SetPicture(u"VN2403Illu.jpg"_s, u"/images/b/VN2403Illu.jpg"_s, u"illu.jpg"_s);
    Set(u"/wiki/Datei:VN2402Illu.jpg"_s, Ok(Fixture(u"DateiOhneBild.html"_s)));
    for (const int k : {1, 2, 3})
        Set(u"/pics/2/2402illu%1.gif"_s.arg(k), Ok(Fixture(k < 3 ? u"fallback.gif"_s : u"placeholder.gif"_s)));
}

} // namespace heft::test
