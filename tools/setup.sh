#!/usr/bin/env bash
# Installs what building, running and testing Kelvora needs on Debian 12; quiet when all is there.
set -euo pipefail

paquetes=(
    build-essential cmake ninja-build pkg-config
    qt6-base-dev qt6-base-dev-tools libqt6svg6-dev libgl-dev
    libsqlite3-dev sqlite3 libcli11-dev nlohmann-json3-dev
    libgtest-dev libgmock-dev googletest libbenchmark-dev
    xvfb xauth fonts-liberation locales clang-format poppler-utils
)

faltan=()
for paquete in "${paquetes[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$paquete" 2>/dev/null | grep -q 'install ok installed'; then
        faltan+=("$paquete")
    fi
done

if [ ${#faltan[@]} -gt 0 ]; then
    echo "Instalando: ${faltan[*]}"
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends \
        "${faltan[@]}" >/dev/null
fi

if ! locale -a 2>/dev/null | grep -qi '^es_ES\.utf-\?8$'; then
    echo "Generando la configuración regional es_ES.UTF-8"
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    $sudo sed -i 's/^# *es_ES.UTF-8 UTF-8/es_ES.UTF-8 UTF-8/' /etc/locale.gen
    grep -q '^es_ES.UTF-8 UTF-8' /etc/locale.gen || echo 'es_ES.UTF-8 UTF-8' | $sudo tee -a /etc/locale.gen >/dev/null
    $sudo locale-gen >/dev/null
fi
