#include "benchsupport.h"

#include "collectiongenerator.h"

#include "core/config.h"
#include "core/session.h"
#include "mainwin/entrylist.h"

#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace heft::bench {

namespace {

std::vector<Figure>& Figures()
{
    static std::vector<Figure> figures;
    return figures;
}

QTemporaryDir& WorkFolder()
{
    static QTemporaryDir dir;
    return dir;
}

} // namespace

void Register(Figure figure) { Figures().push_back(std::move(figure)); }

int RunFigures(const QStringList& prefixes)
{
    QTextStream out(stdout);
    for (const Figure& figure : Figures()) {
        const bool wanted = prefixes.isEmpty() || std::any_of(prefixes.begin(), prefixes.end(), [&](const QString& p) {
                                return figure.name.startsWith(p);
                            });
        if (!wanted)
            continue;
        const double value = figure.measure();
        out << figure.name << u": "_s << QString::number(value, 'f', value < 10 ? 1 : 0) << Qt::endl;
    }
    return 0;
}

double MedianMs(int runs, const std::function<void()>& job)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        job();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

double PeakMemoryMb()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toDouble() / 1024.0;
    return -1;
}

void ResetPeakMemory()
{
    // Writing 5 to clear_refs resets the high-water mark to the present size.
    QFile clear(u"/proc/self/clear_refs"_s);
    if (clear.open(QIODevice::WriteOnly))
        clear.write("5");
}

void OpenCollection(Session& session, const QString& path)
{
    DbError error;
    session.CollectionDb = Database::Open(path, &error);
    if (!session.CollectionDb)
        qFatal("bench collection not opened: %s", qPrintable(error.description));
}

void LoadCollection(Session& session, EntryList& list, const QString& path)
{
    OpenCollection(session, path);
    DbError error;
    ReadConfiguration(session, &error);
    ReadParameters(session);
    session.SharedRecordset = session.CollectionDb->Select(u"SELECT * FROM HEFTLIST ORDER BY Nr;"_s);
    list.SetupGridColumns();
    list.FillGrid(session);
}

QString CollectionCopy(int entries)
{
    static QMap<int, QString> generated;
    if (!generated.contains(entries)) {
        const QString path = WorkFolder().filePath(u"generated-%1.mdb"_s.arg(entries));
        GenerateCollection(path, entries);
        generated[entries] = path;
    }
    static int copies = 0;
    const QString copy = WorkFolder().filePath(u"copy-%1.mdb"_s.arg(++copies));
    QFile::copy(generated[entries], copy);
    return copy;
}

} // namespace heft::bench
