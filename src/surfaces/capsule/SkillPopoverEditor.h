// The small editor of one skill that opens below its chip.
#pragma once

#include "tracking/Skill.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>

namespace vantle {

/// Holds what the person has typed and chosen until they commit or turn away. Whether a name may be
/// taken is not known here, only whether there is one and that it is not too long. Main thread.
class SkillPopoverEditor final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the capsule.")
    Q_PROPERTY(Mode mode READ mode CONSTANT)
    Q_PROPERTY(QString title READ title CONSTANT)
    /// Empty where there is none.
    Q_PROPERTY(QString subtitle READ subtitle CONSTANT)
    Q_PROPERTY(bool hasName READ hasName CONSTANT)
    Q_PROPERTY(bool hasColors READ hasColors CONSTANT)
    Q_PROPERTY(QString commitTitle READ commitTitle CONSTANT)
    Q_PROPERTY(int height READ height CONSTANT)
    Q_PROPERTY(QString name READ name NOTIFY nameChanged)
    Q_PROPERTY(bool canCommit READ canCommit NOTIFY nameChanged)
    Q_PROPERTY(int maxNameLength READ maxNameLength CONSTANT)
    Q_PROPERTY(QList<QColor> palette READ palette CONSTANT)
    /// Read out for the colours, in the order of the palette.
    Q_PROPERTY(QList<QString> colorNames READ colorNames CONSTANT)
    /// Which colour of the palette is chosen; -1 for one that is not in it.
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedHexChanged)

public:
    enum class Mode { Rename, Recolor, Add };
    Q_ENUM(Mode)

    struct Result {
        enum class Kind { Save, Add, Cancel };
        Kind kind = Kind::Cancel;
        QString id;               ///< when saved
        QString name;             ///< unless cancelled
        std::uint32_t hexRGB = 0; ///< unless cancelled
    };

    /// `skill` is the one to change; empty exactly when one is added. `onResult` is called once.
    SkillPopoverEditor(Mode mode, std::optional<Skill> skill,
                       std::function<void(const Result&)> onResult);

    [[nodiscard]] Mode mode() const { return m_mode; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] bool hasName() const { return m_mode != Mode::Recolor; }
    [[nodiscard]] bool hasColors() const { return m_mode != Mode::Rename; }
    [[nodiscard]] QString commitTitle() const;
    [[nodiscard]] int height() const; ///< px

    [[nodiscard]] const QString& name() const { return m_name; }
    [[nodiscard]] bool canCommit() const;
    [[nodiscard]] static int maxNameLength() { return Skill::maxNameLength; }
    [[nodiscard]] static QList<QColor> palette();
    [[nodiscard]] static QList<QString> colorNames();
    [[nodiscard]] std::uint32_t selectedHex() const { return m_selectedHex; }
    [[nodiscard]] int selectedIndex() const;

    /// Chooses a colour of the palette.
    Q_INVOKABLE void select(int index);

    /// What the field holds now. Returns what it may hold: the text, cut where it is too long.
    Q_INVOKABLE QString edit(const QString& text);

    /// Does nothing while there is no name to commit.
    Q_INVOKABLE void commit();
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void nameChanged();
    void selectedHexChanged();

private:
    void finish(const Result& result);
    [[nodiscard]] QString trimmedName() const;

    Mode m_mode;
    std::optional<Skill> m_skill;
    std::function<void(const Result&)> m_onResult;
    QString m_name;
    std::uint32_t m_selectedHex;
};

} // namespace vantle
