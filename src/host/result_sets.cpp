#include "host/result_sets.h"

#include <vector>

namespace host {
namespace {

std::size_t ChooseResult(const std::vector<platform::ResultSet>& results) {
    for (std::size_t i = 0; i < results.size(); ++i)
        if (!results[i].rows.empty()) return i;
    for (std::size_t i = results.size(); i-- > 0;)
        if (!results[i].columns.empty()) return i;
    return results.size() - 1;
}

}  // namespace

platform::RecordsetPtr FirstResultWithRows(const platform::RecordsetPtr& recordset) {
    if (!recordset) return nullptr;
    // Walk a copy, so that the caller's recordset still stands on its result.
    platform::Recordset walker = *recordset;
    std::vector<platform::ResultSet> results;
    do {
        results.push_back(walker.Current());
    } while (walker.NextRecordset());

    auto from = results.begin() + static_cast<std::ptrdiff_t>(ChooseResult(results));
    return std::make_shared<platform::Recordset>(std::vector<platform::ResultSet>(from, results.end()));
}

}  // namespace host
