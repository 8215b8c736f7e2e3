// The model of a settings row for one preference.
#pragma once

#include "platform/Preference.h"
#include "tracking/DurationStyle.h"

#include <QList>
#include <QObject>
#include <QQmlEngine>
#include <QString>

#include <variant>

namespace vantle {

class DesktopGaps;

/// Reads and writes the preference, and follows changes by other windows. Main thread.
class PreferenceRowModel final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the settings.")
    Q_PROPERTY(Kind kind READ kind CONSTANT FINAL)
    Q_PROPERTY(QString title READ title NOTIFY changed FINAL)
    /// What the preference does, or why it has no effect on this desktop.
    Q_PROPERTY(QString caption READ caption NOTIFY changed FINAL)
    /// A second paragraph of the caption; empty for none.
    Q_PROPERTY(QString note READ note CONSTANT FINAL)
    /// What this desktop lacks for it; empty for nothing.
    Q_PROPERTY(QString gap READ gap NOTIFY changed FINAL)
    /// The button against the gap; empty where nothing can be done.
    Q_PROPERTY(QString remedy READ remedy NOTIFY changed FINAL)

    /// For a switch.
    Q_PROPERTY(bool on READ isOn WRITE setOn NOTIFY changed FINAL)

    /// For a slider and a stepper, in the row's unit. A value stored by other means may be out of
    /// range.
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY changed FINAL)
    Q_PROPERTY(double least READ least CONSTANT FINAL)
    Q_PROPERTY(double most READ most CONSTANT FINAL)
    Q_PROPERTY(double stepSize READ stepSize CONSTANT FINAL)
    Q_PROPERTY(bool isLowest READ isLowest NOTIFY changed FINAL)
    Q_PROPERTY(bool isHighest READ isHighest NOTIFY changed FINAL)
    /// The value as text, beside a stepper.
    Q_PROPERTY(QString valueText READ valueText NOTIFY changed FINAL)
    /// The names of a stepper's two buttons.
    Q_PROPERTY(QString lessName READ lessName CONSTANT FINAL)
    Q_PROPERTY(QString moreName READ moreName CONSTANT FINAL)

public:
    enum Kind { Switch, Slider, Stepper };
    Q_ENUM(Kind)
    enum Section { Focus, Ceremony, AutoMode };
    Q_ENUM(Section)

    /// A switch.
    struct OnOff {
        Preference<bool> preference;
        bool isStoredInverted = false; ///< stores false for on
    };
    /// The range of a number.
    struct Range {
        Preference<double> preference;
        double storedPerUnit; ///< the stored value per row unit
        double least;
        double most;
        double step;
        QString (*text)(double value, DurationStyle style) = nullptr;
        const char* lessName = ""; ///< source texts, as in Entry
        const char* moreName = "";
    };
    /// A row of the table, with source texts. "%n" in title and caption is the value as a whole
    /// number of at least 1.
    struct Entry {
        Section section;
        Kind kind;
        std::variant<OnOff, Range> setting;
        const char* title;
        const char* caption;
        const char* captionOfOne = nullptr; ///< the caption for the value 1, if it differs
        const char* note = "";
        QString (DesktopGaps::*gap)() const = nullptr;
        bool gapReplacesCaption = false;
        QString (DesktopGaps::*remedy)() const = nullptr;
        void (DesktopGaps::*applyRemedy)() = nullptr;
    };

    /// All of it must outlive the row.
    PreferenceRowModel(const Entry& entry, Preferences& preferences, DesktopGaps& gaps,
                       QObject* parent);

    [[nodiscard]] Section section() const { return m_entry.section; }
    [[nodiscard]] Kind kind() const { return m_entry.kind; }
    [[nodiscard]] QString title() const { return worded(m_entry.title); }
    [[nodiscard]] QString caption() const;
    [[nodiscard]] QString note() const;
    [[nodiscard]] QString gap() const;
    [[nodiscard]] QString remedy() const;
    Q_INVOKABLE void applyRemedy();

    [[nodiscard]] bool isOn() const;
    void setOn(bool on);

    [[nodiscard]] double value() const;
    /// Stores the nearest value in range.
    void setValue(double value);
    /// Moves by `steps`, and returns an out-of-range value into the range.
    Q_INVOKABLE void step(int steps);
    [[nodiscard]] double least() const { return range() ? range()->least : 0; }
    [[nodiscard]] double most() const { return range() ? range()->most : 0; }
    [[nodiscard]] double stepSize() const { return range() ? range()->step : 0; }
    [[nodiscard]] bool isLowest() const { return value() <= least(); }
    [[nodiscard]] bool isHighest() const { return value() >= most(); }
    [[nodiscard]] QString valueText() const;
    [[nodiscard]] QString lessName() const;
    [[nodiscard]] QString moreName() const;

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] const Range* range() const { return std::get_if<Range>(&m_entry.setting); }
    void store(double value);
    [[nodiscard]] int wholeValue() const;
    [[nodiscard]] QString worded(const char* source) const;
    [[nodiscard]] QString gapHere() const;

    const Entry& m_entry;
    Preferences& m_preferences;
    DesktopGaps& m_gaps;
};

/// The settings rows of single preferences, top to bottom.
[[nodiscard]] const QList<PreferenceRowModel::Entry>& settingsTable();

} // namespace vantle
