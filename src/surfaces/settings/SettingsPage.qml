// The settings window: all preferences in sections.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Settings

FocusScope {
    id: page

    required property SettingsView model
    readonly property real margin: DarkUI.space24
    property alias scroll: scroll
    property alias content: content

    focus: true
    implicitWidth: 480
    implicitHeight: 620

    Keys.onEscapePressed: event => {
        event.accepted = page.model.confirmingErase;
        if (event.accepted)
            general.cancelErase();
    }

    DarkScrollView {
        id: scroll
        anchors.fill: parent
        focus: true
        atWindowBottom: true
        // Scrolls the whole erase confirmation into view.
        onContentHeightChanged: if (page.model.confirmingErase) scrollTo(contentHeight)

        Column {
            id: content
            x: page.margin
            width: page.width - 2 * page.margin
            topPadding: -DarkUI.space16 // less space above the first heading
            bottomPadding: DarkUI.space28 + DarkUI.space4

            FocusSection {
                width: parent.width
                model: page.model
            }

            CeremonySection {
                width: parent.width
                model: page.model
            }

            AutoModeSection {
                width: parent.width
                model: page.model
            }

            GeneralSection {
                id: general
                width: parent.width
                model: page.model
            }

            DarkText {
                anchors.horizontalCenter: parent.horizontalCenter
                topPadding: role.leading + DarkUI.space24
                text: page.model.versionLine
                role: DarkUI.small
                color: DarkUI.textTertiary
            }
        }
    }
}
