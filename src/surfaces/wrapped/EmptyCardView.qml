// The state without sessions in the period.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit

ReviewPage {
    id: page

    Column {
        anchors.verticalCenter: parent.verticalCenter
        anchors.verticalCenterOffset: DarkUI.pagerButtonSize // no pager below
        width: page.width

        CascadeIn {
            animated: page.animated

            Row {
                spacing: DarkUI.space14
                bottomPadding: DarkUI.space28

                Repeater {
                    model: 3

                    GlassDot {
                        width: DarkUI.space18
                        height: DarkUI.space18
                        filled: false
                    }
                }
            }
        }

        CascadeIn {
            animated: page.animated
            order: 1

            DarkText {
                width: page.width
                text: page.texts.emptyTitle
                role: DarkUI.titleXL
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
            }
        }

        Item {
            width: 1
            height: DarkUI.space8
        }

        CascadeIn {
            animated: page.animated
            order: 2

            DarkText {
                width: page.width
                text: page.texts.emptyText
                role: DarkUI.lead
                color: DarkUI.textSecondary
                wrapMode: Text.Wrap
            }
        }

        Item {
            width: 1
            height: DarkUI.space24
        }

        CascadeIn {
            visible: page.model.canEnter
            animated: page.animated
            order: 3

            DarkPrimaryButton {
                implicitHeight: DarkUI.formButtonHeight
                text: page.model.enterText
                onClicked: page.model.enterVantle()
            }
        }
    }
}
