import QtQuick
import Vantle.Capsule

Item {}
