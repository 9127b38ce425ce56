#!/usr/bin/env python3
"""A printing system of its own for one test: CUPS with a few queues, in a folder of its own.

    print_server.py <folder> [--without-queues]

makes the folder's content and becomes the server, so that whoever started this ends the server by
the same process id. Clients reach it with CUPS_SERVER=<folder>/socket. The queues are named after
what they are:

    A4 A3 A6     print to the edges of their sheet
    Letter       doesn't reach a quarter of an inch at the left and right, half an inch above and below
    Plain        has no description, so that nothing is known of its paper
    Stopped      takes jobs and prints none
    Rejecting    takes no jobs
    Broken       its device fails

What a queue has printed lies in <folder>/printed as <queue>-<job>.pdf, just as it came.
"""
import os
import sys
from pathlib import Path

# Points.
SIZES = {"A4": (595, 842), "A3": (842, 1191), "A6": (298, 420), "Letter": (612, 792)}
MARGINS = {"Letter": (18, 36)}
# Device, state, whether it takes jobs, and its sheet.
QUEUES = {"A4": ("keep", "Idle", "Yes", "A4"), "A3": ("keep", "Idle", "Yes", "A3"),
          "A6": ("keep", "Idle", "Yes", "A6"), "Letter": ("keep", "Idle", "Yes", "Letter"),
          "Plain": ("keep", "Idle", "Yes", None), "Stopped": ("keep", "Stopped", "Yes", "A4"),
          "Rejecting": ("keep", "Idle", "No", "A4"), "Broken": ("broken", "Idle", "Yes", "A4")}

# Moved into place whole, so that whoever looks finds all of it or nothing.
KEEP = """#!/bin/sh
[ $# = 0 ] && exit 0
kept="{folder}/printed/$PRINTER-$1.pdf"
cat ${{6:+"$6"}} > "$kept.part" && mv "$kept.part" "$kept"
"""
BROKEN = """#!/bin/sh
[ $# = 0 ] && exit 0
exit 1
"""

PLACES = """ServerRoot {folder}/root
ServerBin {folder}/bin
CacheDir {folder}/cache
StateDir {folder}/state
RequestRoot {folder}/spool
TempDir {folder}/spool
AccessLog {folder}/access_log
ErrorLog {folder}/error_log
PageLog {folder}/page_log
FileDevice Yes
{account}"""
RULES = """Listen {folder}/socket
LogLevel info
Browsing Off
PreserveJobHistory No
DefaultAuthType None
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
"""
QUEUE = """<Printer {name}>
Info {name}
DeviceURI {device}:/{name}
State {state}
Accepting {accepting}
Shared No
JobSheets none none
ErrorPolicy abort-job
</Printer>
"""

# Takes a PDF as it is.
DESCRIPTION = """*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "PAPER.PPD"
*Manufacturer: "Kelvora"
*Product: "(Paper)"
*ModelName: "Paper"
*ShortNickName: "Paper"
*NickName: "Paper"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*Throughput: "1"
*LandscapeOrientation: Plus90
*cupsVersion: 2.4
*cupsFilter2: "application/pdf application/pdf 0 -"
"""


def description(sheet):
    lines = [DESCRIPTION]
    for option in ("PageSize", "PageRegion"):
        lines += [f"*OpenUI *{option}/Media Size: PickOne", f"*OrderDependency: 10 AnySetup *{option}",
                  f"*Default{option}: {sheet}"]
        lines += [f'*{option} {name}/{name}: "<</PageSize[{width} {height}]>>setpagedevice"'
                  for name, (width, height) in SIZES.items()]
        lines.append(f"*CloseUI: *{option}")
    lines += [f"*DefaultImageableArea: {sheet}", f"*DefaultPaperDimension: {sheet}"]
    for name, (width, height) in SIZES.items():
        side, end = MARGINS.get(name, (0, 0))
        lines += [f'*ImageableArea {name}/{name}: "{side} {end} {width - side} {height - end}"',
                  f'*PaperDimension {name}/{name}: "{width} {height}"']
    return "\n".join(lines) + "\n"


def write(path, text, mode=0o644):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text)
    path.chmod(mode)


def main():
    folder = Path(sys.argv[1]).resolve()
    folder.chmod(0o755)
    # The server keeps root for itself; what it starts needs another account.
    account = "User lp\nGroup lp\nSystemGroup root\n" if os.geteuid() == 0 else ""
    for name in ("cache", "state", "spool", "printed"):
        folder.joinpath(name).mkdir()
    write(folder / "cups-files.conf", PLACES.format(folder=folder, account=account))
    write(folder / "cupsd.conf", RULES.format(folder=folder))
    # What nobody but its owner may read is run as its owner.
    write(folder / "bin/backend/keep", KEEP.format(folder=folder), 0o700)
    write(folder / "bin/backend/broken", BROKEN, 0o700)
    folder.joinpath("bin/daemon").symlink_to("/usr/lib/cups/daemon")
    queues = ""
    wanted = {} if "--without-queues" in sys.argv[2:] else QUEUES
    for name, (device, state, accepting, sheet) in wanted.items():
        queues += QUEUE.format(name=name, device=device, state=state, accepting=accepting)
        if sheet:
            write(folder / f"root/ppd/{name}.ppd", description(sheet))
    write(folder / "root/printers.conf", queues, 0o600)
    os.execv("/usr/sbin/cupsd", ["cupsd", "-f", "-c", str(folder / "cupsd.conf"),
                                 "-s", str(folder / "cups-files.conf")])


if __name__ == "__main__":
    main()
