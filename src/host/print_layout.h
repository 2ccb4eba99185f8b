// What a printed note shows, in the order a page shows it: the answers of the
// template's procedures turned into headings, party blocks, a table of lines and
// its totals, remarks and the signature lines. The drawing takes this as it is;
// which answer goes where and how a figure is written is decided here.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/value.h"

namespace host {

// What the template's procedures answered for one document.
struct PrintedNote {
    std::string documentKind;  // "Dispatch"
    std::string key;
    std::string settingsFile;
    std::vector<std::pair<std::string, platform::Value>> header;  // the abstract's one row, by field name
    bool hasDetail = false;                                       // the detail procedure answered a result
    std::vector<std::string> columns;                             // the detail's field names
    std::vector<std::vector<platform::Value>> rows;
};

enum class CellAlign { Left, Right };

struct TableColumn {
    std::string heading;
    CellAlign align = CellAlign::Left;
    double share = 1.0;  // of the table's width, relative to the other columns
};

struct TableRow {
    std::vector<std::string> cells;  // one a column
    bool free = false;               // goods given away with the note
};

// A captioned block of lines: "Bill to" with the customer and the address.
struct PartyBlock {
    std::string caption;
    std::string name;  // drawn bold; may be empty
    std::vector<std::string> lines;
};

struct NoteLayout {
    std::string title;   // "Dispatch Note"
    std::string number;  // the note's number as the customer was told it
    std::string date;    // empty when the note has none
    std::vector<PartyBlock> parties;
    std::vector<std::pair<std::string, std::string>> details;  // salesman, beat, references
    std::vector<TableColumn> columns;
    std::vector<TableRow> rows;
    std::vector<std::string> totals;  // one a column; empty when the note has no lines
    std::vector<std::string> remarks;
    std::vector<std::string> signatures;  // the captions of the signature lines
};

NoteLayout LayOutNote(const PrintedNote& note);

}  // namespace host
