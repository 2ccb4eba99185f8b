#include "screen/routine_binder.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "platform/convert.h"
#include "platform/runtime_error.h"

namespace screen::binding {

Signature::Signature(std::string routine, std::vector<RoutineParameter> parameters, std::vector<bool> byReference)
    : routine_(std::move(routine)), parameters_(std::move(parameters)), byReference_(std::move(byReference)) {
    if (parameters_.size() != byReference_.size())
        throw std::logic_error(fmt::format("{} has {} parameters, {} names were given", routine_, byReference_.size(),
                                           parameters_.size()));
    bool optionalSeen = false;
    for (std::size_t i = 0; i < parameters_.size(); ++i) {
        const RoutineParameter& parameter = parameters_[i];
        if (parameter.inOut && !byReference_[i])
            throw std::logic_error(
                fmt::format("{}: {} is taken by value and cannot be InOut", routine_, parameter.name));
        if (parameter.fallback && byReference_[i])
            throw std::logic_error(
                fmt::format("{}: {} is by reference and cannot be Optional", routine_, parameter.name));
        if (byReference_[i] && !parameter.inOut) {
            wordIndex_.emplace_back();
            continue;
        }
        if (optionalSeen && !parameter.fallback)
            throw std::logic_error(fmt::format("{}: {} follows an optional parameter", routine_, parameter.name));
        optionalSeen = optionalSeen || parameter.fallback.has_value();
        wordIndex_.emplace_back(most_++);
        if (!parameter.fallback) ++least_;
    }
}

void Signature::CheckCount(std::size_t given) const {
    if (given >= least_ && given <= most_) return;
    std::vector<std::string> names;
    for (std::size_t i = 0; i < parameters_.size(); ++i)
        if (wordIndex_[i]) names.push_back(parameters_[i].name);
    std::string takes;
    if (most_ == 0)
        takes = "no arguments";
    else if (least_ == most_)
        takes = fmt::format("{} argument{} ({})", most_, most_ == 1 ? "" : "s", fmt::join(names, ", "));
    else
        takes = fmt::format("{} to {} arguments ({})", least_, most_, fmt::join(names, ", "));
    throw RoutineRefused(fmt::format("takes {}, was given {}", takes, given));
}

const std::string* Signature::WordFor(std::size_t index, const std::vector<std::string>& words) const {
    const auto& word = wordIndex_[index];
    if (!word) return nullptr;
    if (*word < words.size()) return &words[*word];
    return &*parameters_[index].fallback;  // CheckCount let the call leave out only parameters that have one
}

std::string Signature::Describe(std::size_t index) const {
    return fmt::format("argument {} ({})", *wordIndex_[index] + 1, parameters_[index].name);
}

namespace {

double Number(const std::string& word, const std::string& what) {
    if (!platform::IsNumericText(word))
        throw RoutineRefused(fmt::format("{} must be a number, was \"{}\"", what, word));
    try {
        return platform::ToNumber(platform::Value(word));
    } catch (const platform::RuntimeError& e) {
        throw RoutineRefused(fmt::format("{} does not fit: \"{}\" ({})", what, word, e.Description()));
    }
}

// The runtime's own conversion, whose overflow is the caller's word not fitting.
template <class Convert>
auto Whole(const std::string& word, const std::string& what, Convert convert) {
    const double number = Number(word, what);
    try {
        return convert(number);
    } catch (const platform::RuntimeError& e) {
        throw RoutineRefused(fmt::format("{} does not fit: \"{}\" ({})", what, word, e.Description()));
    }
}

}  // namespace

template <>
std::string Read<std::string>(const std::string& word, const std::string&) {
    return word;
}

template <>
std::int16_t Read<std::int16_t>(const std::string& word, const std::string& what) {
    return Whole(word, what, [](double n) { return platform::CInt(n); });
}

template <>
int Read<int>(const std::string& word, const std::string& what) {
    return Whole(word, what, [](double n) { return static_cast<int>(platform::CLng(n)); });
}

template <>
long Read<long>(const std::string& word, const std::string& what) {
    return Whole(word, what, [](double n) { return static_cast<long>(platform::CLng(n)); });
}

template <>
double Read<double>(const std::string& word, const std::string& what) {
    return Number(word, what);
}

template <>
bool Read<bool>(const std::string& word, const std::string& what) {
    const std::string upper = platform::UCase(word);
    if (upper == "TRUE") return true;
    if (upper == "FALSE") return false;
    if (!platform::IsNumericText(word))
        throw RoutineRefused(fmt::format("{} must be True, False or a number, was \"{}\"", what, word));
    return Number(word, what) != 0;
}

template <>
platform::Date Read<platform::Date>(const std::string& word, const std::string& what) {
    if (auto date = platform::ParseIsoDate(word)) return *date;
    throw RoutineRefused(fmt::format("{} must be a date (YYYY-MM-DD), was \"{}\"", what, word));
}

}  // namespace screen::binding
