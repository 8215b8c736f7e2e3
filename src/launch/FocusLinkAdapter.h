// The person's shortcuts as the application model knows them.
#pragma once

#include "app/Collaborators.h"
#include "sensing/FocusLink.h"

namespace vantle {

/// Passes both ends of a session on to the link, which must outlive it. Main thread.
class FocusLinkAdapter final : public collaborators::FocusLink {
public:
    explicit FocusLinkAdapter(vantle::FocusLink& link) : m_link(link) {}

    void sessionStarted() override { m_link.sessionStarted(); }
    void sessionEnded() override { m_link.sessionEnded(); }

private:
    vantle::FocusLink& m_link;
};

} // namespace vantle
