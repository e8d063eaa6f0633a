#pragma once
// The two servers of the web import: the series wiki and, as a second source
// of illustrations, the publisher's web server. The addresses stand here and
// nowhere else; HEFTARIUM_WIKI_URL and HEFTARIUM_PUBLISHER_URL replace them,
// which points the import at another server (a mirror, a test server).

#include <QString>

namespace heft {

// Without a trailing slash, e.g. "https://wiki.example.org".
QString WikiBaseUrl();
QString PublisherBaseUrl();

} // namespace heft
