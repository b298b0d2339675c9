#!/usr/bin/env python3
"""Writes shell/common/code_page_tables.cpp from the recorded rows of code page 932.

Usage, from the root of the tree:  python3 tools/make_code_page_tables.py
"""
import pathlib

ROOT = pathlib.Path(__file__).resolve().parent.parent
DATA = ROOT / "tests" / "data"
OUTPUT = ROOT / "shell" / "common" / "code_page_tables.cpp"

INVALID_UNIT = 0x30FB
DEFAULT_BYTE = 0x3F
FIRST_TRAIL = 0x40
NOT_A_LEAD = 0xFF


def rows(name):
    lines = (DATA / name).read_text(encoding="utf-8").split("\n")
    return [line.split("\t") for line in lines[1:] if line]


def decode_tables():
    """Single bytes, row number of each lead byte, and the rows, of which row 0 maps nothing."""
    single = [INVALID_UNIT] * 256
    row_of_lead = [NOT_A_LEAD] * 256
    units = {}
    for kind, code, unit, *_ in rows("cp932_decode.tsv"):
        code = bytes.fromhex(code)
        if kind == "double":
            units.setdefault(code[0], [INVALID_UNIT] * (256 - FIRST_TRAIL))[code[1] - FIRST_TRAIL] = int(unit, 16)
        elif kind == "single-lead":
            row_of_lead[code[0]] = 0
        else:
            single[code[0]] = int(unit, 16)
    table = [[INVALID_UNIT] * (256 - FIRST_TRAIL)]
    for lead, row in sorted(units.items()):
        if set(row) != {INVALID_UNIT}:
            row_of_lead[lead] = len(table)
            table.append(row)
    return single, row_of_lead, table


def encode_tables():
    """Page number of each high byte, and the pages, of which page 0 is all default bytes; doubles in a bit set."""
    codes = [DEFAULT_BYTE] * 0x10000
    codes[0] = 0
    for unit, code, *_ in rows("cp932_encode.tsv"):
        codes[int(unit, 16)] = int.from_bytes(bytes.fromhex(code), "big")
    pages = [[DEFAULT_BYTE] * 256]
    page_of_high = []
    for high in range(256):
        page = codes[high * 256:high * 256 + 256]
        if page not in pages:
            pages.append(page)
        page_of_high.append(pages.index(page))
    doubles = [sum((codes[base + bit] > 0xFF) << bit for bit in range(32)) for base in range(0, 0x10000, 32)]
    return page_of_high, pages, doubles


def numbers(values, digits, indent):
    per_line = 12 if digits == 4 else 16 if digits == 2 else 8
    for start in range(0, len(values), per_line):
        yield indent + ", ".join(f"0x{value:0{digits}X}" for value in values[start:start + per_line]) + ","


def flat(head, values, digits):
    return [f"const {head} = {{", *numbers(values, digits, "    "), "};", ""]


def nested(head, table, digits):
    lines = [f"const {head} = {{"]
    for row in table:
        lines += ["    {", *numbers(row, digits, "        "), "    },"]
    return lines + ["};", ""]


def main():
    single, row_of_lead, decode = decode_tables()
    page_of_high, encode, doubles = encode_tables()
    assert len(decode) == 56 and len(encode) == 108, (len(decode), len(encode))
    OUTPUT.write_text("\n".join([
        "// Made by tools/make_code_page_tables.py from tests/data/cp932_decode.tsv and cp932_encode.tsv.",
        '#include "shell/common/code_page_tables.hpp"',
        "",
        "// clang-format off",
        "namespace kestri::code_page {",
        "",
        *flat("char16_t kSingleUnits[256]", single, 4),
        *flat("std::uint8_t kRowOfLead[256]", row_of_lead, 2),
        *nested("char16_t kDecodeRows[kDecodeRowCount][256 - kFirstTrail]", decode, 4),
        *flat("std::uint8_t kPageOfHighByte[256]", page_of_high, 2),
        *nested("std::uint16_t kEncodePages[kEncodePageCount][256]", encode, 4),
        *flat("std::uint32_t kDoubleByteUnits[0x10000 / 32]", doubles, 8),
        "}  // namespace kestri::code_page",
        "// clang-format on",
        "",
    ]), encoding="utf-8")


main()
