#pragma once
// A small HTTP server on 127.0.0.1 for the web import: it answers GET with
// what a test set for the path (404 otherwise), one answer per connection.
// ServeSampleSite() sets up the fixture wiki of tests/fixtures/web: issues
// 2401 to 2403, the cycle list, picture pages and pictures, and the
// publisher's fallback series for 2402.

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QTcpServer>

namespace heft::test {

class WikiFixtureServer : public QObject {
public:
    struct Answer {
        Answer(int status_ = 200, QByteArray body_ = {}, QByteArray location_ = {}, int delayMs_ = 0,
               bool announceLength_ = true)
            : status(status_), body(std::move(body_)), location(std::move(location_)), delayMs(delayMs_),
              announceLength(announceLength_)
        {
        }
        int status;
        QByteArray body;
        QByteArray location; // a redirect's target
        int delayMs;         // before anything is sent
        bool announceLength;
    };

    WikiFixtureServer();
    QString Url() const;
    void Set(const QString& path, Answer answer) { m_answers.insert(path, std::move(answer)); }
    // An issue page of `fixture` under /wiki/Quelle:VN{nr}, padded beyond the
    // size below which the wiki's page counts as missing.
    void SetIssue(int nr, const QString& fixture);
    // The picture page of `page` ("VN2401.jpg") linking to `link`, and the
    // picture behind the link.
    void SetPicture(const QString& page, const QString& link, const QString& fixture);
    void ServeSampleSite();
    // Paths asked for, in order.
    const QStringList& Requests() const { return m_requests; }
    qsizetype Hits(const QString& path) const { return m_requests.count(path); }

    static QByteArray Fixture(const QString& name);
    static QByteArray Padded(QByteArray page);

private:
    void Serve(QTcpSocket* socket);

    QTcpServer m_server;
    QHash<QString, Answer> m_answers;
    QStringList m_requests;
};

} // namespace heft::test
