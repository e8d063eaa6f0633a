#pragma once
// The benchmark's frame: named figures, medians of repeated runs, peak
// memory, and generated collections kept for the whole run.

#include <QString>

#include <functional>

namespace heft {
class EntryList;
class Session;
}

namespace heft::bench {

struct Figure {
    QString name; // with the unit in it, e.g. "load_100k_ms"
    std::function<double()> measure;
};

void Register(Figure figure);
// Runs the figures whose names start with one of the prefixes (all when
// none is given) and prints "name: value" per figure.
int RunFigures(const QStringList& prefixes);
// Serves the web import's fixture wiki on 127.0.0.1 and prints its address,
// for HEFTARIUM_WIKI_URL and HEFTARIUM_PUBLISHER_URL; returns when stopped.
int ServeFixtureWiki();

// Median wall time in milliseconds of `runs` calls.
double MedianMs(int runs, const std::function<void()>& job);
// Peak resident memory of the process in MB (VmHWM), and its reset, so that
// a figure measures its own job and not the generation before it.
double PeakMemoryMb();
void ResetPeakMemory();

// A generated collection of the given size, made once per run in a
// temporary folder; the path of a fresh copy for each call.
QString CollectionCopy(int entries);

// Opens a bench collection into the session; one that won't open ends the
// run, since every figure after it would be meaningless.
void OpenCollection(Session& session, const QString& path);
// What the program does at start: open, read the configuration, fill the
// full list from the snapshot sorted by number.
void LoadCollection(Session& session, EntryList& list, const QString& path);

} // namespace heft::bench

#define HEFT_BENCH_FIGURE(name, body) \
    static const bool registered_##name = (heft::bench::Register({QStringLiteral(#name), body}), true);
