#include "testsupport.h"

#include "core/schema.h"
#include "core/textfuncs.h"

#include <QApplication>
#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace heft::test {

TempCollection::TempCollection(const QString& series, const QString& kind)
{
    DbError error;
    session.DataFolder = dir.path();
    session.log = Log(dir.filePath(u"Heftarium.log"_s));
    session.prompter = &prompter;
    session.CollectionDb = CreateCollectionFile(Path(), series, kind, &error);
    if (!session.CollectionDb)
        qFatal("test collection not created: %s", qPrintable(error.description));
    session.Config.SeriesName = series;
    session.Config.ListKind = kind;
}

void TempCollection::Add(const QList<TestEntry>& entries)
{
    for (const TestEntry& e : entries)
        Exec(u"INSERT INTO HEFTLIST VALUES (%1, '%2', '%3', %4, '%5', %6, %7);"_s.arg(e.nr)
                 .arg(QuoteSql(e.autor), QuoteSql(e.titel))
                 .arg(e.auflage)
                 .arg(e.zyklus, e.gelesen ? u"255"_s : u"0"_s,
                      e.bemerkung.isNull() ? u"NULL"_s : u"'"_s + QuoteSql(e.bemerkung) + u"'"_s));
}

void TempCollection::Exec(const QString& sql)
{
    const DbError error = session.CollectionDb->Execute(sql);
    if (error)
        qFatal("set-up statement failed: %s\n%s", qPrintable(error.description), qPrintable(sql));
}

QVariant TempCollection::Value(const QString& sql)
{
    DbError error;
    const QVariant value = session.CollectionDb->SelectValue(sql, &error);
    if (error)
        qFatal("query failed: %s\n%s", qPrintable(error.description), qPrintable(sql));
    return value;
}

ModalScript::ModalScript(const QString& name) : m_name(name)
{
    m_timer.setInterval(5);
    QObject::connect(&m_timer, &QTimer::timeout, [this] { Poll(); });
    m_timer.start();
}

void ModalScript::Poll()
{
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || dialog->objectName() != m_name || dialog->property("scripted").toBool())
        return;
    dialog->setProperty("scripted", true);
    ++opened;
    if (!m_steps.isEmpty())
        m_steps.takeFirst()(*dialog);
    if (dialog->isVisible()) {
        leftOpen = true;
        dialog->reject();
    }
}

void TempCollection::Reopen()
{
    DbError error;
    session.CollectionDb = Database::Open(Path(), &error);
    if (!session.CollectionDb)
        qFatal("test collection not reopened: %s", qPrintable(error.description));
}

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace heft::test
