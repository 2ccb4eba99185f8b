#include "server/demo_data.h"

#include <regex>
#include <stdexcept>

#include <fmt/format.h>

#include "platform/convert.h"

namespace server {

namespace {

std::string DateTimeLiteral(platform::Date day, int hour, int minute) {
    const platform::DateParts p = platform::SplitDate(day);
    return fmt::format("'{:04}-{:02}-{:02} {:02}:{:02}:00'", p.year, p.month, p.day, hour, minute);
}

}  // namespace

std::string ExpandDemoDates(const std::string& text, platform::Date today) {
    static const std::regex token(R"(\{T(?:([+-])(\d{1,5}))?(?: (\d\d):(\d\d))?\})");
    const platform::Date base = platform::DateOnly(today);

    std::string out;
    auto from = text.cbegin();
    for (std::sregex_iterator it(text.begin(), text.end(), token), end; it != end; ++it) {
        const std::smatch& m = *it;
        const std::string before(from, m[0].first);
        if (before.find('{') != std::string::npos)
            throw std::invalid_argument("demo data: not a date token near: " + before.substr(before.find('{'), 40));
        out += before;

        int offset = m[2].matched ? std::stoi(m[2].str()) : 0;
        if (m[1].matched && m[1].str() == "-") offset = -offset;
        const int hour = m[3].matched ? std::stoi(m[3].str()) : 0;
        const int minute = m[4].matched ? std::stoi(m[4].str()) : 0;
        if (hour > 23 || minute > 59) throw std::invalid_argument("demo data: bad time in " + m[0].str());
        // A day is one whole unit of the serial, so an offset is plain addition.
        out += DateTimeLiteral(platform::Date{base.serial + offset}, hour, minute);
        from = m[0].second;
    }
    const std::string rest(from, text.cend());
    if (rest.find('{') != std::string::npos)
        throw std::invalid_argument("demo data: not a date token near: " + rest.substr(rest.find('{'), 40));
    return out + rest;
}

std::string DemoDataScript(platform::Date today) {
    const std::string templ = demo_part::Settings() + demo_part::Items() + demo_part::Parties() + demo_part::Stock() +
                              demo_part::SalesConfirmations() + demo_part::PurchaseOrders() + demo_part::Dispatches() +
                              demo_part::Accounts() + demo_part::Schemes() + demo_part::Numbering();
    return ExpandDemoDates(templ, today);
}

}  // namespace server
