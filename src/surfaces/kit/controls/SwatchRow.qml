// A row of colours, one of which is chosen.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

ArrowGroup {
    id: row

    required property list<color> colors
    property list<string> names // for screen readers, in the order of the colours
    property int currentIndex: -1
    readonly property real pitch: colors.length > 1
                                  ? (width - DarkUI.swatchCellSize) / (colors.length - 1) : 0
    signal activated(int index)

    implicitWidth: colors.length * DarkUI.swatchCellSize
    implicitHeight: DarkUI.swatchCellSize
    list: cells
    current: Math.max(currentIndex, 0)
    Accessible.name: qsTr("Color")
    onMoved: index => activated(index) // arrow keys choose immediately

    Item {
        id: cells
        anchors.fill: parent

        Repeater {
            model: row.colors

            KitPressable {
                id: cell
                required property color modelData
                required property int index
                readonly property bool chosen: index === row.currentIndex

                x: Math.round(index * row.pitch)
                width: DarkUI.swatchCellSize
                height: DarkUI.swatchCellSize
                name: row.names[index] ?? KitText.digits(modelData)
                Accessible.role: Accessible.RadioButton
                Accessible.checkable: true
                Accessible.checked: chosen
                Accessible.description: KitText.swatch(modelData, chosen)
                onClicked: row.activated(index)

                Plate {
                    anchors.centerIn: parent
                    width: DarkUI.swatchSize
                    height: DarkUI.swatchSize
                    radius: width / 2
                    color: cell.hovered && !cell.chosen ? Tint.lightened(cell.modelData, 0.15)
                                                        : cell.modelData
                }

                Plate {
                    anchors.fill: parent
                    visible: cell.chosen
                    radius: width / 2
                    edgeWidth: DarkUI.focusWidth
                    edge: DarkUI.chosenRing
                }

                FocusRing {
                    shown: cell.ringed
                    controlRadius: cell.width / 2
                }
            }
        }
    }

    onCurrentIndexChanged: {
        current = Math.max(currentIndex, 0);
        refresh();
    }
}
