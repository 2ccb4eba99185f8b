// The two pages, their layout and focus, and the note's number and document type.
#include "grid/row_model/grid_columns.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

using screen::Zuro_frmDispatch_Dispatch;

class HeaderPages : public ScreenTest {};

TEST_F(HeaderPages, TheEntryPageComesInAndTheListPageGoesOut) {
    Zuro_frmDispatch_Dispatch& f = Open(1);
    f.SetFrame(2);
    EXPECT_FALSE(f.Frame1(0).Enabled);
    EXPECT_EQ(f.Frame1(0).Top, -10000);
    EXPECT_TRUE(f.Frame3.Enabled);
    EXPECT_EQ(f.Frame3.Top, 0);
    EXPECT_TRUE(f.txtref.Locked);
    // A disabled page takes no focus.
    EXPECT_THROW(f.lstSO.SetFocus(), platform::RuntimeError);
    f.DTFlexDispatch.SetFocus();
    EXPECT_EQ(f.ActiveControl(), &f.DTFlexDispatch);

    f.SetFrame(1);
    EXPECT_TRUE(f.Frame1(0).Enabled);
    EXPECT_FALSE(f.Frame3.Enabled);
    EXPECT_EQ(f.txtCustomerID.Top, f.txtCustomer.Top + f.txtCustomer.Height + 60);
    EXPECT_THROW(f.txtSalesman.SetFocus(), platform::RuntimeError);
}

TEST_F(HeaderPages, ANewNoteHasItsCustomerBoxesInThePartyFrame) {
    Zuro_frmDispatch_Dispatch& f = Open(2);
    EXPECT_EQ(f.txtCustomer.Container, &f.Frame4);
    EXPECT_EQ(f.txtCustomerID.Container, &f.Frame4);
    EXPECT_FALSE(f.txtref.Locked);
    EXPECT_TRUE(f.cmdSave.TabStop);
    EXPECT_FALSE(f.cmdContinue.TabStop);
}

TEST_F(HeaderPages, TheSecondFocusRingWalksBothWaysInConfirmationModes) {
    Zuro_frmDispatch_Dispatch& f = Open(1);
    f.SetFrame(2);
    f.SetTabStop(2);
    f.txtref.SetFocus();
    Key(f.txtref, 13, 0);
    EXPECT_EQ(f.ActiveControl(), &f.DTDispatchDate);
    f.AdvanceField2(0);
    EXPECT_EQ(f.ActiveControl(), &f.txtBillingAddress);
    f.AdvanceField2(1);
    EXPECT_EQ(f.ActiveControl(), &f.DTDispatchDate);
    // Back from the first place of the ring goes nowhere.
    f.txtref.SetFocus();
    f.AdvanceField2(1);
    EXPECT_EQ(f.ActiveControl(), &f.txtref);
}

TEST_F(HeaderPages, NoDocumentTypesLeavesTheSerialReference) {
    database->ExecuteNative("DELETE FROM TransactionDocNumber WHERE TransactionType = 5");
    Zuro_frmDispatch_Dispatch& f = Open(2);
    EXPECT_EQ(f.cbodocumenttype.ListCount(), 1);
    EXPECT_EQ(f.cbodocumenttype.List(0), "Select A Document Type");
    EXPECT_EQ(f.txtDocReference.Text(), f.szDefaultDocReference);
    EXPECT_EQ(Errors(), 0);
}

TEST_F(HeaderPages, WithNoDefaultTheFirstRealTypeStands) {
    database->ExecuteNative("UPDATE TransactionDocNumber SET IsDefault = 0");
    Zuro_frmDispatch_Dispatch& f = Open(2);
    EXPECT_EQ(f.cbodocumenttype.ListIndex(), 1);
    EXPECT_EQ(f.txtDocReference.Text(), "KA/DN/8");
}

TEST_F(HeaderPages, TypedTypesAreTakenAsTheTableSpellsThem) {
    Zuro_frmDispatch_Dispatch& f = Open(2);
    f.cbodocumenttype.SetText("dn-ka");
    Key(f.cbodocumenttype, 13);
    EXPECT_EQ(f.cbodocumenttype.Text(), "DN-KA");
    EXPECT_EQ(f.txtDocReference.Text(), "KA/DN/8");
    EXPECT_EQ(f.txtDocReference.Tag, "KA/DN/8");

    // An unknown type is not accepted: the serial reference comes back.
    f.cbodocumenttype.SetText("DN-XX");
    Key(f.cbodocumenttype, 13);
    EXPECT_EQ(f.cbodocumenttype.ListIndex(), -1);
    EXPECT_EQ(f.txtDocReference.Text(), f.szDefaultDocReference);
}

TEST_F(HeaderPages, AnAmendmentKeepingItsTypeKeepsItsReference) {
    Zuro_frmDispatch_Dispatch& f = Open(7);
    f.szOriginalDocType = "DN-KA";
    f.szDefaultDocReference = "KA/DN/5";
    f.LoadDocumentTypes(5);  // the default DN-TN stands: a new reference
    EXPECT_EQ(f.txtDocReference.Text(), "TN/DN/43");
    f.cbodocumenttype.SetListIndex(1);
    ASSERT_EQ(f.cbodocumenttype.Text(), "DN-KA");
    f.SetDocumentReference(5);
    EXPECT_EQ(f.txtDocReference.Text(), "KA/DN/5");
}

TEST_F(HeaderPages, RefNumbersComeFromTickedDocumentRowsOnly) {
    Zuro_frmDispatch_Dispatch& f = Open(1);
    f.lstSO.Clear();
    auto& header = f.lstSO.Add("Anand Stores");
    header.Checked = true;
    header.SetSubItem(6, "99");
    for (const char* number : {"12", "15", "17"}) {
        auto& row = f.lstSO.Add();
        row.SetSubItem(6, number);
        row.Checked = std::string(number) != "15";
    }
    f.GetRefNO();
    EXPECT_EQ(f.szRefNumbers, "12,17");
}

}  // namespace
}  // namespace screen_test
