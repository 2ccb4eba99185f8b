#include "host/print_layout.h"

#include <optional>

#include "platform/convert.h"

namespace host {
namespace {

bool SameName(const std::string& a, const std::string& b) { return platform::UCase(a) == platform::UCase(b); }

// A printed text keeps its line breaks, whatever ends them.
std::string Printable(const std::string& text) { return platform::Trim(platform::Replace(text, "\r\n", "\n")); }

std::string DateText(const platform::Value& value) {
    if (value.kind() == platform::Value::Kind::Date) return platform::Format(value, "dd/mm/yyyy");
    return Printable(platform::ToText(value));
}

// The header's fields, each taken once; what nobody takes is shown under its own name.
class HeaderFields {
public:
    explicit HeaderFields(const std::vector<std::pair<std::string, platform::Value>>& fields)
        : fields_(fields), taken_(fields.size(), false) {}

    std::optional<platform::Value> Take(const std::string& name) {
        for (std::size_t i = 0; i < fields_.size(); ++i)
            if (!taken_[i] && SameName(fields_[i].first, name)) {
                taken_[i] = true;
                return fields_[i].second;
            }
        return std::nullopt;
    }
    std::string TakeText(const std::string& name) {
        auto value = Take(name);
        return value ? Printable(platform::ToText(*value)) : std::string();
    }
    // The fields whose names start so, in their order: the note's remarks.
    std::vector<std::string> TakeTextsStartingWith(const std::string& prefix) {
        std::vector<std::string> texts;
        for (std::size_t i = 0; i < fields_.size(); ++i)
            if (!taken_[i] && platform::UCase(fields_[i].first).rfind(platform::UCase(prefix), 0) == 0) {
                taken_[i] = true;
                texts.push_back(Printable(platform::ToText(fields_[i].second)));
            }
        return texts;
    }
    std::vector<std::pair<std::string, std::string>> Rest() const {
        std::vector<std::pair<std::string, std::string>> rest;
        for (std::size_t i = 0; i < fields_.size(); ++i)
            if (!taken_[i]) rest.emplace_back(fields_[i].first, DateText(fields_[i].second));
        return rest;
    }

private:
    const std::vector<std::pair<std::string, platform::Value>>& fields_;
    std::vector<bool> taken_;
};

enum class Figure { Text, Quantity, Money };

struct KnownColumn {
    const char* field;
    TableColumn column;
    Figure figure;
};

// The lines' columns in the order a clerk reads them; the widths favour the name.
const KnownColumn kKnownColumns[] = {
    {"Item Code", {"Code", CellAlign::Left, 1.2}, Figure::Text},
    {"Item Name", {"Item", CellAlign::Left, 3.3}, Figure::Text},
    {"Batch", {"Batch", CellAlign::Left, 1.5}, Figure::Text},
    {"Unit", {"Unit", CellAlign::Left, 0.8}, Figure::Text},
    {"Quantity", {"Qty", CellAlign::Right, 0.8}, Figure::Quantity},
    {"Base Quantity", {"Base qty", CellAlign::Right, 1.2}, Figure::Quantity},
    {"Unit Price", {"Price", CellAlign::Right, 1.3}, Figure::Money},
    {"Value", {"Value", CellAlign::Right, 1.5}, Figure::Money},
};
constexpr const char* kFreeField = "Free";

std::string FigureText(Figure figure, const platform::Value& value) {
    if (value.IsNull() || value.IsEmpty()) return "";
    switch (figure) {
        case Figure::Quantity: return platform::NumberToText(platform::ToNumber(value));
        case Figure::Money: return platform::Format(value, "#,##0.00");
        case Figure::Text: break;
    }
    return DateText(value);
}

bool MarksFree(const platform::Value& value) {
    if (value.IsNumeric()) return platform::ToNumber(value) != 0;
    return !platform::Trim(platform::ToText(value)).empty();
}

// A detail column as the table shows it: where it comes from and how it is written.
struct ShownColumn {
    int source;  // index in the detail's fields; -1 for the line number
    std::string field;
    Figure figure;
};

int FindColumn(const std::vector<std::string>& columns, const std::string& name) {
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (SameName(columns[i], name)) return int(i);
    return -1;
}

void LayOutParties(HeaderFields& fields, NoteLayout& layout) {
    PartyBlock billTo{"Bill to", fields.TakeText("Customer"), {}};
    if (auto address = fields.TakeText("Billing Address"); !address.empty()) billTo.lines.push_back(address);
    if (auto code = fields.TakeText("Customer ID"); !code.empty()) billTo.lines.push_back("Customer code " + code);
    if (!billTo.name.empty() || !billTo.lines.empty()) layout.parties.push_back(billTo);
    if (auto address = fields.TakeText("Shipping Address"); !address.empty())
        layout.parties.push_back({"Ship to", "", {address}});
}

void LayOutDetails(HeaderFields& fields, NoteLayout& layout) {
    const std::pair<const char*, const char*> known[] = {{"Salesman", "Salesman"},
                                                         {"Beat", "Beat"},
                                                         {"Reference", "Reference"},
                                                         {"Doc Reference", "Document reference"}};
    for (const auto& [field, caption] : known)
        if (auto text = fields.TakeText(field); !text.empty()) layout.details.emplace_back(caption, text);
}

// The line number first, the known columns in their order, then whatever else the
// lines carry; the free mark is not a column, it marks its row.
std::vector<ShownColumn> ChooseColumns(const PrintedNote& note, NoteLayout& layout) {
    std::vector<ShownColumn> shown{{-1, "", Figure::Quantity}};
    layout.columns.push_back({"#", CellAlign::Right, 0.5});
    std::vector<bool> placed(note.columns.size(), false);
    if (int freeColumn = FindColumn(note.columns, kFreeField); freeColumn >= 0) placed[freeColumn] = true;
    for (const auto& known : kKnownColumns) {
        int source = FindColumn(note.columns, known.field);
        if (source < 0 || placed[source]) continue;
        placed[source] = true;
        shown.push_back({source, known.field, known.figure});
        layout.columns.push_back(known.column);
    }
    for (std::size_t i = 0; i < note.columns.size(); ++i)
        if (!placed[i]) {
            shown.push_back({int(i), note.columns[i], Figure::Text});
            layout.columns.push_back({note.columns[i], CellAlign::Left, 1.0});
        }
    return shown;
}

void LayOutLines(const PrintedNote& note, const std::optional<platform::Value>& totalValue, NoteLayout& layout) {
    const std::vector<ShownColumn> shown = ChooseColumns(note, layout);
    const int freeColumn = FindColumn(note.columns, kFreeField);
    auto shownIndex = [&](const char* field) {
        for (std::size_t c = 0; c < shown.size(); ++c)
            if (SameName(shown[c].field, field)) return int(c);
        return -1;
    };
    const int nameAt = shownIndex("Item Name"), valueAt = shownIndex("Value"), unitAt = shownIndex("Unit");
    const int quantityAt = shownIndex("Quantity"), baseAt = shownIndex("Base Quantity");

    double quantity = 0, base = 0, value = 0;
    bool oneUnit = true;
    for (std::size_t r = 0; r < note.rows.size(); ++r) {
        const auto& source = note.rows[r];
        TableRow row;
        row.free = freeColumn >= 0 && MarksFree(source[freeColumn]);
        for (const auto& column : shown)
            row.cells.push_back(column.source < 0 ? std::to_string(r + 1)
                                                  : FigureText(column.figure, source[column.source]));
        if (row.free) {
            if (valueAt >= 0)
                row.cells[valueAt] = "Free";
            else if (nameAt >= 0)
                row.cells[nameAt] += " (free)";
        }
        if (quantityAt >= 0) quantity += platform::ToNumber(source[shown[quantityAt].source]);
        if (baseAt >= 0) base += platform::ToNumber(source[shown[baseAt].source]);
        if (valueAt >= 0) value += platform::ToNumber(source[shown[valueAt].source]);
        if (unitAt >= 0 && r > 0 && row.cells[unitAt] != layout.rows.front().cells[unitAt]) oneUnit = false;
        layout.rows.push_back(std::move(row));
    }
    if (layout.rows.empty()) return;

    layout.totals.assign(shown.size(), "");
    const std::size_t lines = layout.rows.size();
    int labelAt = nameAt;
    for (std::size_t c = 1; labelAt < 0 && c < shown.size(); ++c)
        if (shown[c].figure == Figure::Text) labelAt = int(c);
    if (labelAt >= 0) layout.totals[labelAt] = "Total, " + std::to_string(lines) + (lines == 1 ? " line" : " lines");
    // Boxes and pieces do not add up; the quantity is totalled only in one unit.
    if (quantityAt >= 0 && oneUnit) layout.totals[quantityAt] = platform::NumberToText(quantity);
    if (baseAt >= 0) layout.totals[baseAt] = platform::NumberToText(base);
    if (valueAt >= 0) layout.totals[valueAt] = FigureText(Figure::Money, totalValue ? *totalValue : value);
}

}  // namespace

NoteLayout LayOutNote(const PrintedNote& note) {
    NoteLayout layout;
    layout.title = (note.documentKind.empty() ? std::string("Document") : note.documentKind) + " Note";
    HeaderFields fields(note.header);
    layout.number = fields.TakeText(note.documentKind + " No");
    if (layout.number.empty()) layout.number = note.key;
    if (auto date = fields.Take("Date")) layout.date = DateText(*date);
    LayOutParties(fields, layout);
    LayOutDetails(fields, layout);
    for (auto& remark : fields.TakeTextsStartingWith("Memo"))
        if (!remark.empty()) layout.remarks.push_back(remark);
    const auto totalValue = fields.Take("Total Value");
    for (auto& [name, text] : fields.Rest())
        if (!text.empty()) layout.details.emplace_back(name, text);
    if (note.hasDetail) LayOutLines(note, totalValue, layout);
    layout.signatures = {"Received by (name, signature, date)", "For the distributor (authorised signatory)"};
    return layout;
}

}  // namespace host
