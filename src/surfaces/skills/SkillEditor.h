// The editor of a skill's name and colour.
#pragma once

#include "tracking/Skill.h"

#include <QColor>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <functional>
#include <optional>
#include <vector>

namespace vantle {

/// Keeps the user's input until commit or close, also while its surface is hidden. Knows the
/// minimum length of a name, not whether it is taken; cuts a name that is too long. Main thread.
class SkillEditor final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the models of the surfaces.")
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged)
    /// Whether it adds a skill; otherwise it changes one.
    Q_PROPERTY(bool adding READ isAdding NOTIFY shownChanged)
    Q_PROPERTY(bool hasName READ hasName NOTIFY shownChanged)
    Q_PROPERTY(bool hasColors READ hasColors NOTIFY shownChanged)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(int maxNameLength READ maxNameLength CONSTANT) ///< user-perceived characters
    /// "8/20"
    Q_PROPERTY(QString counter READ counter NOTIFY nameChanged)
    Q_PROPERTY(bool canCommit READ canCommit NOTIFY nameChanged)
    Q_PROPERTY(QColor color READ color NOTIFY colorChanged)
    Q_PROPERTY(QList<QColor> palette READ palette CONSTANT)
    /// For screen readers, in palette order.
    Q_PROPERTY(QList<QString> colorNames READ colorNames CONSTANT)
    /// The index of the chosen palette colour; -1 for another colour.
    Q_PROPERTY(int colorIndex READ colorIndex NOTIFY colorChanged)

public:
    /// Which properties are edited.
    enum class Fields { Both, Name, Color };

    /// Takes a finished edit; the id is empty for a new skill.
    using Commit =
        std::function<void(const std::optional<QString>& id, const QString& name, std::uint32_t)>;

    /// A name shorter than `shortestName` cannot be committed.
    explicit SkillEditor(Commit commit, int shortestName = 1)
        : m_commit(std::move(commit))
        , m_shortestName(shortestName) {}

    /// Opens with the skill's values.
    void openFor(const Skill& skill, Fields fields = Fields::Both);
    /// Opens empty, with the first palette colour that no skill uses.
    void openNew(const std::vector<Skill>& skills = {});

    /// Commits the trimmed name and closes; has no effect while the name is too short.
    Q_INVOKABLE void commit();
    Q_INVOKABLE void close();
    /// Chooses a palette colour.
    Q_INVOKABLE void chooseColor(int index);

    [[nodiscard]] bool isShown() const { return m_shown; }
    [[nodiscard]] bool isAdding() const { return !m_editingSkillId; }
    [[nodiscard]] const std::optional<QString>& editingSkillId() const { return m_editingSkillId; }
    [[nodiscard]] bool hasName() const { return m_fields != Fields::Color; }
    [[nodiscard]] bool hasColors() const { return m_fields != Fields::Name; }
    [[nodiscard]] const QString& name() const { return m_name; }
    void setName(const QString& name);
    [[nodiscard]] static int maxNameLength() { return Skill::maxNameLength; }
    [[nodiscard]] QString counter() const;
    [[nodiscard]] bool canCommit() const;
    [[nodiscard]] QColor color() const { return QColor::fromRgb(m_hexRGB); }
    [[nodiscard]] static QList<QColor> palette();
    [[nodiscard]] static QStringList colorNames();
    [[nodiscard]] int colorIndex() const;

Q_SIGNALS:
    void shownChanged();
    void nameChanged();
    void colorChanged();
    /// The editor was shown: the name gets the keyboard.
    void opened();
    /// The editor was removed from its surface.
    void closed();

private:
    void open(std::optional<QString> id, const QString& name, std::uint32_t hexRGB, Fields fields);

    Commit m_commit;
    int m_shortestName;
    bool m_shown = false;
    Fields m_fields = Fields::Both;
    std::optional<QString> m_editingSkillId;
    QString m_name;
    std::uint32_t m_hexRGB = 0;
};

} // namespace vantle
