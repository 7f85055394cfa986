#!/usr/bin/env bash
# Installs the Debian package into a scratch root (dpkg -x) and runs the installed programs
# from there: they must find their translations, pictures and guide under the root's
# usr/share/tarvik, and the package must depend on the Qt 6 libraries they link.
#   tests/package/run.sh PACKAGE.deb
set -uo pipefail
deb=$(realpath "${1:?usage: tests/package/run.sh PACKAGE.deb}")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
root=$scratch/root
passed=0
failed=0
check() { # check NAME COMMAND...
  local name=$1
  shift
  if "$@" >"$scratch/out" 2>&1; then
    passed=$((passed + 1))
    echo "ok   $name"
  else
    failed=$((failed + 1))
    echo "FAIL $name"
    sed 's/^/     /' "$scratch/out"
  fi
}

dpkg-deb -f "$deb" Depends >"$scratch/depends"
for lib in libqt6core6 libqt6gui6 libqt6widgets6 libqt6serialport6 libqt6multimedia6 libqt6svg6 \
  libqt6printsupport6 fonts-dejavu-core; do
  check "depends on $lib" grep -q "\b$lib\b" "$scratch/depends"
done

dpkg -x "$deb" "$root"
for file in usr/bin/tarvik usr/bin/tarvik-cli usr/bin/tarvik-sim \
  usr/share/tarvik/resources/Tarvik.jpg usr/share/tarvik/resources/Chimes.Wav \
  usr/share/tarvik/translations/tarvik_fr.qm usr/share/tarvik/translations/tarvik_de.qm \
  usr/share/tarvik/translations/tarvik_it.qm usr/share/tarvik/translations/tarvik_en.qm \
  usr/share/tarvik/help/user-guide.html usr/share/applications/tarvik.desktop \
  usr/share/icons/hicolor/scalable/apps/tarvik.svg usr/share/man/man1/tarvik-cli.1.gz; do
  check "installs /$file" test -s "$root/$file"
done
guide=$root/usr/share/tarvik/help/user-guide.html
pictures_present() {
  local missing=0
  for picture in $(grep -o 'src="guide/[a-z-]*\.png"' "$guide" | sed 's/src="//; s/"$//'); do
    [ -s "$root/usr/share/tarvik/help/$picture" ] || { echo "missing $picture"; missing=1; }
  done
  return $missing
}
check "the guide's pictures are installed" pictures_present
check "the guide opens at the sections F1 leads to" \
  grep -q '<a name="learning"></a>' "$guide"
check "the manual page reads" sh -c "zcat '$root/usr/share/man/man1/tarvik-cli.1.gz' | grep -q '^\.TH TARVIK-CLI 1'"
if command -v desktop-file-validate >/dev/null; then
  check "the desktop entry is valid" desktop-file-validate "$root/usr/share/applications/tarvik.desktop"
fi

# The installed programs, with settings and tables of their own; the libraries are the system's.
export HOME=$scratch/home XDG_CONFIG_HOME=$scratch/config TARVIK_DB=$scratch/db
mkdir -p "$HOME" "$XDG_CONFIG_HOME/Brunfeld"
printf '[DefaultSettings]\nLanguage=FR\n' >"$XDG_CONFIG_HOME/Brunfeld/Tarvik.conf"
version=$(dpkg-deb -f "$deb" Version)
check "tarvik-cli --version" sh -c "'$root/usr/bin/tarvik-cli' --version | grep -qx 'tarvik-cli $version'"
check "tarvik-sim --version" sh -c "'$root/usr/bin/tarvik-sim' --version | grep -q '$version'"
check "tarvik --version without a display" \
  sh -c "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM '$root/usr/bin/tarvik' --version | grep -qx 'tarvik $version'"
check "tarvik-cli --simulate read" sh -c "cd '$scratch' && '$root/usr/bin/tarvik-cli' --simulate read -o v.json && grep -q '\"channels\"' v.json"
check "tarvik-cli overlap --chart without a display" \
  sh -c "cd '$scratch' && env -u DISPLAY -u WAYLAND_DISPLAY '$root/usr/bin/tarvik-cli' overlap v.json --chart c.svg && grep -q '<svg' c.svg"
sheet() {
  (cd "$scratch" && "$root/usr/bin/tarvik-cli" sheet v.json -o v.pdf) || return 1
  head -c 5 "$scratch/v.pdf" | grep -q '%PDF-' || return 1
  # In the language of the settings, when poppler-utils can read it back.
  ! command -v pdftotext >/dev/null || pdftotext "$scratch/v.pdf" - | grep -q 'Fiche de configuration'
}
check "tarvik-cli sheet writes the sheet in French" sheet
smoke() {
  QT_QPA_PLATFORM=offscreen timeout 60 "$root/usr/bin/tarvik" --smoke >"$scratch/smoke" 2>&1 || {
    cat "$scratch/smoke"
    return 1
  }
  cat "$scratch/smoke"
  grep -qx "tarvik: data files in $root/usr/share/tarvik" "$scratch/smoke" &&
    grep -qx "tarvik: translation $root/usr/share/tarvik/translations/tarvik_fr.qm" "$scratch/smoke" &&
    grep -qx "tarvik: guide $root/usr/share/tarvik/help/user-guide.html" "$scratch/smoke"
}
check "tarvik --smoke finds its data under the root" smoke

echo "package: $passed passed, $failed failed"
[ "$failed" -eq 0 ]
