// The page about notes: recurring words and a few notes.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Review

ReviewPage {
    id: page

    readonly property notesCard content: texts.notes
    readonly property real gap: DarkUI.space12 // on both sides of the separator between notes
    readonly property real room: foot.y - notes.y - gap
    // Lines left when each note has one. Long notes get two if all of them fit.
    readonly property int spareLines: Math.floor((room - oneLineEach()) / DarkUI.note.line)
    readonly property int mostLines: longNotes() <= spareLines ? 2 : 1

    function oneLineEach(): real {
        const row = DarkUI.note.line + DarkUI.space4 + DarkUI.caption.line;
        const between = 2 * gap + DarkUI.hairlineWidth;
        return content.highlights.length * (row + between) - between;
    }
    function longNotes(): int {
        let longOnes = 0;
        for (let i = 0; i < content.highlights.length; ++i)
            longOnes += metrics.advanceWidth(content.highlights[i].text) > width ? 1 : 0;
        return longOnes;
    }

    kicker: content.kicker

    FontMetrics {
        id: metrics
        font: DarkUI.note.font
    }

    Column {
        id: head
        y: page.kickerHeight + DarkUI.space14
        width: page.width
        spacing: DarkUI.space14

        CascadeIn {
            width: page.width
            animated: page.animated
            order: 1

            DarkText {
                width: page.width
                text: page.content.story
                role: DarkUI.titleMWide
                wrapMode: Text.Wrap
                maximumLineCount: 3
                elide: Text.ElideRight
            }
        }

        CascadeIn {
            width: page.width
            visible: page.content.themes.length > 0
            animated: page.animated
            order: 2

            Flow {
                width: page.width
                spacing: DarkUI.chipGap

                Repeater {
                    model: page.content.themes

                    ThemeChip {
                        required property string modelData
                        width: Math.min(implicitWidth, page.width)
                        text: modelData
                    }
                }
            }
        }
    }

    Column {
        id: notes
        y: head.y + head.height + DarkUI.space28
        width: page.width
        spacing: page.gap

        Repeater {
            model: page.content.highlights

            CascadeIn {
                id: entrance
                required property noteHighlight modelData
                required property int index
                width: page.width
                animated: page.animated
                order: 3 + index

                NoteHighlightRow {
                    width: page.width
                    note: entrance.modelData
                    mostLines: page.mostLines
                    gap: page.gap
                    last: entrance.index === page.content.highlights.length - 1
                }
            }
        }
    }

    Column {
        id: foot
        anchors.bottom: parent.bottom
        width: page.width
        spacing: DarkUI.space4

        CascadeIn {
            visible: page.content.more !== ""
            animated: page.animated
            order: 7

            DarkText {
                width: page.width
                text: page.content.more
                color: DarkUI.textTertiary
                wrapMode: Text.Wrap
            }
        }

        CascadeIn {
            animated: page.animated
            order: 8

            Row {
                spacing: DarkUI.space6

                KitIcon {
                    id: lock
                    anchors.verticalCenter: parent.verticalCenter
                    width: DarkUI.iconSmall
                    height: DarkUI.iconSmall
                    name: "lock"
                    color: DarkUI.iconQuiet
                }

                DarkText {
                    width: page.width - lock.width - DarkUI.space6
                    text: page.content.foot
                    color: DarkUI.textTertiary
                    wrapMode: Text.Wrap
                }
            }
        }
    }
}
