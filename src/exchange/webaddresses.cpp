#include "webaddresses.h"

#include <QtGlobal>

using namespace Qt::StringLiterals;

namespace heft {

namespace {

QString FromEnvironment(const char* variable, const QString& fallback)
{
    QString value = qEnvironmentVariable(variable);
    if (value.isEmpty())
        return fallback;
    while (value.endsWith(u'/'))
        value.chop(1);
    return value;
}

} // namespace

QString WikiBaseUrl() { return FromEnvironment("HEFTARIUM_WIKI_URL", u"https://www.valdorin-wiki.de"_s); }

QString PublisherBaseUrl() { return FromEnvironment("HEFTARIUM_PUBLISHER_URL", u"https://www.valdorin.de"_s); }

} // namespace heft
