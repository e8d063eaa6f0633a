#pragma once
// An HTTP server on 127.0.0.1 for the web import: GET gets what was set for
// its path (404 otherwise), one answer per connection. ServeSampleSite()
// sets up the fixture wiki of tests/fixtures/web: issues 2401 to 2403, the
// cycle list, picture pages and pictures, the publisher's series for 2402.

#include <QHash>
#include <QStringList>
#include <QTcpServer>

namespace heft::test {

class WikiFixtureServer : public QObject {
public:
    struct Answer {
        int status = 200;
        QByteArray body;
        QByteArray location; // a redirect's target
        int delayMs = 0;     // before anything is sent
        bool announceLength = true;
        static Answer Ok(QByteArray page) { return {200, std::move(page), {}, 0, true}; }
    };

    WikiFixtureServer();
    QString Url() const;
    void Set(const QString& path, const Answer& answer) { m_answers.insert(path, answer); }
    // The page of fixture `file`, padded beyond the size of the wiki's "no such page".
    void SetIssue(int nr, const QString& file);
    // The picture page `page` ("VN2401.jpg") linking to `link`, which serves fixture `file`.
    void SetPicture(const QString& page, const QString& link, const QString& file);
    void ServeSampleSite();
    qsizetype Hits(const QString& path) const { return m_requests.count(path); }
    const QStringList& Requests() const { return m_requests; }

    static QByteArray Fixture(const QString& name);
    static QByteArray Padded(QByteArray page);

private:
    QTcpServer m_server;
    QHash<QString, Answer> m_answers;
    QStringList m_requests;
};

} // namespace heft::test
