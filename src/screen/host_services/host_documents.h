// The host's document numbering: the prefixes of the kinds of document, the types a
// transaction may number its notes with, and the parts of a typed reference.
#pragma once

#include <string>

namespace host_services {

class HostDocuments {
public:
    virtual ~HostDocuments() = default;

    // The prefix the host has configured for the document kind the key names.
    virtual std::string GetVoucherPrefix(const std::string& key) = 0;
    // The key of sales confirmations among the document kinds.
    virtual std::string GetSCPrefixKey() = 0;
    // The key of received purchase orders among the document kinds.
    virtual std::string GetPOPrefixKey() = 0;
    // The key of dispatch notes among the document kinds.
    virtual std::string GetDispatchPrefixKey() = 0;
    // The document type that stands as default for the transaction type; empty when
    // none is set.
    virtual std::string GetDefaultDocumentType(int transactionType) = 0;
    // The reference the type's next document will take, as the reference box shows it.
    virtual std::string GetNextDocumentReference(const std::string& documentType, int transactionType) = 0;
    // The number in a typed document reference ("DN1234" gives 1234).
    virtual double ParseDocumentNumber(const std::string& text) = 0;
    // The length of the letters before the number of a typed reference ("DN1234" gives 2).
    virtual int GetDocumentPrefixLength(const std::string& text) = 0;
};

}  // namespace host_services
