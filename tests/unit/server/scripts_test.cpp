// The text transforms behind the schema and demo scripts: date tokens counted from
// today, and the format checks added to date-time and flag columns.
#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/convert.h"
#include "server/demo_data.h"
#include "server/schema.h"

namespace {

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
