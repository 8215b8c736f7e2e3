// Buttons, switch, stepper, menu, fields and pickers in all of their states.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.DemoKit

Rectangle {
    id: scene

    implicitWidth: 1000
    implicitHeight: 550
    color: DarkUI.windowGround

    Column {
        x: 48
        y: 44
        spacing: DarkUI.space28

        Column {
            spacing: DarkUI.space16

            DarkKicker {
                text: "Buttons"
            }

            Row {
                spacing: 26

                Sample {
                    caption: "Rest"
                    DarkPrimaryButton { text: "Start building" }
                }
                Sample {
                    caption: "Hover"
                    DarkPrimaryButton { text: "Start building"; hovered: true }
                }
                Sample {
                    caption: "Pressed"
                    DarkPrimaryButton { text: "Start building"; pressed: true }
                }
                Sample {
                    caption: "Focus"
                    DarkPrimaryButton { text: "Start building"; ringed: true }
                }
                Sample {
                    caption: "Disabled"
                    DarkPrimaryButton { text: "Start building"; enabled: false }
                }
                Sample {
                    caption: "Its own colour"
                    DarkPrimaryButton { text: "Create skill"; accent: "#FFD60A" }
                }
            }

            Row {
                spacing: 26

                Sample {
                    caption: "Rest"
                    DarkSecondaryButton { text: "Log time" }
                }
                Sample {
                    caption: "Hover"
                    DarkSecondaryButton { text: "Log time"; hovered: true }
                }
                Sample {
                    caption: "Pressed"
                    DarkSecondaryButton { text: "Log time"; pressed: true }
                }
                Sample {
                    caption: "Focus"
                    DarkSecondaryButton { text: "Log time"; ringed: true }
                }
                Sample {
                    caption: "Disabled"
                    DarkSecondaryButton { text: "Log time"; enabled: false }
                }
                Sample {
                    caption: "Danger"
                    DarkDangerButton { text: "Erase" }
                }
                Sample {
                    caption: "Hover"
                    DarkDangerButton { text: "Erase"; hovered: true }
                }
                Sample {
                    caption: "Text"
                    KitButton { kind: KitButton.Text; text: "Cancel" }
                }
                Sample {
                    caption: "Icon"
                    Row {
                        spacing: DarkUI.space6
                        DarkIconButton { name: "Edit"; icon: "pencil" }
                        DarkIconButton { name: "Copy"; icon: "copy"; hovered: true }
                        DarkCloseButton {}
                    }
                }
            }
        }

        Row {
            spacing: DarkUI.space64

            Column {
                spacing: DarkUI.space16

                DarkKicker {
                    text: "Switch, stepper, menu"
                }
                Row {
                    spacing: 26
                    Sample {
                        caption: "Off"
                        BrandToggle { name: "A switch" }
                    }
                    Sample {
                        caption: "On"
                        BrandToggle { name: "A switch"; checked: true }
                    }
                    Sample {
                        caption: "Focus"
                        BrandToggle { name: "A switch"; checked: true; ringed: true }
                    }
                    Sample {
                        caption: "Stepper"
                        Row {
                            spacing: DarkUI.space8
                            StepChip { label: "−" }
                            StepChip { label: "+"; hovered: true }
                        }
                    }
                    Sample {
                        caption: "Menu"
                        DarkMenuPicker {
                            title: "Duration format"
                            options: ["Natural · 3.5 h", "Clock · 3:30"]
                            currentIndex: 0
                        }
                    }
                }
            }

            Column {
                spacing: DarkUI.space16

                DarkKicker {
                    text: "Field well"
                }
                Row {
                    spacing: DarkUI.space20
                    Sample {
                        caption: "Rest"
                        DarkTextField { width: 150; name: "Search"; placeholder: "Search notes" }
                    }
                    Sample {
                        caption: "Focused"
                        DarkTextField {
                            width: 150
                            name: "Name"
                            text: "Design"
                            focus: true
                        }
                    }
                    Sample {
                        caption: "Wrong"
                        DarkTextField { width: 90; name: "Hours"; text: "25"; wrong: true }
                    }
                }
            }
        }

        Row {
            spacing: DarkUI.space64

            Column {
                spacing: DarkUI.space16
                DarkKicker {
                    text: "Segments, slider, bars"
                }
                Row {
                    spacing: 26
                    SegmentedPicker {
                        width: 300
                        options: ["Week", "Month", "Year"]
                        currentIndex: 0
                    }
                    DarkSlider {
                        anchors.verticalCenter: parent.verticalCenter
                        value: 0.4
                    }
                    Column {
                        anchors.verticalCenter: parent.verticalCenter
                        spacing: DarkUI.space10
                        GlassBarTrack {
                            width: 120
                            GlassBarFill { color: DarkUI.barToday; fraction: 0.7 }
                        }
                        GlassBarTrack {
                            width: 120
                            implicitHeight: DarkUI.barReviewHeight
                            GlassBarFill { color: DarkUI.barAllTime; fraction: 0.92 }
                        }
                    }
                }
            }
        }

        Column {
            spacing: DarkUI.space16
            DarkKicker {
                text: "Skill colours, keys, links, pages"
            }
            Row {
                spacing: DarkUI.space44

                SwatchRow {
                    width: 360
                    colors: ["#FF375F", "#FF9F0A", "#7A78FF", "#30D158", "#64D2FF", "#FFD60A",
                             "#BF5AF2", "#FF6482", "#40C8E0", "#ACF35C"]
                    currentIndex: 6
                }
                Keycap {
                    anchors.verticalCenter: parent.verticalCenter
                    text: "Alt+Super+B"
                }
                DarkLink {
                    anchors.verticalCenter: parent.verticalCenter
                    text: "Open shortcuts"
                }
                DarkLink {
                    anchors.verticalCenter: parent.verticalCenter
                    text: "Open shortcuts"
                    hovered: true
                }
                PageDots {
                    anchors.verticalCenter: parent.verticalCenter
                    count: 5
                    current: 1
                }
            }
        }
    }
}
