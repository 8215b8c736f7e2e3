// The poster in its own size, as it is given away.
import QtQuick
import Vantle.Wrapped

SharePosterPicture {
    width: implicitWidth
    height: implicitHeight
}
