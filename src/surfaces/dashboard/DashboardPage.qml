// The hours window: head, progress, hour wall, hours by skill, recent sessions.
pragma ComponentBehavior: Bound
import QtQuick
import Vantle.Kit
import Vantle.Dashboard

FocusScope {
    id: page

    required property DashboardView model
    readonly property real margin: DarkUI.space24
    readonly property real inner: width - 2 * margin
    readonly property bool stacked: width < leastBeside * DarkUI.textScale
    readonly property real leastBeside: 560 // px of width for two cards side by side
    readonly property real skillsWidth: 246
    readonly property real cardHeight: Math.round(208 * DarkUI.textScale)
    readonly property real detailHeight: Math.max(totals.detailHeight, recent.detailHeight)

    focus: true
    Accessible.role: Accessible.Pane
    Accessible.description: model.figuresSpoken
    implicitWidth: 612
    implicitHeight: 512

    DarkScrollView {
        anchors.fill: parent
        focus: true
        atWindowBottom: true

        Column {
            x: page.margin
            topPadding: DarkUI.space6
            bottomPadding: DarkUI.space24
            width: page.inner
            spacing: DarkUI.space12

            DashboardHead {
                width: page.inner
                model: page.model
                narrow: page.stacked
                focus: true
            }

            Column {
                visible: page.model.warning !== ""
                topPadding: DarkUI.space4 // below the head as much as the figures have

                WarningBanner {
                    width: page.inner
                    text: page.model.warning
                }
            }

            ArrowGroup {
                id: progress
                width: page.inner
                height: figures.height
                list: figures
                Accessible.name: qsTr("Progress")

                Row {
                    id: figures
                    // All blocks have the height of the tallest.
                    readonly property real highest: {
                        let most = 0;
                        for (let i = 0; i < children.length; ++i)
                            most = Math.max(most, children[i].implicitHeight);
                        return most;
                    }
                    topPadding: DarkUI.space4
                    spacing: DarkUI.space12

                    Repeater {
                        model: page.model.stats
                        onItemAdded: progress.refresh()
                        onItemRemoved: progress.refresh()

                        ReadableStop {
                            id: stop
                            required property statBlock modelData
                            width: (page.inner - 2 * DarkUI.space12) / 3
                            implicitHeight: block.implicitHeight
                            height: figures.highest
                            radius: DarkUI.radiusCard
                            name: modelData.spoken

                            StatBlockView {
                                id: block
                                width: stop.width
                                height: stop.height
                                stat: stop.modelData
                            }
                        }
                    }
                }
            }

            ReadableStop {
                id: wallStop
                width: page.inner
                implicitHeight: wall.implicitHeight
                radius: DarkUI.radiusCard
                name: page.model.wallLabel
                Accessible.role: Accessible.Graphic

                HourWallCard {
                    id: wall
                    width: wallStop.width
                    model: page.model
                }
            }

            Flow {
                width: page.inner
                spacing: DarkUI.space12

                SkillTotalsCard {
                    id: totals
                    width: page.stacked ? page.inner : page.skillsWidth
                    height: page.cardHeight + (page.stacked ? detailHeight : page.detailHeight)
                    model: page.model
                }

                RecentSessionsCard {
                    id: recent
                    width: page.stacked ? page.inner
                                        : page.inner - page.skillsWidth - DarkUI.space12
                    height: page.cardHeight + (page.stacked ? detailHeight : page.detailHeight)
                    model: page.model
                }
            }
        }
    }
}
