// The hour that is being worked on: a disc, and clockwise from the top the part that is done.
import Vantle.Kit

GlassDot {
    height: width
}
