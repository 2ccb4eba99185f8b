// The database of the application, as one SQLite script: every table the screen and
// its stored procedures read or write, with keys, constraints and the application's
// own rows (message texts, voucher prefixes, running serials). docs/schema.md tells
// what each table and column means.
#pragma once

#include <string>

namespace server {

// Creates every table, index and trigger on an empty database and fills the
// application's own rows. The script holds no transaction statements: the caller
// decides whether it runs inside one. Foreign keys are declared; the connection
// switches their enforcement on (PRAGMA foreign_keys).
std::string SchemaScript();

// The pieces of the script, one subject each, in the order the script runs them.
// Each is plain SQL except for one convention that SchemaScript applies: a column
// declared `DATETIME` gets a CHECK that it holds 'YYYY-MM-DD HH:MM:SS', and one
// declared `BIT` a CHECK that it holds 0 or 1.
namespace schema_part {
std::string Items();        // units, categories and groups, items, batches, openings
std::string Parties();      // DS types, salesmen, beats, customers and their mappings
std::string Documents();    // numbering, sales confirmations, purchase orders, dispatches
std::string Accounts();     // invoices, collections, postings
std::string Schemes();      // schemes, slabs, their items, free items and customers
std::string Application();  // messages, labels, layouts, switches, schema identity
}  // namespace schema_part

// Adds the format CHECKs of DATETIME and BIT columns to a script (see above).
std::string WithTypeChecks(const std::string& script);

}  // namespace server
