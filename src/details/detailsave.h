#pragma once
// Writing one entry's details: every save rewrites all four tables, in a
// fixed order, whether or not anything changed in them.

#include "detailrecord.h"

#include <QList>
#include <QString>

namespace heft {

class Session;

// A statement of the save, and the one that runs instead when it fails (a
// duplicate key turns the insert of an existing row into its update).
struct SaveStep {
    QString Sql;
    QString OnError;
};

// The statements for the values, in the order they run. The texts are
// trimmed and quoted here; the date is written as dd.MM.yyyy.
QList<SaveStep> DetailSaveSteps(const DetailValues& values);

// Runs the steps and then stamps the entry's last change. A failing
// statement doesn't stop the ones after it. ExecuteSql must be quiet for
// this (it is under the detail window's caption), or the expected duplicate
// key would turn into an overwrite question.
void SaveDetails(Session& session, const DetailValues& values);

} // namespace heft
