#include "parties/party_support.h"

#include "platform/convert.h"

namespace parties {

host_services::AutoList& PartyList(std::unique_ptr<host_services::AutoList>& list, const ListFactory& make,
                                   host_services::AutoListOwner& owner, platform::TextBox& box) {
    if (!list) {
        list = make();
        list->SetOwner(owner);
        list->SetLockedToList(true);
        list->AttachControl(box);
    }
    return *list;
}

ProgramWrite::ProgramWrite(std::vector<host_services::AutoList*> lists) : lists_(std::move(lists)) {
    for (auto* list : lists_)
        if (list) list->SetEnabled(true);
}

ProgramWrite::~ProgramWrite() {
    for (auto* list : lists_)
        if (list) list->SetEnabled(false);
}

Candidates WalkCandidates(platform::Connection& connection, const std::string& sql, const IsPrevious& isPrevious) {
    Candidates found;
    auto rs = connection.Execute(sql);
    for (; rs && rs->IsOpen() && !rs->Eof(); rs->MoveNext()) {
        const std::string key = platform::ToText(rs->Fields(0));
        const std::string name = platform::ToText(rs->Fields(1));
        ++found.count;
        if (found.count == 1) {
            found.firstKey = key;
            found.firstName = name;
        }
        if (isPrevious(key, name)) {
            found.previousFound = true;
            break;
        }
    }
    if (rs && rs->IsOpen()) rs->Close();
    return found;
}

int CountGridLines(const platform::DTFlex& grid) {
    int rows = grid.GridRows();
    if (rows > 0 && grid.IsBlankRow(rows)) --rows;
    return rows;
}

void EmptyGrid(platform::DTFlex& grid) {
    grid.ClearGrid();
    grid.SetGridRows(1);
}

std::string SqlNumber(double value) { return platform::NumberToText(value); }

}  // namespace parties
