"""Makes the font that Wine's rich edit draws bullets with: symbol_font.py FILE

Windows has a font Symbol, whose character B7 is the bullet. Wine takes any other symbol font in its place, and
its own Symbol has another sign there; so this one holds nothing but the bullet of the font of all other texts.
"""
import sys

from fontTools import subset, ttLib
from fontTools.ttLib.tables._c_m_a_p import cmap_format_4

BULLET = 0x2022

font = ttLib.TTFont("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf")
del font["FFTM"]  # of the font's maker only
glyph = font.getBestCmap()[BULLET]
reduced = subset.Subsetter()
reduced.populate(unicodes=[BULLET])
reduced.subset(font)

symbols = cmap_format_4(4)
symbols.platformID, symbols.platEncID, symbols.language = 3, 0, 0  # Windows, symbols
symbols.cmap = {0xF0B7: glyph}
font["cmap"].tables = [symbols]
font["OS/2"].ulCodePageRange1 = 1 << 31  # the symbol character set
for name_id in (1, 4, 6):
    font["name"].setName("Symbol", name_id, 3, 0, 0x409)
font.save(sys.argv[1])
