// Sample applications with their modes.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Item {
    id: picture

    required property WelcomeView model

    implicitHeight: WelcomeTokens.stageHeight

    Column {
        x: WelcomeTokens.appsLeft
        width: WelcomeTokens.appsWidth
        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: -DarkUI.space10
        spacing: DarkUI.space10

        DarkText {
            text: qsTr("Your apps file themselves, by name only:")
            role: DarkUI.caption
            color: DarkUI.textSecondary
        }

        SampleFrame {
            width: parent.width
            height: rows.height
            label: picture.model.sampleLabel

            Column {
                id: rows
                width: parent.width

                Repeater {
                    model: picture.model.samples.apps

                    SampleAppRow {
                        required property sampleApp modelData
                        required property int index
                        width: rows.width
                        app: modelData
                        ruled: index > 0
                    }
                }
            }
        }
    }
}
