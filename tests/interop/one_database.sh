#!/bin/bash
# One database for both systems: what one program has made, the other reads, changes and finds without a fault.
#   one_database.sh LINUX_QVADMIN WINDOWS_QVADMIN
set -euo pipefail

linux_program="$1"
windows_program="$2"
wine_run="$(cd "$(dirname "$0")/../../scripts" && pwd)/wine_run.sh"
folder="$(mktemp -d)"
trap 'rm -rf "$folder"' EXIT
cd "$folder"

linux() { "$linux_program" "$@"; }
windows() { "$wine_run" "$windows_program" "$@"; }

faults=0
fault() {
  printf 'FAULT: %s\n' "$*"
  faults=$((faults + 1))
}

# Rows that order, equality and the reading of a statement stumble over.
TEXTS=("Welle" "WELLE" "welle " "Straße" "STRASSE" "strasse" "Übermaß" "übermaß" "O''Neill" "Ölwanne, groß" "100%" "A_B"
  "Łódź €" "Zahn 10" "Zahn 9" "  vorn" "Teil – [x]" "日本 😀")

ALL_TABLES=(PartTabelle SheetMTabelle AssembTabelle DraftTabelle WeldTabelle STbl1Tabelle STbl2Tabelle STbl3Tabelle)
QUESTIONS=(
  "Select * From PartTabelle ORDER BY DokuBez, RevBez DESC"
  "Select DokuBez, Titel From PartTabelle Where Projekt = 'Proben' ORDER BY Titel, DokuBez"
  "Select DokuBez, Titel From PartTabelle Where Projekt = 'Proben' ORDER BY Titel DESC, DokuBez"
  "Select DokuBez, Titel From PartTabelle Where Titel = 'STRASSE' ORDER BY DokuBez"
  "Select DokuBez From PartTabelle Where Titel = 'wELLE'"
  "Select DokuBez From PartTabelle Where Titel = 'welle    '"
  "Select DokuBez From PartTabelle Where Titel = 'ÜBERMASS'"
  "Select DokuBez From PartTabelle Where Titel = 'o''neill'"
  "Select DokuBez From PartTabelle Where DokuBez LIKE 'fa-1%' ORDER BY DokuBez, RevBez"
  "Select DokuBez, Titel From PartTabelle Where Titel LIKE '%Ü%' ORDER BY DokuBez, RevBez"
  "Select Titel From PartTabelle Where Titel LIKE '[a-n]%' And Titel NOT LIKE '%e' ORDER BY Titel"
  "Select Titel From PartTabelle Where Titel LIKE '%ß' ORDER BY Titel"
  "Select Titel From PartTabelle Where Titel LIKE '%😀'"
  "Select DISTINCT Titel From PartTabelle ORDER BY Titel"
  "Select DISTINCT Material From PartTabelle ORDER BY Material DESC"
  "Select DokuBez, Erstellt From PartTabelle Where Erstellt < #02/01/06 00:00:00# ORDER BY Erstellt, DokuBez"
  "Select Count(*) From PartTabelle Where Geaendert >= #11/20/25 12:00:00#"
  "Select * From PartTabelleBenutzDef Where Name LIKE '%e%' ORDER BY Wert, Name, DokuBez"
  "Select * From DraftTabelleBenutzDef"
  "Select * From Ini"
  "Select * From ZusBauPart ORDER BY Part, AssembDokuBez, AssembRevBez"
)

# Both programs say the same, byte by byte, and what they say has at least so many lines.
same() { # lines arguments of qvadmin
  local lines="$1" status_linux=0 status_windows=0
  shift
  linux "$@" >linux.txt 2>linux.err || status_linux=$?
  windows "$@" >windows.txt 2>windows.err || status_windows=$?
  if [[ $status_linux -ne $status_windows ]] || ! cmp -s linux.txt windows.txt || ! cmp -s linux.err windows.err; then
    fault "$* ($status_linux, $status_windows):"
    diff linux.txt windows.txt | head -n 6 || true
    diff linux.err windows.err | head -n 6 || true
  elif [[ $(wc -l <linux.txt) -lt $lines ]]; then
    fault "$*: too little to compare"
  fi
}

clean() { # register
  same 10 check "$1" --strict
  grep -q '^0 Fehler, 0 Warnungen$' windows.txt || fault "$1 is not clean: $(grep -v Dokumente windows.txt | head -n 3)"
}

ask_everything() { # register
  local question table
  for table in "${ALL_TABLES[@]}"; do
    same 20 query "$1" "Select DokuBez, RevBez, Status From $table ORDER BY DokuBez, RevBez DESC"
  done
  for question in "${QUESTIONS[@]}"; do
    same 2 query "$1" "$question" --json
  done
  same 2 query "$1" "Select Titel From PartTabelle Where Projekt = 'Proben' ORDER BY DokuBez"
  same 3 rights "$1"
}

write_texts() { # program register
  local number=100 text
  for text in "${TEXTS[@]}"; do
    number=$((number + 1))
    "$1" query "$2" "INSERT INTO PartTabelle (DokuBez, RevBez, filename, Dateiname, Projekt, Titel, Status, Erstellt,
      Geaendert, Hauptwert_a) VALUES ('ß-$number', '0', 'W:\\ß-$number.par', 'ß-$number.par', 'Proben', '$text', 3,
      #01/02/06 23:59:59#, #01/03/06 00:00:00#, 0.1)" >/dev/null
  done
}

change() { # program register
  "$1" query "$2" "UPDATE PartTabelle SET Titel = 'Geändert: Größe ', Hauptwert_b = 1.25 WHERE DokuBez = 'SS-107'" \
    >/dev/null
  "$1" query "$2" "UPDATE PartTabelle SET Titel = 'Ähnlich wie ''früher''' WHERE DokuBez = 'ß-104'" >/dev/null
  "$1" query "$2" "DELETE FROM PartTabelle WHERE DokuBez = 'ß-105'" >/dev/null
  "$1" rights "$2" "Groß'mann" --new --see 0,5 --delete 5=6 >/dev/null
  "$1" rights "$2" SCHRÖDER --see 1,2,3 >/dev/null
}

# Each system makes a register in which the other one writes.
round_trip() { # maker other
  local register="Register für $1 – Straße.mdb"
  "$1" sample "$register" --documents 1500 --files "Laufwerk $1" >/dev/null
  write_texts "$1" "$register"
  clean "$register"
  ask_everything "$register"
  change "$2" "$register"
  clean "$register"
  ask_everything "$register"
  same 2 rights "$register" "groß'MANN"
  same 2 query "$register" "Select Titel, Hauptwert_b From PartTabelle Where Titel LIKE 'Ähn%' Or Titel = 'geändert: grösse'"
  change_of_other="$("$1" query "$register" "Select Titel From PartTabelle Where DokuBez = 'ß-104'" | tail -n 1)"
  [[ $change_of_other == "Ähnlich wie 'früher'" ]] || fault "$1 does not see what $2 wrote: $change_of_other"
}

# Seats of both systems write at once; no row may be lost.
write_at_once() {
  local register="Alle zugleich.mdb" seat program number
  linux create "$register" >/dev/null
  for seat in linux-1 windows-1 linux-2 windows-2; do
    program="${seat%-*}"
    for number in {1..12}; do
      "$program" query "$register" "INSERT INTO CheckInOut (ADNutzer, RechnerNutzer) VALUES ($number, '$seat')" || true
    done >"$seat.txt" 2>&1 &
  done
  wait
  cat ./*-[12].txt | grep -v '^1$' && fault "a writer was refused"
  [[ $(windows query "$register" "Select Count(*) From CheckInOut" | tail -n 1) == 48 ]] || fault "a row was lost"
  clean "$register"
}

round_trip linux windows
round_trip windows linux
for table in PartTabelle DraftTabelle ZusBauPart PartTabelleBenutzDef TIFFTabelle Adresstabelle; do
  for maker in linux windows; do
    linux query "Register für $maker – Straße.mdb" "Select * From $table" >"$maker.txt"
  done
  cmp -s linux.txt windows.txt || fault "the same number makes another sample of $table"
done
diff -r "Laufwerk linux" "Laufwerk windows" >/dev/null || fault "files beside the register differ"
[[ $(find "Laufwerk windows" -type f | wc -l) -gt 1500 ]] || fault "hardly any files beside the register"
write_at_once

[[ $faults -eq 0 ]] || exit 1
echo "The same on both systems."
