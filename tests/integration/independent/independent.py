#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""A second calculation of what a setup document becomes: waveform file and Run commands.

It shares no line with the program, so that an error would have to be made twice to go unnoticed.
Arithmetic follows the program's in IEEE doubles, operation by operation, since the bytes must
agree; the speed comes from treating equal samples once.
"""

import argparse
import sys

from doubles import general_text
from trains import Train, parse_document
from waveforms import waveform_file

OPENING = (
    "OUTP1 OFF \n",
    "OUTP2 OFF \n",
    "*CLS \n",
    "*RST \n",
    "source1:BURSt  ON \n",
    "source1:function emem \n",
    'function:EFile "M:/run.mpwv"\n',
    "function:Shape EFILe \n",
    "source1:burst:ncycles 1 \n",
    "source1:burst:TDELay 0\n",
)


def trigger_commands(train):
    if train.source == 2:
        return ["TRIGger:SOURce TIMER\n", "TRIGger:TIMER " + general_text(train.timer, 6) + "\n"]
    slope = "POSitive" if train.slope == 0 else "NEGative"
    return ["TRIGger:SOURce EXTERNAL \n", f"TRIGger:SLOPE {slope} \n"]


def run_commands(train):
    """Everything that Run sends, the closing query included."""
    texts = list(OPENING)
    texts.append(f"OUTput1:IMPedance {10000 if train.high_z else 50}\n")
    texts.append("SOURce1:FREQuency:FIXed " + general_text(train.frequency(), 20) + "\n")
    texts += trigger_commands(train)
    texts += ["OUTP1 ON \n", "*IDN? \n"]
    return "".join(texts).encode("utf-8")


def main():
    parser = argparse.ArgumentParser(description="Calculate a setup's waveform file or commands.")
    parser.add_argument("setup", help="a setup document")
    parser.add_argument("--load", choices=("50", "hi-z"), help="instead of the document's")
    parser.add_argument("--commands", action="store_true", help="the Run commands instead")
    options = parser.parse_args()
    with open(options.setup, "rb") as file:
        document = parse_document(file.read())
    train = Train(document, options.load and options.load == "hi-z")
    result = run_commands(train) if options.commands else waveform_file(train)
    sys.stdout.buffer.write(result)


if __name__ == "__main__":
    main()
