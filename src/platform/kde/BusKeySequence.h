// A key sequence in D-Bus form: (ai) of four numbers.
//
// Any thread.
#pragma once

#include <QDBusArgument>
#include <QKeySequence>
#include <QList>
#include <QMetaType>

namespace vantle {

struct BusKeySequence {
    QList<int> chords; ///< key plus modifiers; 0 for none

    [[nodiscard]] bool isEmpty() const { return chords.value(0) == 0; }
    [[nodiscard]] QKeySequence sequence() const {
        return QKeySequence(chords.value(0), chords.value(1), chords.value(2), chords.value(3));
    }
};

inline QDBusArgument& operator<<(QDBusArgument& out, const BusKeySequence& keys) {
    out.beginStructure();
    out << keys.chords;
    out.endStructure();
    return out;
}

inline const QDBusArgument& operator>>(const QDBusArgument& in, BusKeySequence& keys) {
    in.beginStructure();
    in >> keys.chords;
    in.endStructure();
    return in;
}

} // namespace vantle

Q_DECLARE_METATYPE(vantle::BusKeySequence)
