// The two pages, their layout and focus, and the note's number and document type.
#include "screen_fixture.h"

namespace screen_test {
namespace {

using screen::Zuro_frmDispatch_Dispatch;

class HeaderPages : public ScreenTest {};

TEST_F(HeaderPages, TheEntryPageComesInAndTheListPageGoesOut) {
    Zuro_frmDispatch_Dispatch& f = Open(1);
    f.SetFrame(2);
    EXPECT_EQ(std::tuple(f.Frame1(0).Enabled, f.Frame1(0).Top, f.Frame3.Enabled, f.Frame3.Top, f.txtref.Locked),
              std::tuple(false, -10000, true, 0, true));
    // A disabled page takes no focus.
    EXPECT_THROW(f.lstSO.SetFocus(), platform::RuntimeError);
    f.DTFlexDispatch.SetFocus();
    EXPECT_EQ(f.ActiveControl(), &f.DTFlexDispatch);

    f.SetFrame(1);
    EXPECT_EQ(std::tuple(f.Frame1(0).Enabled, f.Frame3.Enabled, f.txtCustomerID.Top),
              std::tuple(true, false, f.txtCustomer.Top + f.txtCustomer.Height + 60));
    EXPECT_THROW(f.txtSalesman.SetFocus(), platform::RuntimeError);
}

TEST_F(HeaderPages, ANewNoteHasItsCustomerBoxesInThePartyFrame) {
    Zuro_frmDispatch_Dispatch& f = Open(2);
    EXPECT_EQ(std::tuple(f.txtCustomer.Container, f.txtCustomerID.Container, f.txtref.Locked),
              std::tuple(&f.Frame4, &f.Frame4, false));
    EXPECT_EQ(std::tuple(f.cmdSave.TabStop, f.cmdContinue.TabStop), std::tuple(true, false));
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
    EXPECT_EQ(std::tuple(f.cbodocumenttype.ListCount(), f.cbodocumenttype.List(0), f.txtDocReference.Text()),
              std::tuple(1, "Select A Document Type", f.szDefaultDocReference));
}

TEST_F(HeaderPages, WithNoDefaultTheFirstRealTypeStands) {
    database->ExecuteNative("UPDATE TransactionDocNumber SET IsDefault = 0");
    Zuro_frmDispatch_Dispatch& f = Open(2);
    EXPECT_EQ(std::tuple(f.cbodocumenttype.ListIndex(), f.txtDocReference.Text()), std::tuple(1, "KA/DN/8"));
}

TEST_F(HeaderPages, TypedTypesAreTakenAsTheTableSpellsThem) {
    Zuro_frmDispatch_Dispatch& f = Open(2);
    f.cbodocumenttype.SetText("dn-ka");
    Key(f.cbodocumenttype, 13);
    EXPECT_EQ(std::tuple(f.cbodocumenttype.Text(), f.txtDocReference.Text(), f.txtDocReference.Tag),
              std::tuple("DN-KA", "KA/DN/8", "KA/DN/8"));

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
