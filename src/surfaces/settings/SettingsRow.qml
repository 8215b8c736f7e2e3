// A settings row: title and control on one line, caption below.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: row

    property string title
    property string caption
    property bool first: false // without a hairline above
    readonly property real inner: width - 2 * DarkUI.space16
    readonly property real captionGap: 5
    property alias control: controls.data // at the right end of the title line
    default property alias more: extra.data // below the caption

    implicitHeight: content.y + content.height + DarkUI.space14

    DarkDivider {
        x: DarkUI.space16
        width: row.inner
        visible: !row.first
    }

    Column {
        id: content
        x: DarkUI.space16
        y: DarkUI.space14 + (row.first ? 0 : DarkUI.hairlineWidth)
        width: row.inner
        spacing: row.captionGap

        Item {
            width: parent.width
            height: Math.max(title.height, controls.height)

            DarkText {
                id: title
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - controls.width - DarkUI.space12
                text: row.title
                role: DarkUI.bodyMedium
                elide: Text.ElideRight
                Accessible.description: row.caption
            }

            Row {
                id: controls
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: DarkUI.space8
            }
        }

        SettingsCaption {
            width: parent.width - DarkUI.space20
            visible: text !== ""
            text: row.caption
        }

        Column {
            id: extra
            width: parent.width
        }
    }
}
