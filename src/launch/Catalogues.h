// The catalogues of texts that belong to the user's languages.
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

namespace vantle {

/// Installs them in the application object while it lives, which must be after that. Main thread.
///
/// `vantle_en` is always among them: the sources are written for another desktop, and it has the
/// words that are true on this one. A catalogue of another language goes before it.
class Catalogues {
public:
    /// `languages` are names of locales, the preferred first: "de-AT", "en". The first that the
    /// program knows counts; without one it speaks English.
    explicit Catalogues(const QStringList& languages);

private:
    bool install(const QString& name);

    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

} // namespace vantle
