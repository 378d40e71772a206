#!/usr/bin/env python3
"""Writes one translation unit for each room (a folder of one target), with its compile command.

The toolkit's headers take nearly all of the linter's time, so a room reads them once instead of once a file.
Usage: rooms_for_lint.py BUILD_FOLDER OUTPUT_FOLDER; prints the units' paths.
"""
import json
import re
import sys
from pathlib import Path

build, output = Path(sys.argv[1]), Path(sys.argv[2])
top = Path(__file__).resolve().parent.parent
rooms = {}
for entry in json.loads((build / "compile_commands.json").read_text()):
    source = Path(entry["file"])
    if source.is_relative_to(build.resolve()) or not source.is_relative_to(top):
        continue
    if source.relative_to(top).parts[0] in ("src", "cafe"):
        target = re.search(r"CMakeFiles/(\S+?)\.dir/", entry["command"]).group(1)
        rooms.setdefault(f"{'-'.join(source.relative_to(top).parts[:-1])}-{target}", []).append(entry)

output.mkdir(parents=True, exist_ok=True)
commands = []
for room, entries in rooms.items():
    unit = (output / f"{room}.cpp").resolve()
    unit.write_text("".join(f'#include "{entry["file"]}"\n' for entry in entries))
    # The compiler's precompiled headers mean nothing to the linter.
    command = re.sub(r" -Winvalid-pch| -fpch-preprocess| -include \S+cmake_pch\.hxx", "", entries[0]["command"])
    command = re.sub(r" -o \S+ -c \S+$", f" -c {unit}", command)
    commands.append({"directory": entries[0]["directory"], "command": command, "file": str(unit)})
    print(unit)
(output / "compile_commands.json").write_text(json.dumps(commands, indent=1))
