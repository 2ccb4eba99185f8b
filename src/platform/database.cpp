#include "platform/database.h"

#include <algorithm>
#include <cctype>

#include "platform/runtime_error.h"

namespace platform {
namespace {
bool SameName(const std::string& a, const std::string& b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](unsigned char x, unsigned char y) {
               return std::tolower(x) == std::tolower(y);
           });
}
}  // namespace

Recordset::Recordset(std::vector<ResultSet> results) : results_(std::move(results)) {
    if (results_.empty()) results_.emplace_back();
}

const ResultSet& Recordset::Current() const {
    if (!open_) throw RuntimeError(3704, "Operation is not allowed when the object is closed.");
    return results_[set_];
}

// A forward-only recordset is at BOF only when it has no rows.
bool Recordset::Bof() const { return Current().rows.empty(); }
bool Recordset::Eof() const { return row_ >= Current().rows.size(); }

void Recordset::MoveNext() {
    if (Eof()) throw RuntimeError(err::NoCurrentRecord);
    ++row_;
}

void Recordset::MoveFirst() {
    Current();
    row_ = 0;
}

const Value& Recordset::FieldAt(int index) const {
    const auto& set = Current();
    if (index < 0 || static_cast<std::size_t>(index) >= set.columns.size()) throw RuntimeError(err::ItemNotFound);
    if (row_ >= set.rows.size()) throw RuntimeError(err::NoCurrentRecord);
    return set.rows[row_][static_cast<std::size_t>(index)];
}

const Value& Recordset::Fields(int index) const { return FieldAt(index); }

const Value& Recordset::Fields(const std::string& name) const {
    const auto& columns = Current().columns;
    for (std::size_t i = 0; i < columns.size(); ++i)
        if (SameName(columns[i], name)) return FieldAt(static_cast<int>(i));
    throw RuntimeError(err::ItemNotFound);
}

int Recordset::FieldCount() const { return static_cast<int>(Current().columns.size()); }

std::string Recordset::FieldName(int index) const {
    const auto& columns = Current().columns;
    if (index < 0 || static_cast<std::size_t>(index) >= columns.size()) throw RuntimeError(err::ItemNotFound);
    return columns[static_cast<std::size_t>(index)];
}

long Recordset::RecordCount() const { return static_cast<long>(Current().rows.size()); }
long Recordset::RowsAffected() const { return Current().rowsAffected; }

void Recordset::Close() {
    Current();
    open_ = false;
}

bool Recordset::NextRecordset() {
    Current();
    if (set_ + 1 >= results_.size()) {
        open_ = false;
        return false;
    }
    ++set_;
    row_ = 0;
    return true;
}

}  // namespace platform
