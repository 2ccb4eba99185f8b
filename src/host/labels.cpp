#include "host/labels.h"

#include "platform/convert.h"

namespace host {

void LabelBook::LoadOnce() {
    if (captions_) return;
    auto rs = connection_.Execute("Select BaseText, LabelKind, Caption From Labels");
    std::map<std::pair<std::string, std::string>, Entry> captions;
    for (; rs && rs->IsOpen() && !rs->Eof(); rs->MoveNext()) {
        Entry entry{platform::ToText(rs->Fields(0)), platform::ToText(rs->Fields(2))};
        // An empty caption is a row nobody translated yet: the base text serves.
        if (entry.caption.empty()) continue;
        captions.emplace(std::pair{platform::UCase(entry.baseText), platform::UCase(platform::ToText(rs->Fields(1)))},
                         std::move(entry));
    }
    captions_ = std::move(captions);
}

std::string LabelBook::Caption(const std::string& baseText, const std::string& kind) {
    LoadOnce();
    auto it = captions_->find({platform::UCase(baseText), platform::UCase(kind)});
    return it == captions_->end() ? baseText : it->second.caption;
}

std::string LabelBook::BaseText(const std::string& caption, const std::string& kind) {
    LoadOnce();
    std::string wantedKind = platform::UCase(kind);
    for (const auto& [key, entry] : *captions_)
        if (key.second == wantedKind && entry.caption == caption) return entry.baseText;
    return caption;
}

}  // namespace host
