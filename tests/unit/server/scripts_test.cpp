// The text transforms behind the schema and demo scripts: date tokens counted from
// today, and the format checks added to date-time and flag columns.
#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/convert.h"
#include "server/demo_data.h"
#include "server/schema.h"

namespace {

using server::ExpandDemoDates;

TEST(DemoDates, CountWholeDaysFromTodayAndLeaveTheRestAlone) {
    // The time of day of "today" does not move the dates.
    const platform::Date today = platform::DateTime(2024, 3, 1, 15, 45, 10);
    EXPECT_EQ(ExpandDemoDates("{T-1}", today), "'2024-02-29 00:00:00'");
    EXPECT_EQ(ExpandDemoDates("{T-61}", today), "'2023-12-31 00:00:00'");
    EXPECT_EQ(ExpandDemoDates("{T+306}", today), "'2025-01-01 00:00:00'");
    EXPECT_EQ(ExpandDemoDates("{T-3 16:20}", today), "'2024-02-27 16:20:00'");
    // The plain forms amid other text are what the whole demo is written in.
    for (const char* bad : {"{X-1}", "{T*2}", "{T} and {T+1 25:00}", "{T} then {"})
        EXPECT_THROW(ExpandDemoDates(bad, today), std::invalid_argument) << bad;
}

TEST(WithTypeChecks, ChecksColumnLinesAndLeavesOtherTextAlone) {
    const std::string script =
        "CREATE TABLE T (\n"
        "    Made DATETIME NOT NULL,\n"
        "    Done BIT DEFAULT 0,\n"
        "    Bits INTEGER,\n"
        "    -- Note DATETIME in a comment\n"
        "    BITTER TEXT\n"
        ");\n";
    const std::string out = server::WithTypeChecks(script);
    EXPECT_NE(out.find("Made DATETIME CHECK (Made GLOB '"), std::string::npos) << out;
    EXPECT_NE(out.find("Done BIT CHECK (Done IN (0, 1)) DEFAULT 0,"), std::string::npos) << out;
    EXPECT_NE(out.find("    Bits INTEGER,\n    -- Note DATETIME in a comment\n    BITTER TEXT\n"), std::string::npos)
        << out;
}

}  // namespace
