#include "host/host_state.h"

#include <chrono>
#include <stdexcept>

#include "platform/convert.h"

namespace host {
namespace {

platform::Date Today() {
    auto days = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
    std::chrono::year_month_day date{days};
    return platform::DateSerial(int(date.year()), int(unsigned(date.month())), int(unsigned(date.day())));
}

}  // namespace

HostState::HostState(platform::ConnectionPtr connection_, Settings& settings_, Transcript& transcript_,
                     DialogAnswers& answers_)
    : connection(std::move(connection_)),
      settings(settings_),
      transcript(transcript_),
      answers(answers_),
      serverDate(Today()) {
    if (!connection) throw std::invalid_argument("the plain host needs an open connection");
}

}  // namespace host
