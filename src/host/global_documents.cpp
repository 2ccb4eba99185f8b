// Document types and references: a type's next reference is its prefix followed by
// its last count plus one.
#include <cctype>

#include "host/plain_global.h"
#include "host/sql_text.h"
#include "platform/convert.h"

namespace host {

std::string PlainGlobal::GetDefaultDocumentType(int transactionType) {
    return platform::ToText(LookupValue(
        *state_.connection,
        "Select DocumentType From TransactionDocNumber Where TransactionType = " + std::to_string(transactionType) +
            " And Active = 1 And IsDefault = 1 Order By DocumentType"));
}

std::string PlainGlobal::GetNextDocumentReference(const std::string& documentType, int transactionType) {
    auto rs =
        state_.connection->Execute("Select Prefix, LastCount From TransactionDocNumber Where TransactionType = " +
                                   std::to_string(transactionType) + " And DocumentType = " + SqlText(documentType));
    if (!rs || !rs->IsOpen() || rs->Eof()) return {};
    std::string reference =
        platform::ToText(rs->Fields(0)) + platform::NumberToText(platform::ToNumber(rs->Fields(1)) + 1);
    rs->Close();
    return reference;
}

// The lead of a reference is everything before its first digit: "DN1234" has a
// lead of 2 and the number 1234.
int PlainGlobal::GetDocumentPrefixLength(const std::string& text) {
    std::size_t digit = 0;
    while (digit < text.size() && !std::isdigit(static_cast<unsigned char>(text[digit]))) ++digit;
    return static_cast<int>(digit);
}

double PlainGlobal::ParseDocumentNumber(const std::string& text) {
    std::size_t start = static_cast<std::size_t>(GetDocumentPrefixLength(text));
    std::size_t end = start;
    while (end < text.size() && std::isdigit(static_cast<unsigned char>(text[end]))) ++end;
    return platform::Val(text.substr(start, end - start));
}

}  // namespace host
