#include "platform/session/PortalSaveDialog.h"

#include "platform/session/PortalSaveRequest.h"

#include <QPointer>

namespace vantle {

namespace {

class OpenRequest final : public OpenSaveDialog {
public:
    explicit OpenRequest(PortalSaveRequest* request) : m_request(request) {}
    ~OpenRequest() override {
        if (m_request) m_request->abandon();
    }
    OpenRequest(const OpenRequest&) = delete;
    OpenRequest& operator=(const OpenRequest&) = delete;

private:
    const QPointer<PortalSaveRequest> m_request; ///< null once it has answered
};

} // namespace

PortalSaveDialog::PortalSaveDialog(const QDBusConnection& session, SaveDialog& otherwise)
    : m_session(session)
    , m_otherwise(otherwise) {}

std::unique_ptr<OpenSaveDialog> PortalSaveDialog::ask(const SaveQuestion& question, QWindow* above,
                                                      Answer answer) {
    if (!m_session.isConnected()) return m_otherwise.ask(question, above, std::move(answer));
    return std::make_unique<OpenRequest>(
        new PortalSaveRequest(m_session, m_otherwise, question, above, std::move(answer)));
}

} // namespace vantle
