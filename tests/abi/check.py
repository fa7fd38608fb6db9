#!/usr/bin/env python3
"""Checks the binary interface of the built libraries: exports, entries, ELF header, instructions of each level.

usage: check.py CC INCLUDE_DIR LIB_DIR
"""
import re
import subprocess
import sys
from pathlib import Path

SONAME = "libkvriu8-8.2.so"
LEVELS = {"base": "", "x86-64-v3": "glibc-hwcaps/x86-64-v3", "x86-64-v4": "glibc-hwcaps/x86-64-v4"}
failures = []


def check(holds, message):
    if not holds:
        failures.append(message)


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def declared(compiler, include, headers):
    """The library's functions that the headers declare, as the compiler sees them."""
    source = "".join(f"#include <{header}>\n" for header in headers)
    text = subprocess.run([compiler, "-x", "c", "-E", "-P", f"-I{include}", "-"], input=source, check=True,
                          capture_output=True, text=True).stdout
    return set(re.findall(r"\b(kvri?[A-Z]\w*)\s*\(", text))


def exported(library):
    """Name -> (address, size) of all that the library exports."""
    symbols = {}
    for line in run("nm", "-DS", "--defined-only", library).splitlines():
        address, *size, kind, name = line.split()
        check(kind == "T", f"{library}: {name} is no function ({kind})")
        symbols[name] = int(address, 16), int(size[0], 16) if size else 0
    return symbols


def check_exports(library, names):
    symbols = exported(library)
    check(names, f"{library}: the headers declare nothing")
    for name in sorted(names - symbols.keys()):
        check(False, f"{library}: {name} is declared but not exported")
    for name in sorted(symbols.keys() - names):
        check(False, f"{library}: {name} is exported but not declared")
    return symbols


def check_elf_header(library, soname, runpath, needs):
    dynamic = re.findall(r"\((\w+)\)\s+[^\[]*\[(.*)\]", run("readelf", "-dW", library))
    values = {tag: [v for t, v in dynamic if t == tag] for tag in ("SONAME", "RUNPATH", "RPATH", "NEEDED")}
    check(values["SONAME"] == [soname], f"{library}: SONAME {values['SONAME']}")
    check(values["RUNPATH"] == runpath, f"{library}: RUNPATH {values['RUNPATH']}")
    check(not values["RPATH"], f"{library}: RPATH {values['RPATH']}")
    check(needs <= set(values["NEEDED"]), f"{library}: needs {values['NEEDED']}")
    check(not any("stdc++" in name for name in values["NEEDED"]), f"{library}: needs {values['NEEDED']}")


def check_code(library, level, symbols):
    """Each entry is a jump through its own table, and no instruction is beyond the level."""
    instruction = re.compile(r"\s*([0-9a-f]+):\t(\S+)\s*(.*)")
    entry_at = {address: name for name, (address, _) in symbols.items()}
    bodies = {name: [] for name in symbols}
    wide = {"VEX": 0, "ymm": 0, "zmm": 0}
    current, end = None, 0
    for line in run("objdump", "-d", "--no-show-raw-insn", library).splitlines():
        match = instruction.match(line)
        if not match:
            continue
        address, mnemonic, operands = int(match[1], 16), match[2], match[3]
        if address in entry_at:
            current = entry_at[address]
            end = address + symbols[current][1]
        if current and address < end:
            bodies[current].append(f"{mnemonic} {operands}")
        wide["VEX"] += mnemonic.startswith("v")
        wide["ymm"] += "%ymm" in operands
        wide["zmm"] += "%zmm" in operands

    for name, body in bodies.items():
        entry = [r"movslq .*<CpuVariantIndex>", rf"lea .*,%r11 .*<{name}_table>", r"jmp \*\(%r11,%rax,8\)"]
        matches = len(body) == 3 and all(re.match(e, b) for e, b in zip(entry, body))
        check(matches, f"{library}: {name} begins with {body[:5]}")

    allowed = {"base": set(), "x86-64-v3": {"VEX", "ymm"}, "x86-64-v4": {"VEX", "ymm", "zmm"}}[level]
    for kind, count in wide.items():
        check((count > 0) == (kind in allowed), f"{library}: {count} {kind} instructions in a build for {level}")


def main():
    compiler, include, lib = sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3])
    parts = sorted(f"kvri/{p.name}" for p in (include / "kvri").glob("*.h"))
    names = declared(compiler, include, parts)
    for name in sorted(names - declared(compiler, include, ["kvri.h"])):
        check(False, f"kvri.h does not include the header of {name}")

    for level, folder in LEVELS.items():
        library = str(lib / folder / SONAME)
        symbols = check_exports(library, names)
        check_elf_header(library, SONAME, ["$ORIGIN:$ORIGIN/../.."], {"libkvrcore.so"})
        check_code(library, level, symbols)
        print(f"{library}: {len(symbols)} functions")
    core = str(lib / "libkvrcore.so")
    symbols = check_exports(core, declared(compiler, include, ["kvrcore.h"]))
    check_elf_header(core, "libkvrcore.so", [], set())
    print(f"{core}: {len(symbols)} functions")

    for failure in failures[:50]:
        print("FAILED:", failure)
    if failures:
        sys.exit(f"{len(failures)} failures")


main()
