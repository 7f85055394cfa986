#pragma once

#include "ConfigImage.h"

#include <QString>

// The throwaway cluster the tests run in: ctest starts them under pg_virtualenv, which
// exports PGHOST, PGPORT, PGUSER and PGPASSWORD for a cluster made for the run.
namespace TestServer {

// Whether the PG* variables name a server.
bool available();
// A new, empty database on it; its postgresql:// address (the rest from the PG* variables).
QString freshDatabase();
// Runs one statement on the database of an address, as the administrator would; false with
// the reason printed.
bool run(const QString &uri, const QString &sql);
// The first column of the first row of a query, as text.
QString scalar(const QString &uri, const QString &sql);

} // namespace TestServer

// A validator image whose every channel byte tells its seed, so that a row and its channels
// from two stores are told apart: seed in the prices, the channels and the value bytes.
ConfigImage seededImage(int seed);
