"""Widths and ink of Laksaman texts, read from the font itself, so that a drawing can refuse a caption that does not fit
or whose marks touch what stands above or below them."""
import functools
import pathlib
import struct
import subprocess

FAMILY = 'Laksaman'

# A tone mark is made to stand above a vowel mark; over a bare letter the font lowers it by this, in parts of the size.
UPPER_VOWELS = 'ัิีึืํ็'
TONES = '่้๊๋์'
LOWERED = .27


class Face:
    """One cut of the font: its character map and its advances."""

    def __init__(self, path):
        self.data = pathlib.Path(path).read_bytes()
        tables = {}
        for i in range(struct.unpack_from('>H', self.data, 4)[0]):
            tag, _, offset, _ = struct.unpack_from('>4sLLL', self.data, 12 + 16 * i)
            tables[tag.decode()] = offset
        self.unitsPerEm = struct.unpack_from('>H', self.data, tables['head'] + 18)[0]
        self.wideOffsets = struct.unpack_from('>h', self.data, tables['head'] + 50)[0]
        self.offsets = tables['loca']
        self.outlines = tables['glyf']
        self.metricCount = struct.unpack_from('>H', self.data, tables['hhea'] + 34)[0]
        self.metrics = tables['hmtx']
        self.glyphs = self._readMap(tables['cmap'])

    def _readMap(self, cmap):
        for i in range(struct.unpack_from('>H', self.data, cmap + 2)[0]):
            start = cmap + struct.unpack_from('>L', self.data, cmap + 8 + 8 * i)[0]
            if struct.unpack_from('>H', self.data, start)[0] == 4:
                return self._readSegments(start)
        raise SystemExit(f'{FAMILY}: the font has no character map of format 4')

    def _readSegments(self, start):
        count = struct.unpack_from('>H', self.data, start + 6)[0] // 2

        def column(n, kind):
            return struct.unpack_from(f'>{count}{kind}', self.data, start + n)

        ends = column(14, 'H')
        starts = column(16 + 2 * count, 'H')
        deltas = column(16 + 4 * count, 'h')
        ranges = column(16 + 6 * count, 'H')
        glyphs = {}
        for i in range(count):
            for code in range(starts[i], min(ends[i], 0xFFFE) + 1):
                glyph = code
                if ranges[i]:
                    place = start + 16 + 6 * count + 2 * i + ranges[i] + 2 * (code - starts[i])
                    glyph = struct.unpack_from('>H', self.data, place)[0]
                glyphs[code] = (glyph + deltas[i]) & 0xFFFF
        return glyphs

    def advance(self, character):
        glyph = min(self.glyphs.get(ord(character), 0), self.metricCount - 1)
        return struct.unpack_from('>H', self.data, self.metrics + 4 * glyph)[0] / self.unitsPerEm

    @functools.cache
    def ink(self, character):
        """The box around a letter's ink (left, bottom, right, top) from its place on the base line; None for a blank."""
        glyph = self.glyphs.get(ord(character), 0)
        if self.wideOffsets:
            start, end = struct.unpack_from('>LL', self.data, self.offsets + 4 * glyph)
        else:
            start, end = (2 * half for half in struct.unpack_from('>HH', self.data, self.offsets + 2 * glyph))
        if start == end:
            return None
        return tuple(unit / self.unitsPerEm for unit in struct.unpack_from('>4h', self.data, self.outlines + start + 2))


@functools.cache
def face(bold):
    """The cut that the renderer will take; another family in its place would measure wrongly, so it is refused."""
    pattern = FAMILY + (':bold' if bold else '')
    found = subprocess.run(['fc-match', '-f', '%{family}|%{file}', pattern], check=True, capture_output=True, text=True)
    family, path = found.stdout.split('|')
    if FAMILY not in family:
        raise SystemExit(f'{FAMILY} is not installed (fonts-tlwg-laksaman-ttf)')
    return Face(path)


def width(text, size, bold=False):
    """The width of a text in the unit of its size; marks above and below a letter take none."""
    return sum(face(bold).advance(character) for character in text) * size


def aboveVowel(text, place):
    """Whether the tone mark there stands above a vowel mark; the ring of a sara am is written behind the tone."""
    return text[place - 1] in UPPER_VOWELS or text[place + 1:place + 2] == 'ำ'


def ink(text, size, bold=False):
    """The box around each letter and mark of a text that begins at 0 on the base line: (left, top, right, bottom),
    downwards as on the page."""
    cut = face(bold)
    x = 0
    for place, character in enumerate(text):
        box = cut.ink(character)
        if box:
            left, bottom, right, top = box
            lowered = LOWERED if character in TONES and not aboveVowel(text, place) else 0
            yield (x + left) * size, (lowered - top) * size, (x + right) * size, (lowered - bottom) * size
        x += cut.advance(character)
