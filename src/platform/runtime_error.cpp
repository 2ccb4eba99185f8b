#include "platform/runtime_error.h"

namespace platform {

std::string StandardDescription(long number) {
    switch (number) {
        case 3: return "Return without GoSub";
        case 5: return "Invalid procedure call or argument";
        case 6: return "Overflow";
        case 7: return "Out of memory";
        case 9: return "Subscript out of range";
        case 11: return "Division by zero";
        case 13: return "Type mismatch";
        case 51: return "Internal error";
        case 91: return "Object variable or With block variable not set";
        case 94: return "Invalid use of Null";
        case 380: return "Invalid property value";
        case 381: return "Invalid property array index";
        case 438: return "Object doesn't support this property or method";
        case 3021:
            return "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
                   "current record.";
        case 3265: return "Item cannot be found in the collection corresponding to the requested name or ordinal.";
        case 3704: return "Operation is not allowed when the object is closed.";
        case 35600: return "Index out of bounds";
        default: return {};
    }
}

}  // namespace platform
