#include "server/procedure_registry.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

#include "server/server_objects.h"

namespace server {
namespace {

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front()))) text.remove_prefix(1);
    while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back()))) text.remove_suffix(1);
    return text;
}

std::string Unbracketed(std::string_view part) {
    part = Trimmed(part);
    if (part.size() >= 2 && part.front() == '[' && part.back() == ']') part = part.substr(1, part.size() - 2);
    std::string out(part);
    std::transform(out.begin(), out.end(), out.begin(), [](unsigned char c) { return std::tolower(c); });
    return out;
}

template <class Map, class Fn>
void Add(Map& map, std::string name, Fn function, const char* kind) {
    std::string key = CanonicalObjectName(name);
    if (key.empty() || !function) throw std::logic_error(std::string("empty ") + kind + " registration");
    if (map.count(key)) throw std::logic_error(std::string(kind) + " " + name + " is registered twice");
    map.emplace(key, typename Map::mapped_type{std::move(name), std::move(function)});
}

template <class Map>
std::vector<std::string> Names(const Map& map) {
    std::vector<std::string> names;
    for (const auto& [key, entry] : map) names.push_back(entry.name);
    return names;
}

}  // namespace

std::string CanonicalObjectName(std::string_view name) {
    name = Trimmed(name);
    // The owner is everything up to the last dot outside brackets.
    std::size_t cut = std::string_view::npos;
    bool inBracket = false;
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (name[i] == '[')
            inBracket = true;
        else if (name[i] == ']')
            inBracket = false;
        else if (name[i] == '.' && !inBracket)
            cut = i;
    }
    if (cut != std::string_view::npos) {
        if (Unbracketed(name.substr(0, cut)) != "dbo") return Unbracketed(name);  // another owner: kept, so no match
        name = name.substr(cut + 1);
    }
    return Unbracketed(name);
}

void ProcedureRegistry::RegisterProcedure(std::string name, Procedure procedure) {
    Add(procedures_, std::move(name), std::move(procedure), "procedure");
}

void ProcedureRegistry::RegisterTableFunction(std::string name, TableFunction function) {
    Add(tableFunctions_, std::move(name), std::move(function), "table function");
}

const Procedure* ProcedureRegistry::FindProcedure(std::string_view name) const {
    auto found = procedures_.find(CanonicalObjectName(name));
    return found == procedures_.end() ? nullptr : &found->second.function;
}

const TableFunction* ProcedureRegistry::FindTableFunction(std::string_view name) const {
    auto found = tableFunctions_.find(CanonicalObjectName(name));
    return found == tableFunctions_.end() ? nullptr : &found->second.function;
}

std::vector<std::string> ProcedureRegistry::ProcedureNames() const { return Names(procedures_); }
std::vector<std::string> ProcedureRegistry::TableFunctionNames() const { return Names(tableFunctions_); }

ProcedureRegistry& DefaultRegistry() {
    static ProcedureRegistry registry = [] {
        ProcedureRegistry filled;
        RegisterServerObjects(filled);
        return filled;
    }();
    return registry;
}

}  // namespace server
