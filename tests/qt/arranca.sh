#!/bin/sh
# The program itself, calvento: what it says on the terminal, that it opens the project of its command line, ends in
# order when the system asks it to, and starts in the folder that was used last. Arguments: the program, the examples.
programa=$1 ejemplos=$2
d=$(mktemp -d) || exit 1
d=$(cd "$d" && pwd -P)
trap 'rm -rf "$d"' EXIT
export CALVENTO_DATOS="$d/datos" QT_QPA_PLATFORM=offscreen
falla() { echo "$1"; exit 1; }
hasta() { # waits at most 20 s
  for i in $(seq 200); do "$@" && return; sleep 0.1; done
  kill -9 "$pid"
  falla "never: $*"
}
termina() { # by the signal; its number is in the exit status
  kill -"$1" "$pid"
  wait "$pid"
  estado=$?
  [ $estado = "$2" ] || falla "ended with $estado after SIG$1"
}
for opcion in -h --help --ayuda; do
  "$programa" uno.cvr $opcion | grep -q '^Uso: calvento \[PROYECTO…\]$' || falla "$opcion"
done

mkdir "$d/obra" "$d/otra" && cp "$ejemplos/01-rapida-un-tramo.cvr" "$d/obra/uno.cvr" && cd "$d" || exit 1
"$programa" obra/uno.cvr & pid=$!
hasta grep -qs "^Form10=.*$d/obra/uno.cvr" datos/ajustes.ini
termina TERM 143
grep -q "^carpeta=$d/obra$" datos/ajustes.ini || falla "the folder is not kept"

cd "$d/otra" && "$programa" & pid=$!
enObra() { [ "$(readlink /proc/$pid/cwd)" = "$d/obra" ]; }
[ ! -e /proc/self/cwd ] || hasta enObra
sleep 1
termina HUP 129
