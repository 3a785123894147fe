"""Makes a staged font of a whole one: the letters and signs that the game can come to print, under a
name of ours, which the licences of the fonts ask of whatever is not the original.

    pisma.py FAMILY WHOLE.ttf STAGED.ttf

Outlines, hints, advances and kerning of what stays are those of the whole font; a character beyond
these ranges prints as the font's own sign for a missing one. Runs in the build only.
"""

import sys

from fontTools import subset, ttLib

# First and last of each range that is kept, where the font has them.
ROZSAHY = (
    (0x0020, 0x024F),  # Latin
    (0x02B0, 0x036F),  # modifiers, marks to be put on letters
    (0x0370, 0x03FF),  # Greek
    (0x0400, 0x045F),  # Cyrillic
    (0x0490, 0x0491),
    (0x1D2C, 0x1D6A),  # small letters set high and low, by which others of them are hinted
    (0x1E00, 0x1EFF),  # Latin with two marks
    (0x2000, 0x206F),  # punctuation
    (0x2070, 0x209F),  # upper and lower indices
    (0x20A0, 0x20CF),  # currencies
    (0x2100, 0x218F),  # letter-like signs, fractions
    (0x2190, 0x21FF),  # arrows
    (0x2200, 0x22FF),  # mathematics
    (0x2300, 0x23FF),  # technical signs
    (0x25A0, 0x25FF),  # shapes
    (0x27C0, 0x27FF),  # more mathematics and arrows
    (0xFB00, 0xFB06),  # ligatures of Latin
    (0xFFFC, 0xFFFD),
)

# Records of the name table that name the font; its notices of copyright, trademark and licence stay.
RODINA, REZ, ID, CELE, VERZE, POSTSCRIPT = 1, 2, 3, 4, 5, 6
DALSI_JMENA = (10, 16, 17, 18, 19, 20, 21, 22, 25)


def prejmenuj(pismo, rodina):
    tabulka = pismo["name"]
    rez = tabulka.getDebugName(REZ)
    cele = rodina if rez in ("Regular", "Book") else rodina + " " + rez
    jmena = {
        RODINA: rodina,
        ID: cele,
        CELE: cele,
        POSTSCRIPT: rodina.replace(" ", "") + "-" + rez.replace(" ", ""),
    }
    tabulka.names = [z for z in tabulka.names if z.nameID not in DALSI_JMENA]
    for zaznam in tabulka.names:
        if zaznam.nameID in jmena:
            zaznam.string = jmena[zaznam.nameID]


def main(rodina, cele, staged):
    volby = subset.Options()
    volby.hinting = True
    volby.legacy_kern = True
    volby.layout_features = ["*"]
    volby.notdef_outline = True
    volby.name_IDs = ["*"]
    volby.name_languages = ["*"]
    volby.name_legacy = True
    volby.drop_tables += ["FFTM", "MATH"]  # dates of the editor; setting of formulas
    pismo = subset.load_font(cele, volby)
    vyber = subset.Subsetter(volby)
    vyber.populate(unicodes=[z for od, po in ROZSAHY for z in range(od, po + 1)])
    vyber.subset(pismo)
    prejmenuj(pismo, rodina)
    subset.save_font(pismo, staged, volby)


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
