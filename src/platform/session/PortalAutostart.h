// The login item of a sandboxed program.
#pragma once

#include "platform/Autostart.h"
#include "platform/Preference.h"
#include "platform/session/PortalRequest.h"

#include <QDBusConnection>

#include <memory>

namespace vantle {

/// org.freedesktop.portal.Background. In a sandbox the folder of autostart entries is the sandbox's
/// own, and no desktop reads it. The portal may ask the user, answers when that is done, and never
/// tells what it was asked before: so the last answer is kept in a preference. Until there is one,
/// what was asked for counts. Main thread; nothing is waited for.
class PortalAutostart final : public Autostart {
public:
    /// `preferences` must outlive this.
    PortalAutostart(const QDBusConnection& session, Preferences& preferences,
                    const Preference<bool>& kept);

    [[nodiscard]] bool isRegistered() const override { return m_kept.read(m_preferences); }
    Result<> registerItem() override { return ask(true); }
    Result<> unregisterItem() override { return ask(false); }

private:
    Result<> ask(bool autostart);

    const QDBusConnection m_session;
    Preferences& m_preferences;
    const Preference<bool> m_kept;
    std::unique_ptr<PortalRequest> m_request; ///< the last one, which alone counts
};

} // namespace vantle
