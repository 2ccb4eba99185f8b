// Registers a routine of the form under its name so that a host can call it with
// its arguments written as words. What the routine takes is read off its own
// parameter types:
//   std::string (by value or const&)  the word as it stands
//   std::int16_t / int / long         a number rounded half to even, as the runtime's
//                                     CInt and CLng do, refused when it overflows
//   double                            a number
//   bool                              True, False (any case) or a number, not 0 is true
//   platform::Date                    YYYY-MM-DD[ HH:MM:SS]
// A by-reference (non-const) parameter is an out: it starts from its type's zero, is
// not read from the caller's words, and after the call is reported under its
// registered name, in parameter order. One the routine also reads (a key handler's
// KeyCode) is registered as InOut: it takes a word in its place like any other and
// is reported too. A trailing parameter registered as Optional may be left out; its
// fallback word is read in its place. The routine's return value is the call's result.
//
// The words are counted and converted before the routine runs; a missing, surplus or
// malformed word raises RoutineRefused and the routine does not run at all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/value.h"
#include "screen/routine_table.h"

namespace screen {

// A parameter of a routine, under the screen's own name for it.
struct RoutineParameter {
    RoutineParameter(const char* parameterName) : name(parameterName) {}
    std::string name;
    bool inOut = false;                   // a by-reference parameter that takes a word as well
    std::optional<std::string> fallback;  // the word read when the caller leaves this one out
};

// A by-reference parameter the routine reads before it sets it.
inline RoutineParameter InOut(const char* name) {
    RoutineParameter parameter(name);
    parameter.inOut = true;
    return parameter;
}

// A trailing parameter the caller may leave out; `word` is read in its place.
inline RoutineParameter Optional(const char* name, std::string word) {
    RoutineParameter parameter(name);
    parameter.fallback = std::move(word);
    return parameter;
}

namespace binding {

// The parameters of one routine against its C++ signature, checked once at
// registration; a mismatch there is the wiring's fault and throws std::logic_error.
class Signature {
public:
    Signature(std::string routine, std::vector<RoutineParameter> parameters, std::vector<bool> byReference);

    // Refuses a call with too few or too many words.
    void CheckCount(std::size_t given) const;
    // The word parameter `index` reads: the caller's, its fallback, or none for a pure out.
    const std::string* WordFor(std::size_t index, const std::vector<std::string>& words) const;
    bool IsOut(std::size_t index) const { return byReference_[index]; }
    const RoutineParameter& Parameter(std::size_t index) const { return parameters_[index]; }
    // "argument 2 (nRow)" for messages.
    std::string Describe(std::size_t index) const;

private:
    std::string routine_;
    std::vector<RoutineParameter> parameters_;
    std::vector<bool> byReference_;
    std::vector<std::optional<std::size_t>> wordIndex_;  // per parameter, the word it takes
    std::size_t least_ = 0, most_ = 0;
};

// One word as a parameter's type; RoutineRefused when it is not one.
template <class T>
T Read(const std::string& word, const std::string& what);
template <>
std::string Read<std::string>(const std::string& word, const std::string& what);
template <>
std::int16_t Read<std::int16_t>(const std::string& word, const std::string& what);
template <>
int Read<int>(const std::string& word, const std::string& what);
template <>
long Read<long>(const std::string& word, const std::string& what);
template <>
double Read<double>(const std::string& word, const std::string& what);
template <>
bool Read<bool>(const std::string& word, const std::string& what);
template <>
platform::Date Read<platform::Date>(const std::string& word, const std::string& what);

template <class A>
inline constexpr bool kIsOut = std::is_lvalue_reference_v<A> && !std::is_const_v<std::remove_reference_t<A>>;

template <class T>
inline constexpr bool kReadable = std::is_same_v<T, std::string> || std::is_same_v<T, std::int16_t> ||
                                  std::is_same_v<T, int> || std::is_same_v<T, long> || std::is_same_v<T, double> ||
                                  std::is_same_v<T, bool> || std::is_same_v<T, platform::Date>;

template <class A>
std::remove_cvref_t<A> Take(const Signature& signature, std::size_t index, const std::vector<std::string>& words) {
    using Stored = std::remove_cvref_t<A>;
    static_assert(kReadable<Stored>,
                  "a routine called by name takes only plain values; bind a lambda that supplies the rest");
    const std::string* word = signature.WordFor(index, words);
    if (word == nullptr) return Stored{};
    return Read<Stored>(*word, signature.Describe(index));
}

template <class R, class... A, class F>
RoutineTable::Routine MakeRoutine(F routine, std::shared_ptr<const Signature> signature) {
    return [routine = std::move(routine), signature](RoutineCall& call) {
        signature->CheckCount(call.arguments.size());
        // Braces fix the order: the first bad word is the one reported.
        auto values = [&]<std::size_t... I>(std::index_sequence<I...>) {
            return std::tuple<std::remove_cvref_t<A>...>{Take<A>(*signature, I, call.arguments)...};
        }
        (std::index_sequence_for<A...>{});

        if constexpr (std::is_void_v<R>)
            std::apply(routine, values);
        else
            call.result = platform::Value(std::apply(routine, values));

        [&]<std::size_t... I>(std::index_sequence<I...>) {
            ((kIsOut<A>
                  ? (void)call.outs.emplace_back(signature->Parameter(I).name, platform::Value(std::get<I>(values)))
                  : (void)0),
             ...);
        }
        (std::index_sequence_for<A...>{});
    };
}

}  // namespace binding

// Binds the routines of one object into a routine table.
template <class Owner>
class RoutineBinder {
public:
    RoutineBinder(RoutineTable& table, Owner& owner) : table_(table), owner_(&owner) {}

    template <class R, class... A>
    void Bind(std::string name, R (Owner::*routine)(A...), std::vector<RoutineParameter> parameters) {
        Owner* owner = owner_;
        Add<R, A...>(
            std::move(name), [owner, routine](A... a) -> R { return (owner->*routine)(std::forward<A>(a)...); },
            std::move(parameters));
    }

    template <class R, class... A>
    void Bind(std::string name, R (*routine)(A...), std::vector<RoutineParameter> parameters) {
        Add<R, A...>(std::move(name), routine, std::move(parameters));
    }

    // A lambda, for a routine that also takes something of the form's own (its grid,
    // a list) which no caller could write as a word.
    template <class F>
    requires requires { &F::operator(); }
    void Bind(std::string name, F routine, std::vector<RoutineParameter> parameters) {
        BindCallable(std::move(name), std::move(routine), &F::operator(), std::move(parameters));
    }

private:
    template <class F, class C, class R, class... A>
    void BindCallable(std::string name, F routine, R (C::*)(A...) const, std::vector<RoutineParameter> parameters) {
        Add<R, A...>(std::move(name), std::move(routine), std::move(parameters));
    }

    template <class R, class... A, class F>
    void Add(std::string name, F routine, std::vector<RoutineParameter> parameters) {
        auto signature = std::make_shared<const binding::Signature>(name, std::move(parameters),
                                                                    std::vector<bool>{binding::kIsOut<A>...});
        table_.Add(std::move(name), binding::MakeRoutine<R, A...>(std::move(routine), std::move(signature)));
    }

    RoutineTable& table_;
    Owner* owner_;
};

}  // namespace screen
