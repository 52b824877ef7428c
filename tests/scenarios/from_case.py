#!/usr/bin/env python3
"""Turns a folder with script.txt and expected.jsonl into a scenario file.

usage: from_case.py FOLDER SCENARIO.txt TITLE [PENDING-ROOM]

The folder's other files become a folder beside the scenario. Errors of the operating system, whose wording is not ours,
become "*".
"""
import json
import pathlib
import shutil
import sys


def expectation(command, answer):
    answer = json.loads(answer)
    if answer.pop("cmd") != command:
        raise SystemExit(f"answers and commands part at: {command}")
    if answer.get("error", "").startswith("[Errno"):
        answer["error"] = "*"
    return "=> " + json.dumps(answer, ensure_ascii=False)


def main(folder, target, title, pending=None):
    lines = (folder / "script.txt").read_text(encoding="utf-8").split("\n")
    commands = [line for line in lines if line and not line.startswith("#")]
    answers = (folder / "expected.jsonl").read_text(encoding="utf-8").splitlines()
    if len(commands) != len(answers):
        raise SystemExit(f"{len(commands)} commands, {len(answers)} answers")
    extra = [f for f in folder.iterdir() if f.name not in ("script.txt", "expected.jsonl")]

    out = [f"# {title}"]
    if pending:
        out.append(f"# pending: {pending}")
    if extra:
        beside = target.with_suffix(".files")
        beside.mkdir(exist_ok=True)
        for file in extra:
            shutil.copy(file, beside / file.name)
        out.append(f"# files: {beside.name}")
    for command, answer in zip(commands, answers):
        out += [command, expectation(command, answer)]
    target.write_text("\n".join(out) + "\n", encoding="utf-8")


if __name__ == "__main__":
    if len(sys.argv) not in (4, 5):
        raise SystemExit(__doc__)
    main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), *sys.argv[3:])
