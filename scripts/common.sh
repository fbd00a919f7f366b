# SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
# SPDX-License-Identifier: Apache-2.0

# Shared by the scripts: the working directory, and building a preset.
# shellcheck shell=bash
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Qt warns in the C locale of a clean system.
[ "$(locale charmap 2>/dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8

# ccache fails where it cannot write.
if command -v ccache >/dev/null; then
    compiled=$(ccache --get-config cache_dir)
    mkdir -p "$compiled" 2>/dev/null && [ -w "$compiled" ] && export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi

heading() {
    printf '\n== %s\n' "$*"
}

fail() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# build_dir PRESET: the build directory of a preset; after prepare_target, the one for that architecture.
build_dir() {
    local directory=build-$1${target:+-$target}
    echo "${directory/#build-dev/build}"
}

# configure PRESET: warnings are errors only if the caller exports ZEL_WERROR=ON, as CI does with its one compiler.
configure() {
    local output
    output=$(cmake --preset "$1" -B "$(build_dir "$1")" "${target_options[@]}" "-DZEL_WERROR=${ZEL_WERROR:-OFF}" 2>&1) ||
        { printf '%s\n' "$output" >&2; fail "cannot configure preset $1"; }
}

# build PRESET [TARGET...]: configures and builds; silent on success except for progress on a terminal.
build() {
    local preset=$1 targets=() output command
    shift
    [ $# -eq 0 ] || targets=(--target "$@")
    configure "$preset"
    command=(cmake --build "$(build_dir "$preset")" --parallel "$(nproc)" "${targets[@]}")
    if [ -t 1 ]; then
        "${command[@]}"
    else
        output=$("${command[@]}" 2>&1) || { printf '%s\n' "$output" >&2; fail "cannot build preset $preset"; }
    fi
}

# files [PATTERN...]: the files of the project, committed or not.
files() {
    git ls-files --cached --others --exclude-standard --deduplicate -- "$@" | while IFS= read -r file; do
        [ ! -e "$file" ] || printf '%s\n' "$file"
    done
}

# sources: every C++ file of the project.
sources() {
    files '*.cpp' '*.h'
}

cache=${XDG_CACHE_HOME:-$(echo ~/.cache)}/zel-i18n # without HOME as well

# debian_mirror: the Debian mirror that this machine's apt uses.
debian_mirror() {
    local mirror update
    for update in : 'apt-get -qq update'; do
        $update >&2
        # shellcheck disable=SC2016
        mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' 'Label: Debian' | sed 1q)
        [ -z "$mirror" ] || { echo "$mirror"; return; }
    done
    fail "apt has no Debian mirror"
}

# register_package PACKAGE DIRECTORY: records an unpacked package in the directory for dpkg-shlibdeps.
register_package() {
    local dpkg=$2/var/lib/dpkg name file
    name=$(dpkg-deb --field "$1" Package)
    [ "$(dpkg-deb --field "$1" Multi-Arch)" != same ] || name+=:$(dpkg-deb --field "$1" Architecture)
    dpkg-deb --field "$1" | sed '$a Status: install ok installed\n' >>"$dpkg/status"
    dpkg-deb --fsys-tarfile "$1" | tar --list | sed 's|^\.||; s|/$||; /^$/d' >"$dpkg/info/$name.list"
    for file in shlibs symbols; do
        dpkg-deb --info "$1" "$file" >"$dpkg/info/$name.$file" 2>/dev/null || rm "$dpkg/info/$name.$file"
    done
}

# unpack_debian DIRECTORY RELEASE ARCHITECTURE PACKAGE...: unpacks packages and their dependencies, once. Nothing is
# installed, and this machine's own apt only provides the mirror.
unpack_debian() {
    local directory=$1 release=$2 architecture=$3 contents="${*:2}" apt=$1.apt package options mirror lock
    shift 3
    mkdir -p "$cache"
    exec {lock}>"$directory.lock"
    flock "$lock"
    [ "$(cat "$directory/contents" 2>/dev/null)" != "$contents" ] || { exec {lock}>&-; return 0; }
    mirror=$(debian_mirror)
    echo "Unpacking packages of $release for $architecture in $directory"
    rm -rf "$directory" "$apt"
    mkdir -p "$apt"/{state/lists,cache/archives}/partial "$directory"/usr/{bin,lib,sbin} "$directory/var/lib/dpkg/info"
    ln -s usr/bin usr/lib usr/sbin "$directory"
    touch "$apt/status"
    echo 1 >"$directory/var/lib/dpkg/info/format"
    echo "deb [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $mirror $release main" >"$apt/sources.list"
    options=(-qq -o "Dir::State=$apt/state" -o "Dir::State::status=$apt/status" -o "Dir::Cache=$apt/cache"
        -o "Dir::Etc::sourcelist=$apt/sources.list" -o Dir::Etc::sourceparts=- -o Dir::Etc::preferences=- -o Dir::Etc::preferencesparts=-
        -o APT::Default-Release= -o APT::Sandbox::User=root
        -o "APT::Architecture=$architecture" -o "APT::Architectures=$architecture")
    apt-get "${options[@]}" update
    apt-get "${options[@]}" install --no-install-recommends --download-only -y "$@" >/dev/null
    for package in "$apt"/cache/archives/*.deb; do
        dpkg-deb --fsys-tarfile "$package" | tar --extract --keep-directory-symlink --directory "$directory"
        register_package "$package" "$directory"
    done
    rm -rf "$apt"
    echo "$contents" >"$directory/contents"
    exec {lock}>&-
}

target=
target_options=()

# prepare_target ARCHITECTURE: makes all further builds cross builds for it. Downloads its packages, of this machine's
# Debian release, and the emulator of Debian 13: older ones do not support the way in which Qt starts programs.
prepare_target() {
    local release
    scripts/bootstrap build qml cross
    release=$(. /etc/os-release && echo "$VERSION_CODENAME")
    target=$1
    sysroot=$cache/sysroot-$release-$1
    emulator=$cache/emulator/usr/bin/qemu-$1
    unpack_debian "$cache/emulator" trixie "$(dpkg --print-architecture)" qemu-user
    unpack_debian "$sysroot" "$release" "$1" \
        libc6-dev "libstdc++-$(g++ -dumpversion)-dev" qt6-base-dev libicu-dev icu-devtools tzdata \
        qt6-declarative-dev qml6-module-{qtqml-models,qtqml-workerscript,qtquick,qtquick-window,qttest}
    target_options=(--toolchain "$PWD/cmake/toolchains/$1.cmake" "-DCMAKE_SYSROOT=$sysroot"
        -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=0
        "-DCMAKE_CROSSCOMPILING_EMULATOR=$emulator;-L;$sysroot"
        -DQT_HOST_PATH=/usr "-DQT_HOST_PATH_CMAKE_DIR=$(pkg-config --variable=libdir Qt6Core)/cmake")
}

# emulation: describes the target's programs and their emulator for the kernel's list of program formats.
emulation() {
    local magic mask
    # shellcheck disable=SC2016
    printf '%s\n' '#!/bin/sh' 'program=$1 name=$2' 'shift 2' \
        "exec '$emulator' -L '$sysroot' -0 \"\$name\" \"\$program\" \"\$@\"" >"$sysroot/start"
    chmod +x "$sysroot/start"
    # The first 20 bytes of an ELF file, except the variant of the system and the type of the file.
    magic=$(od -An -v -tx1 -w20 -N20 "$sysroot/usr/bin/genrb" | sed 's/ /\\x/g')
    mask=$(printf '\\xff%.0s' {1..7}; printf '\\x00%.0s' {1..11}; printf '\\xff\\xff')
    echo -E ":target:M::$magic:$mask:$sysroot/start:P"
}

# in_namespace EMULATION COMMAND...: runs a command in a namespace where the kernel starts the target's programs with
# the emulator; needs Linux 6.7. The command runs as an ordinary user: the namespace has no other users to switch to.
in_namespace() {
    # shellcheck disable=SC2016
    unshare --map-root-user --mount bash -c 'mount -t binfmt_misc none /proc/sys/fs/binfmt_misc &&
        printf %s "$1" >/proc/sys/fs/binfmt_misc/register &&
        exec unshare --map-user=1000 --map-group=1000 "${@:2}"' bash "$@"
}

# on_target COMMAND...: runs a command that may start programs of the target. genrb is always the target's, as it writes
# data in the byte order of its machine.
on_target() {
    local start
    mkdir -p "$sysroot/tools"
    ln -sf ../usr/bin/genrb "$sysroot/tools"
    start=(in_namespace "$(emulation)")
    # The tracer is slower, as it follows every system call, and occasionally loses the start of a program.
    "${start[@]}" "$sysroot/usr/bin/icuinfo" >/dev/null 2>&1 || {
        echo "The kernel cannot start programs of the target here; proot does, more slowly." >&2
        start=(proot -q "$emulator -L $sysroot")
    }
    PATH=$sysroot/tools:$PATH QT_PLUGIN_PATH=$(echo "$sysroot"/usr/lib/*/qt6/plugins) \
        QML_IMPORT_PATH=$(echo "$sysroot"/usr/lib/*/qt6/qml) "${start[@]}" "$@"
}
