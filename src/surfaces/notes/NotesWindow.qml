// The notes window: a head with the search, the filters, the list by days, a foot.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: window

    required property LogView view
}
