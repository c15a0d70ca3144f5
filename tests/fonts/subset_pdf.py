#!/usr/bin/env python3
"""Shows a subset in a PDF page, as a CID font with Identity-H codes, and asks independent readers what they see.

qpdf must find nothing to complain about, pdffonts must call the font embedded, and pdftotext must give the text back
through the ToUnicode map.

Usage: subset_pdf.py ZEBREPORT
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile

import subset_oracle

CASES = [
    (subset_oracle.TRUETYPE + "dejavu/DejaVuSans.ttf", 0, None, "Größe: 1,50 € für Ωμέγα и Ёжик"),
    (subset_oracle.TRUETYPE + "liberation/LiberationSerif-Regular.ttf", 0, None, "Affinität, Čeština, naïve"),
    (subset_oracle.TRUETYPE + "wqy/wqy-zenhei.ttc", 0, "WenQuanYi Zen Hei", "一丁七万丈三上下不与丐丑专且"),
]


def stream(content, entries=""):
    return b"<< /Length %d %s>>\nstream\n%s\nendstream" % (len(content), entries.encode(), content)


def to_unicode(numbers):
    """The CMap that leads from the numbers of glyphs back to characters."""
    lines = ["/CIDInit /ProcSet findresource begin", "12 dict begin", "begincmap", "/CMapName /Subset def",
             "/CMapType 2 def", "1 begincodespacerange", "<0000> <FFFF>", "endcodespacerange"]
    items = sorted(numbers.items(), key=lambda item: item[1])
    for first in range(0, len(items), 100):
        part = items[first:first + 100]
        lines.append("%d beginbfchar" % len(part))
        lines += ["<%04X> <%04X>" % (number, ord(character)) for character, number in part]
        lines.append("endbfchar")
    lines += ["endcmap", "end", "end"]
    return "\n".join(lines).encode()


def document(font, numbers, text, program):
    units = font.u16(font.offset("head") + 18)
    widths = " ".join("%d [%d]" % (number, font.metrics[font.glyph_of(ord(character))][0] * 1000 // units)
                      for character, number in numbers.items())
    shown = "".join("%04X" % numbers[character] for character in text)
    return [
        b"<< /Type /Catalog /Pages 2 0 R >>",
        b"<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 4 0 R"
        b" /Resources << /Font << /F1 5 0 R >> >> >>",
        stream(b"BT /F1 24 Tf 40 700 Td <%s> Tj ET" % shown.encode()),
        b"<< /Type /Font /Subtype /Type0 /BaseFont /AAAAAA+Subset /Encoding /Identity-H"
        b" /DescendantFonts [6 0 R] /ToUnicode 9 0 R >>",
        b"<< /Type /Font /Subtype /CIDFontType2 /BaseFont /AAAAAA+Subset /FontDescriptor 7 0 R /DW 1000"
        b" /CIDSystemInfo << /Registry (Adobe) /Ordering (Identity) /Supplement 0 >>"
        b" /CIDToGIDMap /Identity /W [%s] >>" % widths.encode(),
        b"<< /Type /FontDescriptor /FontName /AAAAAA+Subset /Flags 4 /FontBBox [-200 -300 1200 1000]"
        b" /ItalicAngle 0 /Ascent 900 /Descent -200 /CapHeight 700 /StemV 80 /FontFile2 8 0 R >>",
        stream(program, "/Length1 %d " % len(program)),
        stream(to_unicode(numbers)),
    ]


def write_pdf(path, objects):
    content = b"%PDF-1.4\n"
    places = []
    for number, body in enumerate(objects, 1):
        places.append(len(content))
        content += b"%d 0 obj\n%s\nendobj\n" % (number, body)
    table = len(content)
    content += b"xref\n0 %d\n0000000000 65535 f \n" % (len(objects) + 1)
    content += b"".join(b"%010d 00000 n \n" % place for place in places)
    content += b"trailer\n<< /Size %d /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n" % (len(objects) + 1, table)
    with open(path, "wb") as file:
        file.write(content)


def output(*command):
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
    return done.returncode, done.stdout.decode("utf-8")


def complaints(pdf, text):
    code, said = output("qpdf", "--check", pdf)
    if code != 0:
        yield "qpdf says: " + said
    _, said = output("pdffonts", pdf)
    # Columns: name, type, encoding, embedded, subset, Unicode map, object.
    if not re.search(r"^AAAAAA\+Subset +CID TrueType +Identity-H +yes yes yes ", said, re.MULTILINE):
        yield "pdffonts says: " + said
    _, said = output("pdftotext", pdf, "-")
    if said.strip() != text:
        yield "pdftotext says: " + said


def check(program, folder, path, index, name, text):
    with open(path, "rb") as file:
        font = subset_oracle.Font(file.read(), index)
    content = subset_oracle.written_by(program, folder, name or path, text)
    by_glyph = subset_oracle.glyphs_of_text(font, text)
    numbers = {character: by_glyph[font.glyph_of(ord(character))] for character in text}
    pdf = os.path.join(folder, "subset.pdf")
    write_pdf(pdf, document(font, numbers, text, content))
    return list(complaints(pdf, text))


def main():
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    for judge in ("qpdf", "pdffonts", "pdftotext"):
        if shutil.which(judge) is None:
            print(judge + " is not installed; run scripts/setup test")
            return 1
    checked = failed = 0
    with tempfile.TemporaryDirectory() as folder:
        for path, index, name, text in CASES:
            if not os.path.exists(path):
                print("not installed: " + path)
                continue
            checked += 1
            for complaint in check(sys.argv[1], folder, path, index, name, text):
                failed += 1
                print("%s: %s" % (name or path, complaint))
    print("%d documents checked, %d complaints" % (checked, failed))
    return 1 if failed or checked == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
