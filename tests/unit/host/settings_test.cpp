#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>

#include "host_fixture.h"

namespace host_test {
namespace {

class SettingsTest : public HostTest {};

TEST_F(SettingsTest, TheHostStartsFromItsDefaults) {
    EXPECT_TRUE(global().GetCustomerNameFirst());
    EXPECT_TRUE(global().GetMemoFieldsEnabled());
    EXPECT_FALSE(global().GetCreditLimitPasswordEnabled());
    EXPECT_FALSE(global().GetOCGEnabled());
    EXPECT_FALSE(global().GetDatedPostingEnabled());
    EXPECT_EQ(global().GetPrintOnSaveMode(), 2);
    EXPECT_EQ(global().GetPrinterService(), 0);
    EXPECT_EQ(global().GetCloseDayMode(), 0);
    EXPECT_EQ(global().GetItemListScreenNumber(), 1);
    EXPECT_EQ(global().PrintWithTemplate(""), "Dispatch.ini");
    EXPECT_TRUE(settings.Boolean("CloseDayOpen"));
}

TEST_F(SettingsTest, ASessionSettingTakesEffectAtOnce) {
    settings.Set("GetOCGEnabled", "true");
    settings.Set("getprintonsavemode", "0");
    settings.Set("GetCustomerNameFirst", "-1");
    EXPECT_TRUE(global().GetOCGEnabled());
    EXPECT_EQ(global().GetPrintOnSaveMode(), 0);
    EXPECT_TRUE(global().GetCustomerNameFirst());
    settings.Set("GetCustomerNameFirst", "false");
    EXPECT_FALSE(global().GetCustomerNameFirst());
    host->SetOutputFolder("/tmp/notes");
    EXPECT_EQ(settings.Text("OutputFolder"), "/tmp/notes");
}

TEST_F(SettingsTest, AValueTheSettingCannotTakeIsRefusedAndTheOldOneKept) {
    EXPECT_THROW(settings.Set("GetOCGEnabled", "maybe"), std::invalid_argument);
    EXPECT_THROW(settings.Set("GetPrintOnSaveMode", "two"), std::invalid_argument);
    EXPECT_THROW(settings.Set("GetOpeningDate", "01/04/2020"), std::invalid_argument);
    EXPECT_THROW(settings.Set("GetOCGEnabld", "true"), std::invalid_argument);
    EXPECT_FALSE(global().GetOCGEnabled());
    EXPECT_EQ(global().GetPrintOnSaveMode(), 2);
    EXPECT_NE(host::Settings::Problem("GetOCGEnabld", "true").find("unknown setting"), std::string::npos);
}

TEST_F(SettingsTest, AFileIsTakenWholeOrNotAtAll) {
    TempPath good(".ini"), bad(".ini");
    std::ofstream(good.str()) << "[Settings]\nGetPrintOnSaveMode = 1\nAdministratorPassword = s3cret\n"
                                 "[Other]\nGetOCGEnabled = true\n";
    std::ofstream(bad.str()) << "[Settings]\nGetPrinterService = 1\nGetCloseDayMode = often\n";

    EXPECT_TRUE(settings.LoadFile(good.str()));
    EXPECT_EQ(global().GetPrintOnSaveMode(), 1);
    EXPECT_FALSE(global().GetOCGEnabled()) << "only section [Settings] is read";

    EXPECT_FALSE(settings.LoadFile(bad.str()));
    EXPECT_NE(settings.LoadError().find("line 3"), std::string::npos) << settings.LoadError();
    EXPECT_EQ(global().GetPrinterService(), 0) << "the good line before the bad one is not taken either";

    EXPECT_FALSE(settings.LoadFile(good.str() + ".missing"));
    EXPECT_EQ(global().GetPrintOnSaveMode(), 1);
}

TEST_F(SettingsTest, TheAdministratorPasswordIsHeldEncodedAndDecodesBack) {
    settings.Set("AdministratorPassword", "s3cret pass");
    std::string stored = global().GetAdministratorPassword();
    EXPECT_NE(stored, "s3cret pass");
    EXPECT_EQ(global().DecodeAdministratorPassword(stored), "s3cret pass");
    settings.Set("AdministratorPassword", "");
    EXPECT_EQ(global().DecodeAdministratorPassword(global().GetAdministratorPassword()), "");
}

}  // namespace
}  // namespace host_test
