#!/usr/bin/env python3
"""A second writer of font subsets, plain and slow, and a comparison of it with the library, byte for byte.

It shares nothing with the library but the rules of the subset: it slices the font file with Python's struct, finds the
glyphs of a text with its own walk of the character map, and assembles the nine tables in one list of bytes.

Usage: subset_oracle.py FONT INDEX TEXT OUT     writes the subset of the INDEXth font of the file
       subset_oracle.py --compare ZEBREPORT     compares what `ZEBREPORT font subset` writes for all installed cases
"""

import os
import struct
import subprocess
import sys
import tempfile

DIRECTORY_TAGS = ["cvt ", "fpgm", "glyf", "head", "hhea", "hmtx", "loca", "maxp", "prep"]
ALWAYS_THERE = 3  # the glyphs 0, 1 and 2 are in every subset


# ---- The source font -------------------------------------------------------------------------------------------------

class Font:
    def __init__(self, data, index=0):
        self.data = data
        start = 0
        if data[:4] == b"ttcf":
            start = self.u32(12 + 4 * index)
        count = self.u16(start + 4)
        self.tables = {}
        for at in range(start + 12, start + 12 + 16 * count, 16):
            tag = data[at:at + 4].decode("latin-1")
            self.tables.setdefault(tag, (self.u32(at + 8), self.u32(at + 12)))
        self.glyph_count = self.u16(self.offset("maxp") + 4)
        self.cached_segments = None
        self.glyf_end = min(sum(self.tables["glyf"]), len(data))
        self.loca = self.read_loca()
        self.metrics = self.read_metrics()

    def u16(self, at):
        return struct.unpack_from(">H", self.data, at)[0]

    def s16(self, at):
        return struct.unpack_from(">h", self.data, at)[0]

    def u32(self, at):
        return struct.unpack_from(">I", self.data, at)[0]

    def offset(self, tag):
        return self.tables[tag][0]

    def table(self, tag):
        offset, length = self.tables.get(tag, (0, 0))
        return self.data[offset:offset + length]

    def read_loca(self):
        start = self.offset("loca")
        if self.u16(self.offset("head") + 50) == 1:
            return [self.u32(start + 4 * i) for i in range(self.glyph_count + 1)]
        return [2 * self.u16(start + 2 * i) for i in range(self.glyph_count + 1)]

    def read_metrics(self):
        start = self.offset("hmtx")
        long_count = self.u16(self.offset("hhea") + 34)
        metrics = [(self.u16(start + 4 * i), self.u16(start + 4 * i + 2)) for i in range(long_count)]
        bearings = start + 4 * long_count
        for i in range(self.glyph_count - long_count):
            metrics.append((metrics[long_count - 1][0], self.u16(bearings + 2 * i)))
        return metrics

    def windows_map(self):
        """The place of the last Windows map, and whether it is one of symbols."""
        start = self.offset("cmap")
        found = None
        for i in range(self.u16(start + 2)):
            platform, encoding, offset = struct.unpack_from(">HHI", self.data, start + 4 + 8 * i)
            if platform == 3 and encoding in (0, 1):
                found = (start + offset, encoding == 0)
        return found

    def segments(self):
        """The place of the start codes, and start and end codes, of the map."""
        if self.cached_segments is None:
            at = self.windows_map()[0]
            count = self.u16(at + 6) // 2
            starts_at = at + 16 + 2 * count
            self.cached_segments = (starts_at, [self.u16(starts_at + 2 * i) for i in range(count)],
                                    [self.u16(at + 14 + 2 * i) for i in range(count)])
        return self.cached_segments

    def glyph_of(self, code):
        if self.windows_map()[1] and code < 0xF000:
            code += 0xF000
        starts_at, starts, ends = self.segments()
        segments = len(starts)
        if not starts[0] <= code <= ends[segments - 2]:
            return 0
        segment = next((i for i in range(segments) if ends[i] >= code), 0)
        if code < starts[segment]:
            return 0
        delta = self.u16(starts_at + 2 * segments + 2 * segment)
        range_at = starts_at + 4 * segments + 2 * segment
        range_offset = self.u16(range_at)
        if range_offset == 0:
            glyph = (code + delta) & 0xFFFF
        else:
            glyph = self.u16(range_at + range_offset + 2 * (code - starts[segment]))
            if glyph != 0:
                glyph = (glyph + delta) & 0xFFFF
        return min(glyph, self.glyph_count - 1)

    def place(self, glyph):
        return self.offset("glyf") + self.loca[glyph]

    def is_composite(self, glyph):
        # An empty glyph is told by the bytes of the glyph that follows it; behind the last one there is nothing.
        at = self.place(glyph)
        return at + 2 <= self.glyf_end and self.s16(at) < 0

    def components(self, glyph):
        """Where the numbers of the components stand, up to the first that is no glyph of the font."""
        at = self.place(glyph) + 10
        while at + 4 <= self.glyf_end:
            flags = self.u16(at)
            if self.u16(at + 2) >= self.glyph_count:
                return
            yield at + 2
            at += 4 + (4 if flags & 1 else 2)
            if flags & 8:
                at += 2
            elif flags & 0x40:
                at += 4
            elif flags & 0x80:
                at += 8
            if not flags & 0x20:
                return


# ---- The glyphs of the subset ----------------------------------------------------------------------------------------

def glyphs_of_text(font, text):
    numbers = {glyph: glyph for glyph in range(ALWAYS_THERE)}
    for character in text:
        numbers.setdefault(font.glyph_of(ord(character)), len(numbers))
    return numbers


def close_over_components(font, numbers):
    """Adds what composites need, level by level, and returns the composites."""
    composites = set()
    counter = len(numbers)
    while True:
        pending = {}
        for glyph in sorted(numbers):
            if not font.is_composite(glyph):
                continue
            composites.add(glyph)
            for at in font.components(glyph):
                part = font.u16(at)
                if part not in numbers and part not in pending:
                    pending[part] = counter
                    counter += 1
        if not pending:
            return composites
        numbers.update(pending)


def renumbered(font, numbers, composites):
    """The bytes of the font with the new numbers in the composites. Each place is renumbered once."""
    data = bytearray(font.data)
    done = set()
    for glyph in sorted(composites):
        for at in font.components(glyph):
            if at in done:
                continue
            if font.u16(at) not in numbers:
                break
            done.add(at)
            struct.pack_into(">H", data, at, numbers[font.u16(at)])
    return data


# ---- The subset ------------------------------------------------------------------------------------------------------

class Writer:
    def __init__(self):
        self.bytes = bytearray(struct.pack(">HHHHHH", 1, 0, len(DIRECTORY_TAGS), 48, 3, 96))
        for tag in DIRECTORY_TAGS:
            self.bytes += tag.encode() + bytes(12)

    def pad(self):
        # By the remainder, not up to a multiple of four.
        self.bytes += bytes(len(self.bytes) % 4)
        return len(self.bytes)

    def sum(self, start, count):
        count += count % 4
        count = (count + 3) // 4 * 4
        part = bytes(self.bytes[start:start + count])
        part += bytes(count - len(part))
        return sum(struct.unpack("<%dI" % (count // 4), part)) & 0xFFFFFFFF

    def enter(self, tag, start, length):
        slot = 12 + 16 * DIRECTORY_TAGS.index(tag) + 4
        struct.pack_into(">III", self.bytes, slot, self.sum(start, length), start, length)

    def add(self, tag, content, patches=()):
        start = self.pad()
        self.bytes += content
        for at, patch in patches:
            self.bytes[start + at:start + at + len(patch)] = patch
        self.enter(tag, start, len(content))
        return start


def subset(font, text):
    numbers = glyphs_of_text(font, text)
    composites = close_over_components(font, numbers)
    data = renumbered(font, numbers, composites)
    count = len(numbers)
    glyphs = [glyph for _, glyph in sorted((number, glyph) for glyph, number in numbers.items())]

    out = Writer()
    head = out.add("head", font.table("head"), [(8, bytes(4)), (50, b"\0\1")])
    hhea = font.table("hhea")
    out.add("hhea", hhea, [(len(hhea) - 2, struct.pack(">H", count))])
    out.add("hmtx", b"".join(struct.pack(">HH", *font.metrics[glyph]) for glyph in glyphs))
    out.add("maxp", font.table("maxp"), [(4, struct.pack(">H", count))])
    for tag in ("cvt ", "fpgm", "prep"):
        out.add(tag, font.table(tag))

    loca = out.add("loca", bytes(4 * count + 4))
    start = out.pad()
    largest = 0
    places = []
    for glyph in glyphs:
        places.append(len(out.bytes) - start)
        length = font.loca[glyph + 1] - font.loca[glyph]
        out.bytes += data[font.place(glyph):font.place(glyph) + length]
        largest = max(largest, places[-1] + length)
    out.enter("glyf", start, len(out.bytes) - start)
    out.bytes += bytes(12)
    struct.pack_into(">%dI" % (count + 1), out.bytes, loca, *places, largest)
    out.enter("loca", loca, 4 * count + 4)
    out.pad()
    struct.pack_into(">I", out.bytes, head + 8, (0xB1B0AFBA - out.sum(0, len(out.bytes))) & 0xFFFFFFFF)
    return bytes(out.bytes)


# ---- Texts -----------------------------------------------------------------------------------------------------------

LATIN = "The quick brown fox jumps over the lazy dog 0123456789 ÄÖÜäöüß éèêëàçñø Åŭẁ§€„“"
GREEK = "Ξεσκεπάζω την ψυχοφθόρα βδελυγμία ΐΰΆΈΉ ἄ ᾳ"
CYRILLIC = "Съешь же ещё этих мягких французских булок, да выпей чаю Ёйѐѝ"
CHINESE = "".join(chr(0x4E00 + 17 * i) for i in range(500))
JAPANESE = "いろはにほへとちりぬるをわかよたれそつねならむ漢字仮名交じり文日本語" + "がぎぐげごぱぴぷぺぽ"
KOREAN = "키스의 고유조건은 입술끼리 만나야 하고 특별한 기술은 필요치 않다"
ALL_ASCII = "".join(map(chr, range(32, 127)))
WITH_MARKS = "ǖǘǚǜấầẩẫậ"
# As many characters as fit on a command line.
MANY_SCRIPTS = "".join(map(chr, range(32, 0x3000)))


# ---- What a case is about: a font that came to differ would leave it untested ----------------------------------------

def is_empty(font, glyph):
    return font.loca[glyph] == font.loca[glyph + 1]


def has_nested_composites(font, composites, _):
    return any(not is_empty(font, glyph) and
               any(font.is_composite(font.u16(at)) and not is_empty(font, font.u16(at))
                   for at in font.components(glyph)) for glyph in composites)


def has_unused_components(font, composites, text):
    used = glyphs_of_text(font, text)
    return any(font.u16(at) not in used
               for glyph in composites for at in font.components(glyph))


def has_short_offsets(font, *_):
    return font.u16(font.offset("head") + 50) == 0


def has_long_offsets(font, *_):
    return font.u16(font.offset("head") + 50) == 1


def has_no_programs(font, *_):
    return not {"cvt ", "fpgm", "prep"} & set(font.tables)


def has_shared_widths(font, *_):
    return font.u16(font.offset("hhea") + 34) < font.glyph_count


def has_lacking_characters(font, _, text):
    return any(font.glyph_of(ord(character)) == 0 for character in text)


# ---- The comparison --------------------------------------------------------------------------------------------------

TRUETYPE = "/usr/share/fonts/truetype/"
LEAST_COMPARED = 8
# Font file, number of the font in it, the name by which the machine knows it (for collections), text, what must be so.
CASES = [
    (TRUETYPE + "dejavu/DejaVuSans.ttf", 0, None, LATIN + GREEK + CYRILLIC,
     [has_nested_composites, has_unused_components, has_long_offsets, has_shared_widths]),
    (TRUETYPE + "dejavu/DejaVuSans.ttf", 0, None, "", []),
    (TRUETYPE + "dejavu/DejaVuSans.ttf", 0, None, ALL_ASCII, []),
    (TRUETYPE + "dejavu/DejaVuSans.ttf", 0, None, MANY_SCRIPTS, [has_nested_composites, has_lacking_characters]),
    (TRUETYPE + "dejavu/DejaVuSans-Bold.ttf", 0, None, GREEK, [has_nested_composites]),
    (TRUETYPE + "liberation/LiberationSerif-Regular.ttf", 0, None, LATIN + CYRILLIC,
     [has_unused_components, has_short_offsets]),
    (TRUETYPE + "liberation/LiberationSans-Italic.ttf", 0, None, MANY_SCRIPTS, [has_lacking_characters]),
    (TRUETYPE + "liberation/LiberationMono-Regular.ttf", 0, None, GREEK + ALL_ASCII,
     [has_short_offsets, has_shared_widths, has_lacking_characters]),
    (TRUETYPE + "freefont/FreeSerif.ttf", 0, None, LATIN + GREEK + WITH_MARKS,
     [has_nested_composites, has_unused_components, has_long_offsets]),
    (TRUETYPE + "freefont/FreeMono.ttf", 0, None, CYRILLIC + WITH_MARKS, [has_nested_composites]),
    ("/usr/share/fonts/opentype/ipafont-gothic/ipag.ttf", 0, None, JAPANESE + ALL_ASCII, []),
    (TRUETYPE + "wqy/wqy-zenhei.ttc", 0, "WenQuanYi Zen Hei", CHINESE, [has_long_offsets]),
    (TRUETYPE + "wqy/wqy-zenhei.ttc", 2, "WenQuanYi Zen Hei Sharp", CHINESE + ALL_ASCII, []),
    (TRUETYPE + "arphic/uming.ttc", 0, "AR PL UMing CN", CHINESE + LATIN, [has_no_programs, has_unused_components]),
    (TRUETYPE + "arphic/uming.ttc", 2, "AR PL UMing TW", CHINESE, [has_no_programs]),
    (TRUETYPE + "unfonts-core/UnBatang.ttf", 0, None, KOREAN + ALL_ASCII, [has_unused_components]),
    (TRUETYPE + "nanum/NanumGothic.ttf", 0, None, KOREAN, [has_shared_widths]),
]


def described(ours, theirs):
    if len(ours) != len(theirs):
        return "%d bytes instead of %d" % (len(theirs), len(ours))
    at = next(i for i in range(len(ours)) if ours[i] != theirs[i])
    return "first difference at byte %d: %02x instead of %02x" % (at, theirs[at], ours[at])


def unmet(font, text, properties):
    """What the case is about and the font no longer shows."""
    numbers = glyphs_of_text(font, text)
    composites = close_over_components(font, numbers)
    return [check.__name__ for check in properties if not check(font, composites, text)]


def written_by(program, folder, font, text):
    out = os.path.join(folder, "subset.ttf")
    # What the font lacks is told on standard error.
    done = subprocess.run([program, "font", "subset", font, "--text", text, "-o", out], stdout=subprocess.DEVNULL,
                          stderr=subprocess.PIPE, check=False)
    if done.returncode != 0:
        raise RuntimeError(done.stderr.decode("utf-8").strip())
    with open(out, "rb") as file:
        return file.read()


def compare_case(program, folder, path, index, name, text, properties):
    """What is wrong, in one sentence for each thing."""
    with open(path, "rb") as file:
        font = Font(file.read(), index)
    for missing in unmet(font, text, properties):
        yield "no longer " + missing
    expected = subset(font, text)
    try:
        written = written_by(program, folder, name or path, text)
    except RuntimeError as error:
        yield str(error)
        return
    if written != expected:
        yield described(expected, written)


def compare(program):
    compared = failed = 0
    with tempfile.TemporaryDirectory() as folder:
        for case in CASES:
            path, _, name = case[:3]
            if not os.path.exists(path):
                print("not installed: " + path)
                continue
            compared += 1
            complaints = list(compare_case(program, folder, *case))
            failed += bool(complaints)
            for complaint in complaints:
                print("%s: %s" % (name or path, complaint))
    print("%d subsets compared, %d differ" % (compared, failed))
    if compared < LEAST_COMPARED:
        print("fewer than %d; install the fonts with scripts/setup test" % LEAST_COMPARED)
    return 1 if failed or compared < LEAST_COMPARED else 0


def main():
    if len(sys.argv) == 3 and sys.argv[1] == "--compare":
        return compare(sys.argv[2])
    if len(sys.argv) != 5:
        print(__doc__, file=sys.stderr)
        return 2
    path, index, text, out = sys.argv[1:]
    with open(path, "rb") as file:
        content = subset(Font(file.read(), int(index)), text)
    with open(out, "wb") as file:
        file.write(content)
    return 0


if __name__ == "__main__":
    sys.exit(main())
