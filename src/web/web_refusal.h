// A call the server does not carry out: the HTTP status and the reason the clerk's
// page shows. Nothing has changed when one is thrown.
#pragma once

#include <stdexcept>
#include <string>

namespace web {

class WebRefusal : public std::runtime_error {
public:
    WebRefusal(int status, const std::string& reason) : std::runtime_error(reason), status_(status) {}
    int Status() const { return status_; }

private:
    int status_;
};

}  // namespace web
