#include "tracking/Settings.h"

bool a = settings::autoMode.read(preferences);
bool b = preferences.boolean(QStringLiteral("auto.enabled")).value_or(true);
void c() { m_env.preferences.setString(key, text); }
QString d = QStringLiteral("seen.%1-%2");
QString e = QStringLiteral("automatic");
