// The page with hours by skill.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

ReviewPage {
    id: page

    readonly property skillsCard content: texts.skills

    kicker: content.kicker

    // Sessions without time have no top skill: the line says so, without a dot.
    readonly property bool hasTop: content.top.share !== ""
    // A skill that is alone stands where the hours do on their page.
    readonly property bool alone: content.others.length === 0
    readonly property real aloneTop: Math.round((height - quietHeight - name.height
                                                 - DarkUI.space14 - figures.height) / 2)

    PopIn {
        id: dot
        visible: page.hasTop
        anchors.verticalCenter: name.verticalCenter
        animated: page.animated
        baseDelay: DarkUI.cascadeDelay + DarkUI.cascadeStep

        GlassDot {
            width: DarkUI.iconButtonSize
            height: DarkUI.iconButtonSize
            color: page.content.top.color
        }
    }

    CascadeIn {
        id: name
        x: page.hasTop ? dot.width + DarkUI.space16 : 0
        y: page.alone ? page.aloneTop : page.kickerHeight + DarkUI.space20
        width: page.width - x
        animated: page.animated
        order: 1
        slam: true

        FontMetrics {
            id: full
            font: DarkUI.nameReview.font
        }

        DarkText {
            readonly property real capitals: full.ascent - full.tightBoundingRect("H").height / 2
            // A name that is set smaller keeps the middle of its capitals beside the dot.
            y: Math.round(capitals * (1 - fontInfo.pixelSize / DarkUI.nameReview.size))
            width: name.width
            text: page.content.top.name
            role: DarkUI.nameReview
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: DarkUI.titleXL.size
            elide: Text.ElideRight
        }
    }

    CascadeIn {
        id: figures
        y: name.y + name.height + DarkUI.space14
        animated: page.animated
        order: 2

        Row {
            Accessible.role: Accessible.StaticText
            Accessible.name: page.content.top.hours + (share.text !== "" ? ", " + share.text : "")

            component Part: DarkText {
                role: DarkUI.titleMQuiet
                Accessible.ignored: true
            }

            Part {
                text: page.content.topFigure.value
            }

            Part {
                text: " " + page.content.topFigure.unit
                color: DarkUI.textTertiary
                rightPadding: DarkUI.space20
            }

            Part {
                id: share
                text: page.content.top.share
                color: DarkUI.textSecondary
            }
        }
    }

    Column {
        anchors.bottom: parent.bottom
        anchors.bottomMargin: page.content.more === "" ? DarkUI.space8 : 0
        width: page.width
        spacing: DarkUI.space16

        CascadeIn {
            animated: page.animated
            order: 3

            DarkKicker {
                text: page.content.breakdownKicker
                bottomPadding: DarkUI.space4
            }
        }

        Repeater {
            model: page.content.others

            CascadeIn {
                id: entrance
                required property reviewSkillLine modelData
                required property int index
                width: page.width
                animated: page.animated
                order: 4 + index

                BreakdownRow {
                    width: page.width
                    line: entrance.modelData
                    animated: page.animated
                    order: 2 + entrance.index
                }
            }
        }

        CascadeIn {
            visible: page.content.more !== ""
            animated: page.animated
            order: 4 + page.content.others.length

            DarkText {
                text: page.content.more
                role: DarkUI.caption
                color: DarkUI.textTertiary
            }
        }
    }
}
