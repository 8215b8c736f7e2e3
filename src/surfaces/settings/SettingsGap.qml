// What this desktop lacks, below what a row promises.
import QtQuick
import Vantle.Kit

SettingsCaption {
    visible: text !== ""
    topPadding: role.leading + DarkUI.space6
    color: DarkUI.textSecondary
    Accessible.ignored: text === "" // it is rare, and news
}
