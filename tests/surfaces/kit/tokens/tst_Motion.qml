import QtQuick
import QtTest
import Vantle.Kit

Item {
    id: scene
    width: 100
    height: 100

    SpringValue {
        id: follower
        spring: DarkUI.springPop
    }

    TestCase {
        name: "Motion"
        when: windowShown

        function cleanup() {
            Motion.reduced = false;
        }

        function test_valueFollowsItsTarget() {
            follower.target = 100;
            verify(follower.running);
            tryVerify(() => follower.value > 100, 2000, "this spring swings over");
            tryCompare(follower, "running", false, 3000);
            compare(follower.value, 100);
        }

        function test_reducedMotionIsThereAtOnce() {
            Motion.reduced = true;
            follower.target = 7;
            verify(!follower.running);
            compare(follower.value, 7);
        }

        function test_reducedMotionStillsAllTimesButFades() {
            verify(DarkUI.hoverTime > 0);
            Motion.reduced = true;
            compare(DarkUI.hoverTime, 0);
            compare(DarkUI.switchTime, 0);
            compare(DarkUI.cardRise, 0);
            compare(DarkUI.cardInTime, DarkUI.crossFadeTime);
        }
    }
}
