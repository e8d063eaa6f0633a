#include "wikifixtureserver.h"

#include <QFile>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace heft::test {

WikiFixtureServer::WikiFixtureServer()
{
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* socket = m_server.nextPendingConnection()) {
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Serve(socket); });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
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
    const QByteArray filler = "<!-- " + QByteArray(24 * 1024, 'n') + " -->\n</body>";
    return page.replace(QByteArrayView("</body>"), filler);
}

void WikiFixtureServer::SetIssue(int nr, const QString& fixture)
{
    Set(u"/wiki/Quelle:VN%1"_s.arg(nr), {200, Padded(Fixture(fixture))});
}

void WikiFixtureServer::SetPicture(const QString& page, const QString& link, const QString& fixture)
{
    Set(u"/wiki/Datei:"_s + page, {200, Fixture(u"Datei.html"_s).replace("@LINK@", link.toUtf8())});
    Set(link, {200, Fixture(fixture)});
}

void WikiFixtureServer::ServeSampleSite()
{
    for (const int nr : {2401, 2402, 2403}) {
        SetIssue(nr, u"VN%1.html"_s.arg(nr));
        SetPicture(u"VN%1.jpg"_s.arg(nr), u"/images/a/a%1/VN%1.jpg"_s.arg(nr), u"cover.jpg"_s);
    }
    Set(u"/wiki/Zyklen"_s, {200, Fixture(u"Zyklen.html"_s)});
    SetPicture(u"VN2401Illu.jpg"_s, u"/images/b/b1/VN2401Illu.jpg"_s, u"illu.jpg"_s);
    SetPicture(u"VN2403Illu.jpg"_s, u"/images/b/b3/VN2403Illu.jpg"_s, u"illu.jpg"_s);
    Set(u"/wiki/Datei:VN2402Illu.jpg"_s, {200, Fixture(u"DateiOhneBild.html"_s)});
    Set(u"/pics/2/2402illu1.gif"_s, {200, Fixture(u"fallback.gif"_s)});
    Set(u"/pics/2/2402illu2.gif"_s, {200, Fixture(u"fallback.gif"_s)});
    Set(u"/pics/2/2402illu3.gif"_s, {200, Fixture(u"placeholder.gif"_s)});
}

void WikiFixtureServer::Serve(QTcpSocket* socket)
{
    if (!socket->canReadLine() || socket->property("served").toBool())
        return;
    socket->setProperty("served", true);
    const QByteArrayList request = socket->readLine().split(' ');
    const QString path = QUrl::fromPercentEncoding(request.value(1));
    m_requests << path;
    const Answer answer = m_answers.value(path, {404, "<html>nicht da</html>"});
    QByteArray head = "HTTP/1.1 " + QByteArray::number(answer.status) + " X\r\nConnection: close\r\n";
    if (!answer.location.isEmpty())
        head += "Location: " + answer.location + "\r\n";
    if (answer.announceLength)
        head += "Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n";
    const QByteArray reply = head + "\r\n" + answer.body;
    QTimer::singleShot(answer.delayMs, socket, [socket, reply] {
        socket->write(reply);
        socket->disconnectFromHost();
    });
}

} // namespace heft::test
