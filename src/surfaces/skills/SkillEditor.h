// The editor of one skill: its name, its colour, or both.
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

/// Holds what the user has typed and chosen until they commit or close it, also while its surface
/// is hidden. Whether a name is taken is not known here, only whether it is long enough; one that
/// is too long is cut. Main thread.
class SkillEditor final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the models of the surfaces.")
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged)
    /// It adds a skill; else it changes one.
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
    /// Read out for the colours, in the order of the palette.
    Q_PROPERTY(QList<QString> colorNames READ colorNames CONSTANT)
    /// Which colour of the palette is chosen; -1 for one that is not in it.
    Q_PROPERTY(int colorIndex READ colorIndex NOTIFY colorChanged)

public:
    /// What of a skill is edited.
    enum class Fields { Both, Name, Color };

    /// What is done with a finished edit: the id is empty when a skill is added.
    using Commit =
        std::function<void(const std::optional<QString>& id, const QString& name, std::uint32_t)>;

    /// A name with fewer characters than `shortestName` can't be committed.
    explicit SkillEditor(Commit commit, int shortestName = 1)
        : m_commit(std::move(commit))
        , m_shortestName(shortestName) {}

    /// Opens with what the skill has. What is not edited stays as it is.
    void openFor(const Skill& skill, Fields fields = Fields::Both);
    /// Opens empty, with the first colour of the palette that none of the skills has.
    void openNew(const std::vector<Skill>& skills = {});

    /// Hands the edit over and closes; nothing while the name is too short. The name is trimmed.
    Q_INVOKABLE void commit();
    Q_INVOKABLE void close();
    /// Chooses a colour of the palette.
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
    /// The editor is shown: the keyboard belongs to the name.
    void opened();
    /// The editor is gone from its surface.
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
