// The database files of the application: opening one, making a new one from the
// schema (and the demo data), and taking a consistent copy.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/database.h"
#include "server/embedded_connection.h"

namespace server {

// An existing database file of this application. A missing file, or one that is not
// ours (no SchemaInfo row ('Application', 'Dispatch')), is refused with a RuntimeError
// and left untouched.
platform::ConnectionPtr OpenDatabase(const std::string& path);
std::shared_ptr<EmbeddedConnection> OpenEmbedded(const std::string& path);
std::shared_ptr<EmbeddedConnection> OpenEmbedded(const std::string& path, const EmbeddedConnection::Options& options);

// A new database file with the schema and, when asked, the demo data dated from
// today. The file must not exist yet (an empty file, as a temporary-name call leaves
// it, counts as not there).
std::shared_ptr<EmbeddedConnection> CreateDatabase(const std::string& path, bool withDemoData);

// The same from scripts of one's own, run in order in one transaction; the result
// must be one of our databases. On any failure the new file is removed again.
std::shared_ptr<EmbeddedConnection> CreateDatabaseFromScripts(const std::string& path,
                                                              const std::vector<std::string>& scripts);

// A consistent copy of one of our databases, taken through SQLite's backup while
// others may be using it. The destination must not exist yet (or be empty).
void CopyDatabase(const std::string& from, const std::string& to);

// True when the connection's database says it is this application's.
bool IsDispatchDatabase(EmbeddedConnection& connection);

}  // namespace server
