// for screen readers, after the title
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

SettingsRow {
    id: row

    property bool checked: false
    property string spoken: caption // read out after the title
    signal toggled(bool checked)

    control: BrandToggle {
        name: row.title
        checked: row.checked
        onToggled: checked => row.toggled(checked)
        Accessible.description: row.spoken
    }
}
