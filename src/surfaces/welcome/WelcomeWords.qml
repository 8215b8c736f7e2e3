// The texts of a step, which appear line by line.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

Column {
    id: words

    required property WelcomeView model

    function comeIn(): void {
        heading.comeIn();
        lead.comeIn();
        below.comeIn();
    }

    spacing: DarkUI.space10

    component Line: Item {
        id: line

        required property string text
        required property TypeRole role
        required property color color
        required property int order
        property int accessibleRole: Accessible.StaticText

        function comeIn(): void {
            arrival.startFrom(0);
        }

        width: words.width
        height: label.height
        visible: text !== ""

        SpringValue {
            id: arrival
            spring: DarkUI.springCascade
            delay: DarkUI.cascadeDelay + line.order * DarkUI.cascadeStep
            target: 1
        }

        DarkText {
            id: label
            y: (1 - arrival.value) * DarkUI.cascadeRise
            width: parent.width
            opacity: Math.max(0, Math.min(arrival.value, 1))
            text: line.text
            role: line.role
            color: line.color
            wrapMode: Text.Wrap
            Accessible.role: line.accessibleRole
        }
    }

    Line {
        id: heading
        order: 0
        text: words.model.title
        role: DarkUI.titleXL
        color: DarkUI.textPrimary
        accessibleRole: Accessible.Heading
    }

    Line {
        id: lead
        order: 1
        text: words.model.body
        role: DarkUI.lead
        color: DarkUI.textSecondary
    }

    Line {
        id: below
        order: 2
        text: words.model.shortcutProblem || words.model.sampleLine
        role: DarkUI.caption
        color: words.model.shortcutProblem !== "" ? DarkUI.dangerText : DarkUI.textTertiary
        accessibleRole: words.model.shortcutProblem !== "" ? Accessible.AlertMessage
                                                           : Accessible.StaticText
    }

    Connections {
        target: words.model
        function onStepChanged(): void {
            words.comeIn();
        }
    }
}
