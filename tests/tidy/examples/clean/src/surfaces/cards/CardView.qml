import QtQuick
import Vantle.Kit

Item {}
