// The date tokens of the demo templates and the script they make.
#include <gtest/gtest.h>

#include <stdexcept>

#include "platform/convert.h"
#include "server/demo_data.h"

namespace {

using platform::DateSerial;
using server::ExpandDemoDates;

TEST(DemoDates, CountWholeDaysFromTheDateOfToday) {
    // The time of day of "today" does not move the dates.
    const platform::Date today = platform::DateTime(2024, 3, 1, 15, 45, 10);
    EXPECT_EQ(ExpandDemoDates("{T}", today), "'2024-03-01 00:00:00'");
    EXPECT_EQ(ExpandDemoDates("{T-1}", today), "'2024-02-29 00:00:00'");
    EXPECT_EQ(ExpandDemoDates("{T-61}", today), "'2023-12-31 00:00:00'");
    EXPECT_EQ(ExpandDemoDates("{T+306}", today), "'2025-01-01 00:00:00'");
    EXPECT_EQ(ExpandDemoDates("{T-3 16:20}", today), "'2024-02-27 16:20:00'");
    EXPECT_EQ(ExpandDemoDates("{T 09:05}", today), "'2024-03-01 09:05:00'");
}

TEST(DemoDates, LeaveTheRestOfTheTextAsItIs) {
    const platform::Date today = DateSerial(2025, 1, 10);
    EXPECT_EQ(ExpandDemoDates("VALUES ({T-10}, 'x', {T+1});", today),
              "VALUES ('2024-12-31 00:00:00', 'x', '2025-01-11 00:00:00');");
    EXPECT_EQ(ExpandDemoDates("no dates here", today), "no dates here");
}

TEST(DemoDates, RefuseWhatIsNotADateToken) {
    const platform::Date today = DateSerial(2025, 1, 10);
    EXPECT_THROW(ExpandDemoDates("{X-1}", today), std::invalid_argument);
    EXPECT_THROW(ExpandDemoDates("{T*2}", today), std::invalid_argument);
    EXPECT_THROW(ExpandDemoDates("{T} and {T+1 25:00}", today), std::invalid_argument);
    EXPECT_THROW(ExpandDemoDates("{T} then {", today), std::invalid_argument);
}

TEST(DemoDataScript, IsTheSameForTheSameDayAndMovesWithTheDay) {
    const std::string first = server::DemoDataScript(DateSerial(2024, 3, 1));
    EXPECT_EQ(first, server::DemoDataScript(platform::DateTime(2024, 3, 1, 18, 0, 0)));
    EXPECT_NE(first, server::DemoDataScript(DateSerial(2024, 3, 2)));
    EXPECT_EQ(first.find('{'), std::string::npos);
}

}  // namespace
