// The field for the user's project.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Welcome

FocusScope {
    id: pick

    required property WelcomeView model
    property alias input: field.input

    implicitHeight: field.y + field.height

    DarkText {
        id: label
        text: qsTr("Project")
        role: DarkUI.captionMedium
        color: DarkUI.textSecondary
        Accessible.ignored: true // the field has it as its name
    }

    DarkTextField {
        id: field
        y: label.height + DarkUI.space8
        width: parent.width
        focus: true
        minHeight: DarkUI.welcomeFieldHeight
        role: DarkUI.lead
        padding: DarkUI.space14
        name: label.text
        placeholder: qsTr("my app, my degree, 10,000 hours of guitar")
        onEdited: pick.model.productName = field.text
        onAccepted: pick.model.pressPrimary()
    }
}
