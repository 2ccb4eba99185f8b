// The item look-up: while the user types an item code or name in the grid, a
// type-ahead list offers the items this dispatch may sell. Which items those are
// depends on the mode, the category group and the salesman's DS type.
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
constexpr long kColCode = 1;
constexpr long kColName = 2;
constexpr long kSalesmanNotValid = 55;

// The source of the list, up to its field pair and Where clause.
std::string ItemSource(long nMode, bool bOneGroup, long nDSType, const std::string& szGroupTag, long nDispatchID) {
    const std::string szDispatch = platform::NumberToText(static_cast<double>(nDispatchID));
    const std::string szDSType = platform::NumberToText(static_cast<double>(nDSType));
    if (nMode == mode::Amendment) {
        if (!bOneGroup) return "dbo.Fn_Get_DispatchItems_QAX_AllCat('" + szDispatch + "')";
        if (nDSType > 0) return "dbo.Fn_Get_DSTypeWiseSKU_Amend(" + szDSType + "," + szDispatch + ", 1)";
        return "dbo.Fn_Get_DispatchItems_QAX('" + szGroupTag + "'," + szDispatch + ")";
    }
    if (!bOneGroup) return "dbo.Fn_Get_Items_QAX_AllCat()";
    if (nDSType > 0) return "dbo.Fn_Get_DSTypeWiseSKU(" + szDSType + ", 1)";
    return "dbo.Fn_Get_Items_QAX('" + szGroupTag + "')";
}
}  // namespace

void Zuro_frmDispatch_Dispatch::InitAutolist() {
    Handled("InitAutolist", [&] {
        objItemList = host_.newAutoList();
        objItemListSpare1 = host_.newAutoList();
        objItemListSpare2 = host_.newAutoList();
        objItemListSpare1->SetOwner(*this);
        objItemListSpare2->SetOwner(*this);

        auto& list = *objItemList;
        list.SetOwner(*this);
        list.SetLockedToList(true);
        list.SetDisplayField("ProductName");
        list.SetKeyField("Product_Code");
        list.SetTableName("ITEMS");
        list.AttachControl(DTFlexDispatch.EditorBox());
    });
}

void Zuro_frmDispatch_Dispatch::SetAutolistOption(long nCol) {
    Handled("SetAutolistOption", [&] {
        auto& global = host_.global;
        if (!ValidSalesman()) {
            global.ShowNumberedMessage(kSalesmanNotValid, 1, {});
            global.SetFocusTo(txtSalesman);
            return;
        }
        if ((nMode == mode::FromSalesConfirmation || nMode == mode::NewDispatch || nMode == mode::Amendment) &&
            DSTypeNotMapped(txtCategory.Text())) {
            global.SetFocusTo(txtSalesman);
            return;
        }

        std::string szCodeQuery, szNameQuery;
        if (!txtCategory.Text().empty()) {
            long nDSType = 0;
            DSTypeCatMapped(GetSalesmanID(), nDSType);
            const bool bOneGroup = txtCategory.Text() != szLblAllCategories && !bAllCategories;
            const std::string szSource = ItemSource(nMode, bOneGroup, nDSType, txtCategory.Tag, nDispatchID);
            szCodeQuery = "Select Product_Code,Product_Code From " + szSource + " Where Product_Code Like '";
            szNameQuery = "Select Product_Code,ProductName From " + szSource + " Where ProductName Like '";
        }

        auto& list = RequireObject(objItemList);
        if (nCol == kColCode) {
            list.SetDisplayField("Product_Code");
            list.SetKeyField("Product_Code");
            list.SetCaption("Item Code");
            list.SetQuery(szCodeQuery);
        } else if (nCol == kColName) {
            list.SetKeyField("Product_Code");
            list.SetDisplayField("ProductName");
            list.SetCaption("Item Name");
            list.SetQuery(szNameQuery);
        }
        if (!txtCategory.Text().empty() || bAllCategories) list.ShowList(DTFlexDispatch.EditText());
    });
}

}  // namespace screen
