// The editor of one mode, below the chips of the command center.
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

/// Holds what the person has typed and chosen, also while the panel is hidden. Main thread.
class SkillEditor final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the models of the surfaces.")
    Q_PROPERTY(bool shown READ isShown NOTIFY shownChanged)
    Q_PROPERTY(bool adding READ isAdding NOTIFY shownChanged)
    Q_PROPERTY(QString title READ title NOTIFY shownChanged)
    Q_PROPERTY(QString help READ help CONSTANT)
    Q_PROPERTY(QString fieldLabel READ fieldLabel CONSTANT)
    Q_PROPERTY(QString placeholder READ placeholder CONSTANT)
    /// What is read out for the field.
    Q_PROPERTY(QString fieldName READ fieldName NOTIFY shownChanged)
    Q_PROPERTY(QString confirmText READ confirmText NOTIFY shownChanged)
    Q_PROPERTY(QString cancelText READ cancelText CONSTANT)
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
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
    /// What is done with a finished edit: the id is empty when a mode is added.
    using Commit =
        std::function<void(const std::optional<QString>& id, const QString& name, std::uint32_t)>;

    explicit SkillEditor(Commit commit) : m_commit(std::move(commit)) {}

    /// Opens with what the skill has.
    void openFor(const Skill& skill);
    /// Opens empty, with the first colour of the palette that none of the skills has.
    void openNew(const std::vector<Skill>& skills);

    /// Hands the edit over and closes; nothing while there is no name. The name is trimmed.
    Q_INVOKABLE void commit();
    Q_INVOKABLE void close();
    /// Chooses a colour of the palette.
    Q_INVOKABLE void chooseColor(int index);

    [[nodiscard]] bool isShown() const { return m_shown; }
    [[nodiscard]] bool isAdding() const { return !m_editingSkillId; }
    [[nodiscard]] const std::optional<QString>& editingSkillId() const { return m_editingSkillId; }
    [[nodiscard]] QString title() const;
    [[nodiscard]] static QString help();
    [[nodiscard]] static QString fieldLabel();
    [[nodiscard]] static QString placeholder();
    [[nodiscard]] QString fieldName() const;
    [[nodiscard]] QString confirmText() const;
    [[nodiscard]] static QString cancelText();
    [[nodiscard]] const QString& name() const { return m_name; }
    /// What is too long is cut.
    void setName(const QString& name);
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
    /// The editor was opened: the keyboard belongs to the name.
    void opened();

private:
    void open(std::optional<QString> id, const QString& name, std::uint32_t hexRGB);

    Commit m_commit;
    bool m_shown = false;
    std::optional<QString> m_editingSkillId;
    QString m_name;
    std::uint32_t m_hexRGB = 0;
};

} // namespace vantle
