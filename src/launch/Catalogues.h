// The translation catalogues for the user's languages.
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

namespace vantle {

/// Installs the catalogues in the application object for its lifetime. Requires the application
/// object. Main thread.
///
/// `vantle_en` is always loaded: the source texts name another desktop, and it has the wording for
/// this one. The catalogue of another language takes precedence over it.
class Catalogues {
public:
    /// `languages` are locale names in order of preference: "de-AT", "en". The first known one
    /// counts; without one the texts are English.
    explicit Catalogues(const QStringList& languages);

private:
    bool install(const QString& name);

    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace vantle
