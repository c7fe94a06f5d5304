#!/usr/bin/env python3
"""drawings.py svg|pdf: a small drawing without pixels, written to the standard output."""
import sys

SVG = """<svg xmlns="http://www.w3.org/2000/svg" width="60" height="40" viewBox="0 0 60 40">
<rect width="60" height="40" fill="#f0e0a0"/><rect width="20" height="10" fill="#ff2010"/>
<circle cx="38" cy="24" r="12" fill="#204080" fill-opacity="0.5"/></svg>
"""
PAGE = b"0.9 0.9 0.6 rg 0 0 120 80 re f 1 0.1 0.1 rg 0 60 40 20 re f"


def pdf():
    parts = [b"<< /Type /Catalog /Pages 2 0 R >>", b"<< /Type /Pages /Kids [3 0 R 5 0 R] /Count 2 >>",
             b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 120 80] /Contents 4 0 R >>",
             b"<< /Length %d >>\nstream\n%s\nendstream" % (len(PAGE), PAGE),
             b"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 80 120] /Contents 4 0 R >>"]
    out, places = b"%PDF-1.4\n", []
    for number, part in enumerate(parts, 1):
        places.append(len(out))
        out += b"%d 0 obj\n%s\nendobj\n" % (number, part)
    table = b"".join(b"%010d 00000 n \n" % place for place in places)
    return out + b"xref\n0 %d\n0000000000 65535 f \n%strailer\n<< /Size %d /Root 1 0 R >>\nstartxref\n%d\n%%%%EOF\n" % (
        len(parts) + 1, table, len(parts) + 1, len(out))


sys.stdout.buffer.write(pdf() if sys.argv[1] == "pdf" else SVG.encode())
