// The rows of a small distributor, for the demo database and the session scripts:
// masters, stock, pending documents, stored dispatches, accounts and schemes, all
// dated relative to the day the database is made. docs/demo-data.md tells which rows
// make which path of the screen reachable.
#pragma once

#include <string>

#include "platform/value.h"

namespace server {

// The INSERTs that fill a database made by SchemaScript. The same day always gives
// the same script.
std::string DemoDataScript(platform::Date today);

// The pieces of the script, in the order it runs them (parents before children).
// They are written with date tokens in place of dates: {T} is today, {T-12} twelve
// days ago, {T+400} four hundred days ahead, and a time may follow the offset, as in
// {T-3 16:20}. ExpandDemoDates turns the tokens into date-time literals.
namespace demo_part {
std::string Settings();            // document types, list layouts, labels, switches
std::string Items();               // units, categories and groups, the item master
std::string Parties();             // DS types, salesmen, beats, customers, mappings
std::string Stock();               // batches and opening stock
std::string SalesConfirmations();  // sales confirmations and their lines
std::string PurchaseOrders();      // purchase orders received from customers
std::string Dispatches();          // stored dispatch notes and their lines
std::string Accounts();            // invoices, collections
std::string Schemes();             // schemes of every kind, slabs, free items
std::string Numbering();           // the running serials brought up to the documents
}  // namespace demo_part

// Replaces every date token of the text by a quoted 'YYYY-MM-DD HH:MM:SS' literal,
// counted in whole days from the date part of today. Any other text in braces is a
// mistake in the template and raises std::invalid_argument.
std::string ExpandDemoDates(const std::string& text, platform::Date today);

}  // namespace server
