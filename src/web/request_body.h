// Reading what a call sends: a JSON object, and the lists and choices in it. Every
// reader refuses with WebRefusal 400 and the reason.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace web {

nlohmann::json ParseBody(const std::string& body);
// The texts of a list member; numbers are taken as the text a user would type.
std::vector<std::string> TextList(const nlohmann::json& body, const std::string& member);
// The words of `open` for the screen the body asks for: dispatch MODE [DATE [ALERTDATE]]
// or cform [DATE].
std::vector<std::string> OpenWords(const nlohmann::json& body);

}  // namespace web
