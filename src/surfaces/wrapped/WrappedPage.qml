// The review window: a picker of periods above cards that are paged through one at a time.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Review

FocusScope {
    id: page

    required property WrappedView model

    focus: true
    implicitWidth: 440
    implicitHeight: 660
}
