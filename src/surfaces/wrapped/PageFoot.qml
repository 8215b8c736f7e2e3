// The secondary lines at a page's bottom, optionally below a hairline.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

Item {
    id: foot

    property list<string> lines
    property bool ruled: false
    property real leastHeight: 0
    property bool animated: false
    property int order: 0
    default property alias content: above.data // between hairline and lines

    anchors.left: parent ? parent.left : undefined
    anchors.right: parent ? parent.right : undefined
    anchors.bottom: parent ? parent.bottom : undefined
    implicitHeight: Math.max(inside.implicitHeight, leastHeight)

    CascadeIn {
        id: inside
        width: foot.width
        animated: foot.animated
        order: foot.order

        Column {
            width: foot.width

            DarkDivider {
                width: foot.width
                visible: foot.ruled
            }

            Item {
                width: 1
                height: DarkUI.space14
                visible: foot.ruled
            }

            Item {
                id: above
                width: foot.width
                height: childrenRect.height
                visible: children.length > 0
            }

            Repeater {
                model: foot.lines

                DarkText {
                    required property string modelData
                    width: foot.width
                    text: modelData
                    color: DarkUI.textTertiary
                    wrapMode: Text.Wrap
                }
            }
        }
    }
}
