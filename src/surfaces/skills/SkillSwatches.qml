// The colours for a skill.
import QtQuick
import Vantle.Kit
import Vantle.Skills

SwatchRow {
    required property SkillEditor editor

    colors: editor.palette
    names: editor.colorNames
    currentIndex: editor.colorIndex
    onActivated: index => editor.chooseColor(index)
}
