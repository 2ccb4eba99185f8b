#include "parties_test_fixture.h"

#include "platform/convert.h"

namespace parties_test {

PartiesTest::PartiesTest() {
    Open(screen::mode::NewDispatch);
    transcript.TakeNumbered();
    transcript.TakeMessages();
    linesAtOpen = transcript.Lines().size();
}

void PartiesTest::Pick(platform::TextBox& box, const std::string& text, const std::string& key) {
    box.SetText(text);
    box.Tag = key;
    // The user has closed whatever list the typing opened.
    for (auto* list : {form->objSalesmanList.get(), form->objBeatList.get(), form->objCustomerList.get()})
        if (list && list->GetVisible()) list->HideList();
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
    std::vector<std::string> errors;
    const auto& lines = transcript.Lines();
    for (std::size_t i = linesAtOpen; i < lines.size(); ++i)
        if (lines[i].rfind("error ", 0) == 0) errors.push_back(lines[i]);
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
