// Captions in the installed language, from the table Labels. The table is read
// once, on the first caption asked for; a base text with no caption of its own
// stands for itself. Base texts and kinds match without regard to case, as the
// table's keys do.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/database.h"

namespace host {

class LabelBook {
public:
    explicit LabelBook(platform::Connection& connection) : connection_(connection) {}

    std::string Caption(const std::string& baseText, const std::string& kind);
    // The reverse: the base text a shown caption came from; the text itself when no
    // caption of the kind reads so.
    std::string BaseText(const std::string& caption, const std::string& kind);

private:
    void LoadOnce();

    struct Entry {
        std::string baseText;  // as the table writes it
        std::string caption;
    };
    platform::Connection& connection_;
    // By base text and kind, both upper-cased.
    std::optional<std::map<std::pair<std::string, std::string>, Entry>> captions_;
};

}  // namespace host
