// Small pieces the salesman, beat and category group routines share: the type-ahead
// lists of the party boxes, the bracket around a program's write into a box, the
// walk over a mapping statement's candidates, and the grid's line count.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/database.h"
#include "platform/grid.h"
#include "screen/host_services/auto_list.h"
#include "screen/host_services/hosted_form.h"

namespace parties {

using ListFactory = std::function<std::unique_ptr<host_services::AutoList>()>;

// The list of a party box. The customer and item list set-up makes it; where a
// party routine needs it first, it is made here, owned by the form and following
// the box.
host_services::AutoList& PartyList(std::unique_ptr<host_services::AutoList>& list, const ListFactory& make,
                                   host_services::AutoListOwner& owner, platform::TextBox& box);

// While the program writes into boxes, their lists must not pop up: SetEnabled(true)
// for the lifetime of the bracket, SetEnabled(false) after. Lists that do not exist
// are passed over.
class ProgramWrite {
public:
    explicit ProgramWrite(std::vector<host_services::AutoList*> lists);
    ~ProgramWrite();
    ProgramWrite(const ProgramWrite&) = delete;
    ProgramWrite& operator=(const ProgramWrite&) = delete;

private:
    std::vector<host_services::AutoList*> lists_;
};

// What a walk over the candidates of a mapping statement found: the rows are
// (key, name); the walk stops at the row that is the previous choice.
struct Candidates {
    long count = 0;
    std::string firstKey, firstName;
    bool previousFound = false;
};
using IsPrevious = std::function<bool(const std::string& key, const std::string& name)>;
Candidates WalkCandidates(platform::Connection& connection, const std::string& sql, const IsPrevious& isPrevious);

// The document's lines: the grid's rows, less the blank row offered for entry at
// the bottom.
int CountGridLines(const platform::DTFlex& grid);

// Empties the grid down to the one blank row offered for entry.
void EmptyGrid(platform::DTFlex& grid);

// A number as it stands in a statement: whole numbers without a decimal point.
std::string SqlNumber(double value);

}  // namespace parties
