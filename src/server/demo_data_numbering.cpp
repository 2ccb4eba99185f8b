// The server's running serials, brought up to the documents the demo holds, so that
// the next dispatch, confirmation or invoice takes the number after the last one.
#include "server/demo_data.h"

namespace server::demo_part {

std::string Numbering() {
    return R"SQL(
UPDATE DocumentNumbers SET LastNumber = (SELECT MAX(DocumentID) FROM SOAbstract) WHERE DocType = 1;
UPDATE DocumentNumbers SET LastNumber = (SELECT MAX(DocumentID) FROM POAbstractReceived) WHERE DocType = 2;
UPDATE DocumentNumbers SET LastNumber = (SELECT MAX(DocumentID) FROM InvoiceAbstract) WHERE DocType = 3;
UPDATE DocumentNumbers SET LastNumber = (SELECT MAX(DocumentID) FROM Collections) WHERE DocType = 4;
UPDATE DocumentNumbers SET LastNumber = (SELECT MAX(DocumentID) FROM DispatchAbstract) WHERE DocType = 5;
)SQL";
}

}  // namespace server::demo_part
