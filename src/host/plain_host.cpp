#include "host/plain_host.h"
#include "host/print_templates.h"

#include "host/auto_list.h"
#include "host/host_state.h"
#include "host/main_form.h"
#include "host/plain_context.h"
#include "host/plain_global.h"
#include "host/plain_messages.h"
#include "host/plain_tools.h"

namespace host {

struct PlainHost::Impl {
    Impl(platform::ConnectionPtr connection, Settings& settings, Transcript& transcript, DialogAnswers& answers)
        : state(std::move(connection), settings, transcript, answers),
          messages(state),
          global(state, messages),
          tools(state),
          mainForm(state) {}

    HostState state;
    PlainMessages messages;
    PlainGlobal global;
    PlainTools tools;
    PlainMainForm mainForm;
    PlainContext context;
};

PlainHost::PlainHost(platform::ConnectionPtr connection, Settings& settings, Transcript& transcript,
                     DialogAnswers& answers)
    : impl_(std::make_unique<Impl>(std::move(connection), settings, transcript, answers)) {}

PlainHost::~PlainHost() = default;

host_services::HostServices PlainHost::Services() {
    auto connection = impl_->state.connection;
    auto registry = impl_->state.lists;
    // The lists share the connection and the registry, not the host: a screen may
    // let go of its lists after the host is gone.
    return host_services::HostServices{impl_->global, impl_->messages, impl_->tools, impl_->mainForm,
                                       [connection, registry]() -> std::unique_ptr<host_services::AutoList> {
                                           return std::make_unique<PlainAutoList>(connection, registry);
                                       }};
}

host_services::HostContext& PlainHost::Context() { return impl_->context; }
host_services::HostGlobal& PlainHost::Global() { return impl_->global; }
OpenList* PlainHost::VisibleList() { return impl_->state.lists->Visible(); }

void PlainHost::SetOutputFolder(const std::string& folder) { impl_->state.settings.Set("OutputFolder", folder); }

void PlainHost::InstallPrintTemplates(const std::string& folder) {
    std::string path = WritePrintTemplates(folder);
    if (impl_->state.settings.Text("GetIniFilePath").empty()) impl_->state.settings.Set("GetIniFilePath", path);
}
void PlainHost::SetServerDate(platform::Date date) { impl_->state.serverDate = date; }

std::optional<platform::Date> PlainHost::LastTransactionDate() const { return impl_->state.lastTransactionDate; }
const std::vector<std::string>& PlainHost::AppliedStyles() const { return impl_->state.appliedStyles; }
std::string PlainHost::FrameCaption() const {
    auto link = impl_->mainForm.LastLink();
    return link ? link->Caption() : std::string();
}
std::string PlainHost::ShortcutText() const { return impl_->state.shortcutText; }
int PlainHost::CloseDayRefreshes() const { return impl_->context.Refreshes(); }

}  // namespace host
