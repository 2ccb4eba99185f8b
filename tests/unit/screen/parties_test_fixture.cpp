#include "parties_test_fixture.h"

#include <filesystem>

#include "platform/convert.h"
#include "server/database_files.h"
#include "support/scratch_files.h"

namespace parties_test {

ScratchDatabase::ScratchDatabase() {
    path_ = test_support::ScratchPath("parties", ".db");
}

ScratchDatabase::~ScratchDatabase() {
    std::error_code ignored;
    for (const char* suffix : {"", "-wal", "-shm"}) std::filesystem::remove(path_ + suffix, ignored);
}

std::shared_ptr<server::EmbeddedConnection> MakeDemoDatabase(const std::string& path) {
    return server::CreateDatabase(path, true);
}

PartiesTest::PartiesTest() : database(MakeDemoDatabase(file.Path())) {
    host = std::make_unique<host::PlainHost>(database, settings, transcript, answers);
    form = std::make_unique<screen::Zuro_frmDispatch_Dispatch>(host->Services());
    const platform::Date today = platform::DateSerial(2026, 11, 22);
    host->SetServerDate(today);
    form->InitForm(today, screen::mode::NewDispatch, host->Context(), today);
    transcript.TakeNumbered();
    transcript.TakeMessages();
    linesAtOpen = transcript.Lines().size();
}

PartiesTest::~PartiesTest() {
    form.reset();
    host.reset();
}

void PartiesTest::Sql(const std::string& script) { database->ExecuteScript(script); }

void PartiesTest::Pick(platform::TextBox& box, const std::string& text, const std::string& key) {
    box.SetText(text);
    box.Tag = key;
    // The user has closed whatever list the typing opened.
    for (auto* list : {form->objSalesmanList.get(), form->objBeatList.get(), form->objCustomerList.get()})
        if (list && list->GetVisible()) list->HideList();
}

void PartiesTest::EnterSalesman(int shift) {
    int key = 13;
    form->txtSalesman_KeyDown(key, shift);
}

void PartiesTest::EnterBeat(int shift) {
    int key = 13;
    form->txtBeat_KeyDown(key, shift);
}

void PartiesTest::EnterCategory(int shift) {
    int key = 13;
    form->txtCategory_KeyDown(key, shift);
}

void PartiesTest::AddGridLine(const std::string& itemCode, const std::string& itemName) {
    auto& grid = form->DTFlexDispatch;
    const int row = GridLines() + 1;
    grid.SetGridRows(row + 1);
    grid.SetCell(row, 1, itemCode);
    grid.SetCell(row, 2, itemName);
}

int PartiesTest::GridLines() const {
    const auto& grid = form->DTFlexDispatch;
    int rows = grid.GridRows();
    if (rows > 0 && grid.IsBlankRow(rows)) --rows;
    return rows;
}

std::vector<std::string> PartiesTest::ErrorLines() const {
    static const std::vector<std::string> partyRoutines = {
        "GetSalesmanID", "GetSalesmanName", "GetBeatID", "GetBeatName", "GetGroupID", "GetGroupName",
        "ValidSalesman", "ValidBeat", "ValidCatGroup", "isBeatDeactivated", "txtSalesman_Change",
        "txtSalesman_KeyDown", "txtSalesman_LostFocus", "txtBeat_Change", "txtBeat_KeyDown", "txtBeat_LostFocus",
        "txtCategory_KeyDown", "txtCategory_LostFocus", "LoadPreviousValues", "SetDefaultSalesman",
        "SetDefaultBeat", "SetDefaultCatGroup", "GetCategoryGroupNames", "LoadDefaultBeatSalesman", "LoadSalesman",
        "LoadBeat", "LoadCustomer", "LoadCategoryGroup", "CheckForAllCatGrpMapped", "DSTypeCatMapped",
        "DSTypeNotMapped", "GroupExistsForSalesman", "CheckForGridItem", "CheckForGroupChange", "ResetCatGrp",
        "ClearSalesman", "ClearBeat", "ClearCategoryGroup", "CheckTinNumber"};
    std::vector<std::string> errors;
    const auto& lines = transcript.Lines();
    for (std::size_t i = linesAtOpen; i < lines.size(); ++i) {
        const std::string& line = lines[i];
        if (line.rfind("error ", 0) != 0) continue;
        for (const auto& routine : partyRoutines)
            if (line.find(" Dispatch: " + routine + " - ") != std::string::npos) errors.push_back(line);
    }
    return errors;
}

std::string PartiesTest::Focused() const {
    auto* control = form->ActiveControl();
    return control ? control->FullName() : "";
}

std::string RowsText(const platform::RecordsetPtr& rs) {
    std::string text;
    for (; rs && rs->IsOpen() && !rs->Eof(); rs->MoveNext()) {
        if (!text.empty()) text += ";";
        for (int i = 0; i < rs->FieldCount(); ++i) text += (i ? "|" : "") + platform::ToText(rs->Fields(i));
    }
    return text;
}

}  // namespace parties_test
