// Run-time errors of the old runtime: one exception type with the platform's
// error number and description, so the error log reads as it always did.
#pragma once

#include <stdexcept>
#include <string>

namespace platform {

namespace err {
inline constexpr long InvalidCall = 5;             // "Invalid procedure call or argument"
inline constexpr long Overflow = 6;                // "Overflow"
inline constexpr long SubscriptOutOfRange = 9;     // "Subscript out of range"
inline constexpr long DivisionByZero = 11;         // "Division by zero"
inline constexpr long TypeMismatch = 13;           // "Type mismatch"
inline constexpr long InternalError = 51;          // "Internal error"
inline constexpr long ObjectNotSet = 91;           // "Object variable or With block variable not set"
inline constexpr long NotSupported = 438;          // "Object doesn't support this property or method"
inline constexpr long InvalidPropertyValue = 380;  // "Invalid property value"
inline constexpr long NoCurrentRecord = 3021;  // "Either BOF or EOF is True, or the current record has been deleted..."
inline constexpr long ItemNotFound = 3265;     // "Item cannot be found in the collection..."
inline constexpr long DatabaseError = -2147217900;  // the provider's error; the description is the server's
}  // namespace err

// The runtime's own description of a numbered error; empty for numbers it has none for.
std::string StandardDescription(long number);

class RuntimeError : public std::runtime_error {
public:
    RuntimeError(long number, std::string description)
        : std::runtime_error(description), number_(number), description_(std::move(description)) {}
    // An error with the runtime's own description of its number.
    explicit RuntimeError(long number) : RuntimeError(number, StandardDescription(number)) {}

    long Number() const { return number_; }
    const std::string& Description() const { return description_; }

private:
    long number_;
    std::string description_;
};

}  // namespace platform
