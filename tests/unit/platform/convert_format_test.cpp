#include <gtest/gtest.h>

#include "platform/convert.h"

namespace platform {
namespace {

struct FormatCase {
    Value value;
    const char* format;
    const char* text;
};

void ExpectAll(std::initializer_list<FormatCase> cases) {
    for (const auto& c : cases)
        EXPECT_EQ(Format(c.value, c.format), c.text) << ToText(c.value) << " through \"" << c.format << '"';
}

TEST(FormatNumber, DigitPlacesPointGroupingAndRounding) {
    ExpectAll({
        {1234.5, "0.00", "1234.50"}, {1234567.891, "#,##0.00", "1,234,567.89"}, {-1234.5, "#,##0.00", "-1,234.50"},
        {0, "#,##0.00", "0.00"}, {5, "0,000", "0,005"}, {Value(1234567), "#,##0", "1,234,567"},
        {2, "0.##", "2."},  // the runtime kept the point
        {2.125, "0.0#", "2.13"}, {0.5, "#.##", ".5"}, {0, "#", ""}, {5, "#00", "05"},
        {1234, "00-00", "12-34"}, {123456, "00-00", "1234-56"}, {1.5, ".00", "1.50"},
        {1e20, "0", "100000000000000000000"}, {5, "$0.00", "$5.00"}, {5, "\"Rs \"0.00", "Rs 5.00"},
        {5, "0\\%", "5%"}, {Value(true), "0", "-1"},
        // half away from zero on the figures as written; a negative rounding to nothing keeps its sign
        {-2.5, "0", "-3"}, {1.005, "0.00", "1.01"}, {2.675, "0.00", "2.68"}, {9.999, "0.00", "10.00"},
        {999.995, "#,##0.00", "1,000.00"}, {-0.001, "0.00", "-0.00"},
    });
}

TEST(FormatNumber, SectionsScalingExponentsNamedFormatsAndText) {
    ExpectAll({
        {-5, "0;(0)", "(5)"}, {5, "0;(0)", "5"}, {0, "0;(0);\\Z\\e\\r\\o", "Zero"}, {0, "0.00;;\"Nil\"", "Nil"},
        {-5, "0;;", "-5"},  // an empty section borrows the first
        {0.256, "0%", "26%"}, {1234567, "#,##0,", "1,235"}, {1234567, "0,,.0", "1.2"}, {100000000, "##0,,", "100"},
        {1234.5, "0.00E+00", "1.23E+03"}, {0.000123, "0.00E+00", "1.23E-04"}, {0.000123, "0.00E-00", "1.23E-04"},
        {1234.5, "0.00E-00", "1.23E03"}, {9.999, "0.00E+00", "1.00E+01"}, {0, "0.00E+00", "0.00E+00"},
        {-1234.5, "0.0e+0", "-1.2e+3"},
        {-0.5, "fixed", "-0.50"}, {1234567.891, "Standard", "1,234,567.89"}, {0.5, "Percent", "50.00%"},
        {1234.5, "Scientific", "1.23E+03"}, {1234.5, "General Number", "1234.5"}, {1e15, "General Number", "1E+15"},
        {1, "Yes/No", "Yes"}, {0, "Yes/No", "No"}, {-1, "True/False", "True"}, {0, "On/Off", "Off"},
        {" 1,234.50 ", "0.00", "1234.50"}, {"abc", "0.00", "abc"}, {"", "0.00", ""}, {Value::Null(), "0.00", ""},
        {Value(), "0.00", ""}, {1234.5, "", "1234.5"}, {"as is", "", "as is"},
    });
}

TEST(FormatDate, PatternsNamedFormatsAndTheValueReadAsTheFormatAsks) {
    const Value friday = DateTime(2027, 3, 5, 14, 7, 9);
    ExpectAll({
        {DateSerial(2027, 3, 15), "MM/YYYY", "03/2027"}, {friday, "d/m/yy", "5/3/27"},
        {friday, "dd-mmm-yyyy", "05-Mar-2027"}, {friday, "dddd, mmmm d", "Friday, March 5"}, {friday, "ddd", "Fri"},
        {friday, "mm:ss", "07:09"}, {friday, "yyyy-mm-dd hh:nn", "2027-03-05 14:07"},
        {friday, "hh:nn AM/PM", "02:07 PM"}, {friday, "h:nn am/pm", "2:07 pm"}, {friday, "h A/P", "2 P"},
        {DateTime(2027, 3, 5, 0, 30, 0), "h AMPM", "12 AM"}, {friday, "q", "1"}, {friday, "y", "64"},
        {friday, "w", "6"}, {DateSerial(2027, 1, 3), "ww", "2"}, {DateSerial(2026, 12, 31), "ww", "53"},
        {friday, "\"Day \"d", "Day 5"}, {friday, "d\\d", "5d"}, {DateSerial(1899, 12, 29), "dd/mm/yyyy", "29/12/1899"},
        {friday, "Short Date", "05/03/2027"}, {friday, "Medium Date", "05-Mar-27"},
        {friday, "Long Date", "05 March 2027"}, {friday, "Long Time", "14:07:09"}, {friday, "Medium Time", "02:07 PM"},
        {friday, "Short Time", "14:07"}, {friday, "General Date", "05/03/2027 14:07:09"},
        {DateSerial(2027, 3, 5), "General Date", "05/03/2027"},
        {46461, "dd/mm/yyyy", "15/03/2027"}, {"2027-03-15", "dd/mm/yyyy", "15/03/2027"},
        {"15/03/2027 10:00:00", "MM/YYYY", "03/2027"}, {"soon", "dd/mm/yyyy", "soon"},
        {DateSerial(2027, 3, 15), "0.00", "46461.00"},
    });
}

}  // namespace
}  // namespace platform
