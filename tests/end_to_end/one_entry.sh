#!/usr/bin/env bash
# The road of one entry in the real program on a real display: opens a month by keys, enters a day's hours, closes,
# and finds them in the files. Usage: one_entry.sh VELMORA [PICTURES]; pictures of each window go to that folder.
set -euo pipefail
velmora=$1
pictures=${2:-}
work=$(mktemp -d)
display_log=$work/display
export XDG_RUNTIME_DIR=$work
unset WAYLAND_DISPLAY QT_QPA_PLATFORM

finish() {
    [ -z "${program:-}" ] || kill "$program" 2>/dev/null || true
    [ -z "${server:-}" ] || kill "$server" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap finish EXIT

fail() {
    echo "one_entry: $1" >&2
    exit 1
}

# Waits for a window of this title and gives it the keyboard.
focus() {
    local window
    for _ in $(seq 100); do
        window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1 || true)
        if [ -n "$window" ]; then
            xdotool windowfocus --sync "$window"
            sleep 0.3
            return
        fi
        sleep 0.1
    done
    fail "no window \"$1\""
}

picture() {
    [ -z "$pictures" ] || import -window root "$pictures/$1.png"
}

options=(--journal "$work/poste" --aujourdhui 15/06/2026)
"$velmora" demo "${options[@]}" --lignes 12 --mois 6
before=$("$velmora" statut 1 15/06/2026 "${options[@]}")

exec 3>"$display_log"
Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp 2>/dev/null &
server=$!
for _ in $(seq 100); do
    [ -s "$display_log" ] && break
    sleep 0.1
done
DISPLAY=:$(cat "$display_log")
export DISPLAY

"$velmora" "${options[@]}" 2>"$work/errors" &
program=$!
focus "Velmora: suivi d'heures"
picture main
xdotool key ctrl+o
focus "Critères affichage mois"
picture smois
xdotool key Return
sleep 1
focus "Velmora: suivi d'heures"
picture month
xdotool type '*'
focus "Heures - Horaire"
# A stored day loads a moment after the dialog shows; a busy machine takes longer.
sleep 1.5
xdotool key Delete
sleep 0.3
xdotool type --delay 90 '07h3011h0013h0015h30'
sleep 0.3
picture entry
# Enter goes on through the third slice, which stays empty, to OK.
for _ in 1 2 3 4; do
    xdotool search --onlyvisible --name "Heures - Horaire" >/dev/null 2>&1 || break
    focus "Heures - Horaire"
    xdotool key Return
    sleep 0.4
done
xdotool search --onlyvisible --name "Heures - Horaire" >/dev/null 2>&1 && fail "the entry did not close"
focus "Velmora: suivi d'heures"
picture stored
xdotool key ctrl+q
for _ in $(seq 50); do
    kill -0 "$program" 2>/dev/null || break
    sleep 0.1
done
kill -0 "$program" 2>/dev/null && fail "the program did not close"
program=

grep -q . "$work/errors" && cat "$work/errors" >&2
operation=$("$velmora" journal "${options[@]}" | sed -n 2p)
case $operation in
*"nouvel horaire: "*" le 15/06/2026") ;;
*) fail "the journal holds \"$operation\"" ;;
esac
"$velmora" mois 6/2026 "${options[@]}" | grep '7h30 - 15h30 | \[11h00 _ 13h00\]' >/dev/null || fail "the cell does not show the hours"
echo "before: $before"
echo "stored: $operation"
