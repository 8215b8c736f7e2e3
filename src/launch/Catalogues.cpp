#include "launch/Catalogues.h"

#include <QCoreApplication>

#include <utility>

namespace vantle {

Catalogues::Catalogues(const QStringList& languages) {
    install(QStringLiteral("en"));
    for (const QString& language : languages) {
        const QString name = language.section(QLatin1Char('-'), 0, 0);
        if (name == QLatin1String("en") || install(name)) return;
    }
}

bool Catalogues::install(const QString& name) {
    auto translator = std::make_unique<QTranslator>();
    // A missing file is a language without a catalogue.
    if (!translator->load(QStringLiteral(":/vantle/translations/vantle_%1.qm").arg(name)))
        return false;
    QCoreApplication::installTranslator(translator.get());
    m_translators.push_back(std::move(translator));
    return true;
}

} // namespace vantle
