#include "web/request_body.h"

#include "platform/convert.h"
#include "session/today.h"
#include "web/web_refusal.h"

namespace web {
namespace {

using nlohmann::json;

std::string WordOf(const json& value, const std::string& member) {
    if (value.is_string()) return value.get<std::string>();
    if (value.is_number_integer()) return std::to_string(value.get<long long>());
    if (value.is_number()) return value.dump();
    throw WebRefusal(400, member + " holds texts and numbers only");
}

std::string OptionalText(const json& body, const std::string& member) {
    if (!body.contains(member)) return {};
    if (!body[member].is_string()) throw WebRefusal(400, member + " must be a date written YYYY-MM-DD");
    return body[member].get<std::string>();
}

}  // namespace

json ParseBody(const std::string& body) {
    json parsed = json::parse(body, nullptr, false);
    if (parsed.is_discarded()) throw WebRefusal(400, "the body is not JSON");
    if (!parsed.is_object()) throw WebRefusal(400, "the body must be a JSON object");
    return parsed;
}

std::vector<std::string> TextList(const json& body, const std::string& member) {
    if (!body.contains(member) || !body[member].is_array())
        throw WebRefusal(400, "the body needs " + member + ", a list");
    std::vector<std::string> texts;
    for (const auto& value : body[member]) texts.push_back(WordOf(value, member));
    return texts;
}

std::vector<std::string> OpenWords(const json& body) {
    const std::string screen =
        body.contains("screen") && body["screen"].is_string() ? body["screen"].get<std::string>() : "";
    const std::string date = OptionalText(body, "date");
    if (screen == "cform") {
        std::vector<std::string> words{"cform"};
        if (!date.empty()) words.push_back(date);
        return words;
    }
    if (screen != "dispatch") throw WebRefusal(400, "screen must be dispatch or cform");
    if (!body.contains("mode") || !body["mode"].is_number_integer())
        throw WebRefusal(400, "the dispatch screen needs its mode, a number from 1 to 7");
    long long mode = body["mode"].get<long long>();
    if (mode < 1 || mode > 7) throw WebRefusal(400, "the dispatch screen has modes 1 to 7");
    std::vector<std::string> words{"dispatch", std::to_string(mode)};
    const std::string alertDate = OptionalText(body, "alertDate");
    if (!date.empty() || !alertDate.empty())
        words.push_back(date.empty() ? platform::DateToIso(session::Today()) : date);
    if (!alertDate.empty()) words.push_back(alertDate);
    return words;
}

}  // namespace web
