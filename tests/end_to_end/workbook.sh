#!/usr/bin/env bash
# The exported workbook as a spreadsheet program reads it: LibreOffice opens it without a window and gives its
# cells back, which must be those of the text file. Usage: workbook.sh VELMORA [LINES]. Needs libreoffice-calc,
# python3 and nothing else; it is no part of ./check.
set -euo pipefail
velmora=$1
lines=${2:-12}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export LC_ALL=C.UTF-8

if ! command -v soffice >/dev/null; then
    echo "workbook: install libreoffice-calc first" >&2
    exit 1
fi
options=(--journal "$work/poste" --aujourdhui 15/06/2026)
"$velmora" demo "${options[@]}" --lignes "$lines" --mois 3
mapfile -t files < <("$velmora" export 6/2026 "${options[@]}")

# Tabs, UTF-8, values as they are stored: dates come back as month/day/year.
soffice --headless -env:UserInstallation="file://$work/profile" \
    --convert-to 'csv:Text - txt - csv (StarCalc):9,34,76,1,,1033,false,false,false' \
    --outdir "$work/read" "${files[1]}" >/dev/null 2>&1
python3 - "${files[0]}" "$work/read/Planning-Velmora.csv" <<'END'
import csv, re, sys

def plain(cell):
    """A cell's value: numbers by their value, days as day/month/year, texts as they stand."""
    if re.fullmatch(r"-?\d*[.,]\d+|-?\d+", cell):
        return float(cell.replace(",", "."))
    day = re.fullmatch(r"(\d\d)/(\d\d)/(\d{4})", cell)
    return (day[3], day[2], day[1]) if day else cell

def rows_of(rows):
    kept = [[plain(cell) for cell in row] for row in rows]
    for row in kept:
        while row and row[-1] == "":
            row.pop()
    return kept

with open(sys.argv[1], encoding="cp1252", newline="") as text:
    content = text.read()
# The work file has an empty row after the head and after each block.
head, *blocks = content.removesuffix("\r\n").split("\r\n\r\n")
expected = rows_of(row.split("\t") for part in [head, *blocks] for row in part.removesuffix("\r\n").split("\r\n"))
with open(sys.argv[2], encoding="utf-8", newline="") as read:
    found = rows_of(csv.reader(read, delimiter="\t"))
for row in found:
    row[:] = [(c[0], c[2], c[1]) if isinstance(c, tuple) else c for c in row]
while expected and not expected[-1]:
    expected.pop()
differences = [n for n, (a, b) in enumerate(zip(expected, found), 1) if a != b]
if differences or len(expected) != len(found):
    n = differences[0] if differences else min(len(expected), len(found)) + 1
    sys.exit(f"workbook: row {n} differs ({len(expected)} rows in the text, {len(found)} in the workbook):\n"
             f"{expected[n - 1:n]}\n{found[n - 1:n]}")
print(f"workbook: {len(found)} rows, {sum(map(len, found))} cells, equal to the text")
END
