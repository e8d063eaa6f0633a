#pragma once
// An HTTP server on 127.0.0.1 for the web import: GET gets what was set for its path (404
// otherwise), one answer per connection. ServeSampleSite(): tests/fixtures/web, issues 2401-2403.

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
    };

    WikiFixtureServer();
    QString Url() const;
    void Set(const QString& path, const Answer& answer) { m_answers.insert(path, answer); }
    // The page of fixture `file`, padded beyond the size of the wiki's "no such page".
    void SetIssue(int nr, const QString& file);
    // The picture page `page` ("VN2401.jpg") linking to `link`, which serves fixture `file`.
    void SetPicture(const QString& page, const QString& link, const QString& file);
    void ServeSampleSite();
    // The paths asked for, in order.
    QStringList requests;

    static QByteArray Fixture(const QString& name);
    static QByteArray Padded(QByteArray page);

private:
    QTcpServer m_server;
    QHash<QString, Answer> m_answers;
};

} // namespace heft::test
