// What this desktop lacks for the row above.
import QtQuick
import Vantle.Kit

SettingsCaption {
    visible: text !== ""
    topPadding: role.leading + DarkUI.space6
    color: DarkUI.textSecondary
    Accessible.ignored: text === "" // visible to readers, since it is rare and important
}
