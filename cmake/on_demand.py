#!/usr/bin/env python3
"""on_demand.py OUT NEEDS ARCHIVE LIBRARY...: lets the code in ARCHIVE call shared libraries that no program is linked to.

Writes NEEDS, a table of all that is called, by which tools for packages see which versions of the libraries are needed, and
OUT, assembler for x86-64. It has a stub, of the same name, for every function of a library that the archive calls, and
the tables by which cmake/on_demand.cpp finds the function at the first call of its stub:

  stub      jumps to where its slot points: first to code that finds the function, later to the function itself
  data      of a library, as far as the compiler refers to it without being asked (tables of virtual functions, type
            information): room for a copy, which is filled when the library is loaded

  NM, READELF  programs of that kind
"""
import os
import subprocess
import sys
from pathlib import Path

NM = os.environ.get("NM", "nm")
READELF = os.environ.get("READELF", "readelf")
FUNCTIONS, DATA = "TWi", "DBRV"

HEAD = """# Made by cmake/on_demand.py.
    .text
# The first call of a stub arrives here with the number of its function on top of the return address. Registers that may hold
# arguments are preserved.
    .p2align 4
quorlin_ask:
    .cfi_startproc
    .cfi_def_cfa_offset 16
    push %rdi
    push %rsi
    push %rdx
    push %rcx
    push %r8
    push %r9
    push %rax
    push %r10
    .cfi_adjust_cfa_offset 64
    sub $128, %rsp
    .cfi_adjust_cfa_offset 128
    movups %xmm0, (%rsp)
    movups %xmm1, 16(%rsp)
    movups %xmm2, 32(%rsp)
    movups %xmm3, 48(%rsp)
    movups %xmm4, 64(%rsp)
    movups %xmm5, 80(%rsp)
    movups %xmm6, 96(%rsp)
    movups %xmm7, 112(%rsp)
    mov 192(%rsp), %rdi
    call quorlin_function_on_demand
    mov %rax, %r11
    movups (%rsp), %xmm0
    movups 16(%rsp), %xmm1
    movups 32(%rsp), %xmm2
    movups 48(%rsp), %xmm3
    movups 64(%rsp), %xmm4
    movups 80(%rsp), %xmm5
    movups 96(%rsp), %xmm6
    movups 112(%rsp), %xmm7
    add $128, %rsp
    .cfi_adjust_cfa_offset -128
    pop %r10
    pop %rax
    pop %r9
    pop %r8
    pop %rcx
    pop %rdx
    pop %rsi
    pop %rdi
    add $8, %rsp
    .cfi_adjust_cfa_offset -72
    jmp *%r11
    .cfi_endproc
"""

STUB = """
    .globl {name}
    .hidden {name}
    .type {name}, @function
    .p2align 4
{name}:
    .cfi_startproc
    endbr64
    jmp *(quorlin_slots + {offset})(%rip)
quorlin_first_{number}:
    endbr64
    push ${number}
    .cfi_adjust_cfa_offset 8
    jmp quorlin_ask
    .cfi_endproc
    .size {name}, . - {name}
"""

ROOM = """
    .globl {name}
    .hidden {name}
    .type {name}, @object
    .p2align 5
{name}: .zero {size}
    .size {name}, {size}
"""


def said(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def wanted(archive):
    """Names that the archive does not have itself."""
    known = {"U": set(), "": set()}
    for line in said(NM, "--format=posix", archive).splitlines():
        words = line.split()
        if len(words) > 1:
            known["U" if words[1] == "U" else ""].add(words[0])
    return known["U"] - known[""]


def exported(library):
    """{name: (kind, bytes)} of a shared library, kinds as nm has them."""
    found = {}
    for line in said(NM, "--dynamic", "--defined-only", "--format=posix", library).splitlines():
        name, kind, _, *size = line.split()
        found[name.split("@")[0]] = (kind, int(size[0], 16) if size else 0)
    return found


def file_name(library):
    """The name by which the loader knows the library."""
    for line in said(READELF, "--dynamic", "--wide", library).splitlines():
        if "(SONAME)" in line:
            return line.split("[")[1].rstrip("]")
    return Path(library).name


def table(name, rows):
    return f"\n    .globl {name}\n    .hidden {name}\n    .p2align 5\n{name}:\n" + "".join(f"    .quad {row}\n" for row in rows)


class Source:
    """The texts and tables of the assembler file."""

    def __init__(self):
        self.texts, self.stubs, self.rooms = [], [], []
        self.libraries, self.functions, self.data = [], [], []

    def text(self, words):
        self.texts.append(words)
        return f"quorlin_text_{len(self.texts) - 1}"

    def add(self, library, found):
        number = len(self.libraries)
        self.libraries.append(self.text(file_name(library)))
        for name, (kind, size) in sorted(found.items()):
            if kind in FUNCTIONS and not name.startswith(("_ZTV", "_ZTI", "_ZTS")):
                at = len(self.functions)
                self.stubs.append(STUB.format(name=name, number=at, offset=8 * at))
                self.functions.append((number, self.text(name)))
            elif kind in DATA:
                self.rooms.append(ROOM.format(name=name, size=size))
                self.data.append((number, self.text(name), name, size))
            else:
                sys.exit(f"on_demand: {name} of {library} is of the kind {kind}, which is not known here")

    def words(self):
        first = [f"quorlin_first_{at}" for at in range(len(self.functions))]
        parts = [HEAD, *self.stubs, "    .data\n", *self.rooms, table("quorlin_slots", first),
                 table("quorlin_libraries", [word for text in self.libraries for word in (text, 0)]),
                 "    .section .data.rel.ro, \"aw\"\n",
                 table("quorlin_functions", [word for row in self.functions for word in row]),
                 table("quorlin_data", [word for row in self.data for word in row] + [0, 0, 0, 0]),
                 "    .section .rodata\n",
                 *(f'quorlin_text_{at}: .string "{text}"\n' for at, text in enumerate(self.texts)),
                 '    .section .note.GNU-stack, "", @progbits\n']
        return "".join(parts)

    def needs(self, names):
        """Only refers to them."""
        return "".join(["    .section .data.rel.ro, \"aw\"\n", *(f"    .quad {name}\n" for name in names),
                        '    .section .note.GNU-stack, "", @progbits\n'])


def main():
    out, needs, archive, *libraries = sys.argv[1:]
    missing = wanted(archive)
    source = Source()
    names = []
    for library in libraries:
        found = {name: facts for name, facts in exported(library).items() if name in missing}
        missing -= set(found)
        if found:
            source.add(library, found)
            names += sorted(found)
    for file, words in ((Path(out), source.words()), (Path(needs), source.needs(names))):
        if not file.exists() or file.read_text() != words:
            file.write_text(words)


if __name__ == "__main__":
    main()
