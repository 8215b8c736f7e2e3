// The pages about notes, and the last page.
//
// Plain values and pure functions, any thread. An unused text is empty.
#pragma once

#include "review/CardWords.h"

#include <QStringList>

namespace vantle {

struct NarrativeCard {
    Q_GADGET
    QML_VALUE_TYPE(narrativeCard)
    Q_PROPERTY(QString kicker MEMBER kicker CONSTANT)
    Q_PROPERTY(QString text MEMBER text CONSTANT)
    Q_PROPERTY(QString opening MEMBER opening CONSTANT)
    Q_PROPERTY(QString rest MEMBER rest CONSTANT)
    Q_PROPERTY(QString quiet MEMBER quiet CONSTANT)

public:
    QString kicker;
    QString text;
    QString opening; ///< the first sentence of the text, with the space after it
    QString rest;
    QString quiet;
};

struct NoteHighlight {
    Q_GADGET
    QML_VALUE_TYPE(noteHighlight)
    Q_PROPERTY(QString text MEMBER text CONSTANT)
    Q_PROPERTY(QString skillName MEMBER skillName CONSTANT)
    Q_PROPERTY(QColor skillColor MEMBER skillColor CONSTANT)
    Q_PROPERTY(QString date MEMBER date CONSTANT)
    Q_PROPERTY(QString spoken READ spoken CONSTANT)

public:
    QString text;
    QString skillName;
    QColor skillColor;
    QString date; ///< "Mar 9"

    /// The note for screen readers.
    [[nodiscard]] QString spoken() const;
};

struct NotesCard {
    Q_GADGET
    QML_VALUE_TYPE(notesCard)
    Q_PROPERTY(QString kicker MEMBER kicker CONSTANT)
    Q_PROPERTY(QString story MEMBER story CONSTANT)
    Q_PROPERTY(QStringList themes MEMBER themes CONSTANT)
    Q_PROPERTY(QVariantList highlights READ highlightList CONSTANT)
    Q_PROPERTY(QString more MEMBER more CONSTANT)
    Q_PROPERTY(QString foot MEMBER foot CONSTANT)

public:
    QString kicker;
    QString story;
    QStringList themes; ///< for chips
    std::vector<NoteHighlight> highlights;
    QString more; ///< the number of notes left out
    QString foot; ///< shown with a lock

    [[nodiscard]] QVariantList highlightList() const { return cardwords::asList(highlights); }
};

struct SummaryCard {
    Q_GADGET
    QML_VALUE_TYPE(summaryCard)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString closing MEMBER closing CONSTANT)
    Q_PROPERTY(QString foot MEMBER foot CONSTANT)
    Q_PROPERTY(QString fileName MEMBER fileName CONSTANT)

public:
    QString title;
    QString closing;
    QString foot;
    QString fileName; ///< suggested name for the saved poster
};

namespace reviewcards {

/// `text` is the model's sentence; empty before it arrives.
[[nodiscard]] NarrativeCard narrative(WrappedPeriod period, const QString& text);

/// Empty without a note. `shown` notes fit.
[[nodiscard]] std::optional<NotesCard> notes(const WrappedStats& stats,
                                             const WrappedSettings& settings, std::size_t shown);

[[nodiscard]] SummaryCard summary(const WrappedStats& stats, const WrappedSettings& settings);

[[nodiscard]] QString posterFileName(WrappedPeriod period); ///< "wrapped-this-week.png"

} // namespace reviewcards
} // namespace vantle
