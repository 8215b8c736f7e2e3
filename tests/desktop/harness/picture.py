"""Pixels as they stand on the screen."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Picture:
    """A rectangle of the screen: 8-bit red, green, blue for each pixel, row by row."""

    width: int
    height: int
    rgb: bytes

    @property
    def size(self):
        """How many pixels there are."""
        return self.width * self.height

    def part(self, left, right):
        """The columns from `left` to before `right`."""
        rows = (self.rgb[3 * (row * self.width + left):3 * (row * self.width + right)]
                for row in range(self.height))
        return Picture(right - left, self.height, b"".join(rows))

    def pixels(self):
        values = iter(self.rgb)
        return zip(values, values, values)

    def colours(self):
        """How many pixels there are of each colour."""
        counts = {}
        for pixel in self.pixels():
            counts[pixel] = counts.get(pixel, 0) + 1
        return counts

    def ground(self):
        """The most frequent colour."""
        counts = self.colours()
        return max(counts, key=counts.get)

    def inked(self, tolerance=24):
        """How many pixels differ from the ground."""
        ground = self.ground()
        return sum(count for colour, count in self.colours().items()
                   if not is_near(colour, ground, tolerance))

    def shows(self, colour, tolerance=12):
        """Whether a pixel has the colour, within the tolerance in each channel."""
        return any(is_near(pixel, colour, tolerance) for pixel in self.colours())


def is_near(one, other, tolerance):
    return all(abs(a - b) <= tolerance for a, b in zip(one, other))


def rgb_of(hex_rgb):
    """The three channels of a colour written 0xRRGGBB."""
    return (hex_rgb >> 16 & 0xFF, hex_rgb >> 8 & 0xFF, hex_rgb & 0xFF)
