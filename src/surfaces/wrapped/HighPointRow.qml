// A high point: icon in a coloured disc, and a sentence.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

Item {
    id: row

    required property highPoint point
    property int order: 0
    property bool last: false
    property bool animated: false

    // Maps the symbol names to the kit's icons.
    function iconOf(symbol: string): string {
        switch (symbol) {
        case "trophy.fill":
            return "trophy";
        case "calendar":
            return "calendar";
        case "timer":
            return "timer";
        case "bolt.fill":
            return "bolt";
        case "hammer.fill":
            return "hammer";
        case "checkmark.circle.fill":
            return "check-circle";
        default:
            return "sparkles";
        }
    }

    implicitHeight: DarkUI.pointDiscSize + (last ? 0 : DarkUI.space20 + DarkUI.hairlineWidth)

    PopIn {
        animated: row.animated
        order: row.order
        baseDelay: DarkUI.cascadeDelay + 2 * DarkUI.cascadeStep

        FlatDot {
            width: DarkUI.pointDiscSize
            height: DarkUI.pointDiscSize
            color: Tint.alpha(row.point.tint, DarkUI.pointTintOpacity)

            KitIcon {
                anchors.centerIn: parent
                width: DarkUI.space20
                height: DarkUI.space20
                name: row.iconOf(row.point.icon)
                color: row.point.tint
            }
        }
    }

    CascadeIn {
        id: words
        x: DarkUI.pointDiscSize + DarkUI.space16
        y: (DarkUI.pointDiscSize - height) / 2
        width: row.width - x
        animated: row.animated
        order: 2 + row.order

        DarkText {
            width: words.width
            text: row.point.text
            role: DarkUI.titleM
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
        }
    }

    DarkDivider {
        anchors.bottom: parent.bottom
        width: row.width
        visible: !row.last
    }
}
