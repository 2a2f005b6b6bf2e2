#!/usr/bin/env bash
# Installs the build tree into a temporary prefix and checks what a desktop installs: every
# file in its place, the desktop entry and the AppStream metainfo valid, the file types well
# formed, and both programs finding their data in ../share/trevalo from that prefix.
# Usage: ComprobarInstalacion.sh BUILD_DIR
set -euo pipefail
build=$1
prefijo=$(mktemp -d)
trap 'rm -rf "$prefijo"' EXIT
cmake --install "$build" --prefix "$prefijo" >/dev/null

id=com.korvelsoftware.trevalo
fallos=0
falla() { echo "FALLA: $*"; fallos=$((fallos + 1)); }

for archivo in bin/trevalo bin/trevalo-calc \
    share/trevalo/Imagen/ImagenViga.kvl share/trevalo/Imagen/Temporal.kvl \
    share/trevalo/Imagen/ImagenCAD8.kvl "share/trevalo/Imagen/Ejemplo Demostrativo.trv" \
    share/trevalo/Imagen/TapizKorvel.jpg share/trevalo/Imagen/DobleTee_IPE.pfl \
    share/trevalo/AyudaTrevalo.qch share/trevalo/Manual/AyudaTrevalo6.pdf \
    share/applications/$id.desktop share/metainfo/$id.metainfo.xml \
    share/mime/packages/trevalo.xml share/icons/hicolor/scalable/apps/$id.svg \
    share/man/man1/trevalo.1 share/man/man1/trevalo-calc.1; do
  [ -s "$prefijo/$archivo" ] || falla "no se instaló $archivo"
done
for lado in 16 22 24 32 48 64 128 256; do
  png="$prefijo/share/icons/hicolor/${lado}x${lado}/apps/$id.png"
  python3 -c 'import struct, sys
d = open(sys.argv[1], "rb").read(24)
sys.exit(d[:8] != b"\x89PNG\r\n\x1a\n" or struct.unpack(">II", d[16:24]) != (int(sys.argv[2]),) * 2)' \
    "$png" "$lado" || falla "icono de ${lado} px"
done

desktop-file-validate "$prefijo/share/applications/$id.desktop" || falla "desktop-file-validate"
grep -qx 'Categories=Science;Engineering;' "$prefijo/share/applications/$id.desktop" ||
  falla "categorías de la entrada de escritorio"
grep -qx 'MimeType=application/x-trevalo-proyecto;' "$prefijo/share/applications/$id.desktop" ||
  falla "tipo de archivo de la entrada de escritorio"
appstreamcli validate --no-net "$prefijo/share/metainfo/$id.metainfo.xml" >/dev/null ||
  falla "appstreamcli validate"
# The file types: the database that shared-mime-info builds from them names both.
cp -r "$prefijo/share/mime" "$prefijo/mime"
update-mime-database "$prefijo/mime"
for tipo in application/x-trevalo-proyecto:'\*\.trv' application/x-trevalo-perfiles:'\*\.pfl'; do
  grep -q "^${tipo%%:*}:${tipo#*:}\$" "$prefijo/mime/globs" || falla "tipo ${tipo%%:*}"
done
man --warnings -l "$prefijo/share/man/man1/trevalo.1" "$prefijo/share/man/man1/trevalo-calc.1" \
  2>&1 >/dev/null | grep . && falla "páginas de manual"

# The companion tool reads the installed sample project and writes a report with the
# installed report database.
proyecto="$prefijo/share/trevalo/Imagen/Ejemplo Demostrativo.trv"
cp "$proyecto" "$prefijo/ejemplo.trv"
viga=$("$prefijo/bin/trevalo-calc" vigas "$prefijo/ejemplo.trv" | head -n 1)
[ -n "$viga" ] || falla "trevalo-calc vigas"
"$prefijo/bin/trevalo-calc" informe "$prefijo/ejemplo.trv" --viga "$viga" -o "$prefijo/r.pdf" \
  >/dev/null || falla "trevalo-calc informe"
[ -s "$prefijo/r.pdf" ] || falla "el reporte de trevalo-calc"

# The desktop program, started with a home of its own, copies the installed sample project
# into the new data folder: it found its folder from the prefix.
casa="$prefijo/casa"
mkdir -p "$casa"
copia="$casa/Korvel Software/Trevalo 6.0/Proyectos/Ejemplo Demostrativo.trv"
HOME="$casa" XDG_CONFIG_HOME="$casa/.config" XDG_RUNTIME_DIR="$casa" QT_QPA_PLATFORM=offscreen \
  "$prefijo/bin/trevalo" 2>/dev/null &
programa=$!
for _ in $(seq 1 150); do
  cmp -s "$copia" "$proyecto" && break
  sleep 0.1
done
kill "$programa" 2>/dev/null || true
wait "$programa" 2>/dev/null || true
cmp -s "$copia" "$proyecto" || falla "trevalo no copió el proyecto de ejemplo de la instalación"

[ "$fallos" -eq 0 ] && echo "Instalación completa en un prefijo temporal"
exit "$fallos"
