#!/usr/bin/env bash
#
# Tests of ./toolkit: a copy of it runs in a work tree of its own, with stand-ins for the programs that it starts. Each
# stand-in writes its command line to a log, so that a test can say what was started and what was not.
#
# shellcheck disable=SC2016 # the bodies of stand-ins are written in single quotes

set -uo pipefail

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd -P)
real_tree=$(cd "$here/../.." && pwd -P)
area=$(mktemp -d)
trap 'rm -rf "$area"' EXIT
readonly here real_tree area

tree=$area/tree
log=$area/log
output=$area/output
failures=0
status=0

# --- The stage ----------------------------------------------------------------------------------------------------

# stand_in NAME [BODY]: a program that logs its command line and then does BODY.
stand_in() {
    printf '#!/bin/bash\necho "%s $*" >>"%s"\n%s\n' "$1" "$log" "${2:-}" >"$area/bin/$1"
    chmod +x "$area/bin/$1"
}

# Everything as on a Debian machine where all packages are installed and every program succeeds.
set_stage() {
    rm -rf "${area:?}"/*
    mkdir -p "$area/bin" "$area/tools" "$tree"
    : >"$log"
    cp "$real_tree/toolkit" "$real_tree/CMakePresets.json" "$tree"
    local tool
    for tool in awk bash cat chmod cp dirname env find flock grep mkdir mktemp mv printf rm sed sh sort stat tail touch umount \
        xargs git; do
        ln -s "$(command -v "$tool")" "$area/tools/$tool"
    done

    printf 'ID=debian\nVERSION_CODENAME=somewhere\nVERSION_ID=99\n' >"$area/os-release"
    stand_in dpkg-query 'shift 2; for package; do echo "$package installed"; done'
    stand_in apt-get
    stand_in dpkg
    stand_in sudo 'exec "$@"'
    stand_in ctest 'exit "${CTEST_STATUS:-0}"'
    stand_in clang-format-19
    stand_in xvfb-run 'while [[ $1 == --* ]]; do shift; done; exec "$@"'
    # Configuring leaves the files that ./toolkit looks at, building leaves the gallery.
    stand_in cmake 'case $1 in
        --preset)
            mkdir -p "$4" && touch "$4/build.ninja"
            echo "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" >"$4/CMakeCache.txt" ;;
        --build)
            mkdir -p "$2/bin"
            cp "$0-gallery" "$2/bin/gallery"
            exit "${BUILD_STATUS:-0}" ;;
    esac'
    stand_in cmake-gallery 'case $1 in --shots) touch "$2/contact-light.png" ;; esac'
    stand_in debootstrap 'mkdir -p "$3/etc/apt/apt.conf.d" "$3/etc/dpkg/dpkg.cfg.d" "$3/usr/sbin"
        exit "${DEBOOTSTRAP_STATUS:-0}"'
    # Stands for the way in as well: what would be done in the root is only logged.
    stand_in unshare 'while [[ $1 == --mount || $1 == --propagation || $1 == private ]]; do shift; done
        [[ $2 != --enter ]] || exit 0
        exec "$@"'
}

# run [NAME=VALUE...] ./toolkit ARGUMENTS...: runs that in the tree, with its output and exit status kept.
run() {
    : >"$log"
    status=0
    (cd "$tree" && env -i PATH="$area/bin:$area/tools" HOME="$area/home" UITOOLKIT_OS_RELEASE="$area/os-release" \
        "$@" >"$output" 2>&1 </dev/null) || status=$?
}

# --- What is checked ----------------------------------------------------------------------------------------------

fail() {
    local frame=1
    while [[ ${FUNCNAME[frame]} != "$test" ]]; do
        frame=$((frame + 1))
    done
    printf 'FAIL  %s (line %s): %s\n' "$test" "${BASH_LINENO[frame - 1]}" "$1"
    sed 's/^/        output: /' "$output"
    sed 's/^/        started: /' "$log"
    failures=$((failures + 1))
}

# expect WHAT VALUE...: of the last run, "status" is what it ended with, "output" a text in what it said, "started" and
# "idle" patterns of command lines that it started or did not.
expect() {
    while (($#)); do
        case $1 in
            status) [[ $status == "$2" ]] || fail "exit status $status, not $2" ;;
            output) grep -qF -- "$2" "$output" || fail "no \"$2\" in the output" ;;
            started) grep -qE -- "^$2" "$log" || fail "\"$2\" was not started" ;;
            idle) ! grep -qE -- "^$2" "$log" || fail "\"$2\" was started" ;;
            *) fail "the test expects an unknown $1" ;;
        esac
        shift 2
    done
}

# --- Tests --------------------------------------------------------------------------------------------------------

test_what_cannot_be_done_is_refused_in_one_line_before_anything_is_started() {
    local arguments
    for arguments in "" nonsense "--debian13" "--debian13 nonsense" install "install --prefix" "install /somewhere" \
        "install --prefix /a /b" setup "setup nonsense" "shots a b" "--debian13 shots /var/pictures" \
        "--debian13 install --prefix=/usr"; do
        # shellcheck disable=SC2086 # the words are arguments
        run ./toolkit $arguments
        expect status 2 idle .
        [[ $(wc -l <"$output") == 1 ]] || fail "\"$arguments\" is not answered in one line"
    done
}

test_other_systems_are_refused_and_derived_ones_are_not() {
    echo 'ID=fedora' >"$area/os-release"
    run ./toolkit build
    expect status 2 output "not Debian" idle .

    printf 'ID=ubuntu\nID_LIKE=debian\nVERSION_ID=24.04\n' >"$area/os-release"
    run ./toolkit build
    expect status 0 started "cmake --build $tree/build/ubuntu-24.04"
}

test_only_missing_packages_are_installed_and_they_are_named() {
    run ./toolkit test
    expect status 0 idle apt-get

    stand_in dpkg-query 'shift 2
        for package; do
            case $package in ninja-build) ;; xvfb) echo "xvfb config-files" ;; *) echo "$package installed" ;; esac
        done'
    local install="apt-get .*install --yes --no-install-recommends"
    run ./toolkit test
    expect status 0 output "installing from the system's packages: ninja-build xvfb" started "$install ninja-build xvfb$"
    # A build needs no display.
    run ./toolkit build
    expect started "$install ninja-build$"
}

test_installing_that_fails_ends_the_command() {
    stand_in dpkg-query
    stand_in apt-get '[[ $* != *install* ]]'
    run ./toolkit build
    expect status 1 output "installing failed" idle cmake

    # A package list that cannot be renewed does not: the one at hand may do.
    stand_in apt-get '[[ $* != *update* ]]'
    run ./toolkit build
    expect status 0
}

test_without_a_way_to_become_root_nothing_is_installed() {
    local without_rights=()
    if ((EUID == 0)); then
        command -v setpriv >/dev/null || return
        without_rights=("$(command -v setpriv)" --reuid 65534 --clear-groups)
        chmod 755 "$area"
        chmod 666 "$log"
    fi
    stand_in dpkg-query
    rm "$area/bin/sudo"
    run "${without_rights[@]}" ./toolkit build
    expect status 2 output "needs root" idle apt-get
}

test_only_a_changed_or_copied_tree_is_configured_again() {
    local configure="cmake --preset debug -B" build="cmake --build"
    run ./toolkit build
    expect started "$configure $tree/build/somewhere"
    run ./toolkit build
    expect status 0 idle "$configure" started "$build $tree/build/somewhere"

    touch -d "+1 minute" "$tree/CMakePresets.json"
    run ./toolkit build
    expect started "$configure"

    touch "$tree/build/somewhere/left-over"
    mv "$tree" "$area/moved"
    tree=$area/moved run ./toolkit build
    expect status 0
    [[ ! -e $area/moved/build/somewhere/left-over ]] || fail "the old build folder is still used"
}

test_arguments_and_failures_come_through() {
    run ./toolkit test -R "two words"
    expect status 0 started "ctest .*--output-on-failure --no-tests=error .*-R two words$"
    run BUILD_STATUS=1 ./toolkit test
    expect status 1 idle ctest
    run CTEST_STATUS=8 ./toolkit test
    expect status 1 started ctest
    run CTEST_STATUS=8 ./toolkit sanitize
    expect status 1 started ctest
}

test_without_a_display_the_gallery_is_drawn_to_pictures() {
    local shots=$tree/build/somewhere/shots
    run ./toolkit gallery
    expect status 0 started "xvfb-run .*gallery --shots $shots" output "$shots/contact-light.png"
    run ./toolkit gallery --page UTButton --shot one.png
    expect started "xvfb-run .*gallery --page UTButton --shot one.png"
    run DISPLAY=:7 ./toolkit gallery --page UTButton
    expect started "cmake-gallery --page UTButton" idle xvfb-run
}

test_formatting_leaves_alone_what_git_ignores() {
    printf 'build/\n' >"$tree/.gitignore"
    mkdir -p "$tree/build" "$tree/A folder"
    touch "$tree/build/generated.cpp" "$tree/A folder/New.cpp" "$tree/Kept.h" "$tree/Gone.cpp" "$tree/Other.qml"
    run ./toolkit format
    expect started "clang-format-19 .*A folder/New.cpp" started "clang-format-19 .*Kept.h" idle ".*(generated|qml)"

    (cd "$tree" && git init -q && git add -A && rm Gone.cpp)
    run ./toolkit format
    expect started "clang-format-19 .*A folder/New.cpp" idle ".*(generated|qml|Gone)"
}

test_the_debian_13_system_is_made_once_and_only_when_complete_bears_its_name() {
    local root=$area/home/.cache/uitoolkit/debian13
    mkdir -p "$root/half" "$root.unfinished/half"

    run ./toolkit --debian13 build
    expect status 2 output "was not made by this command"
    [[ -d $root/half ]] || fail "what somebody else made is removed"

    touch "$root/.uitoolkit-root-0"
    run DEBOOTSTRAP_STATUS=1 ./toolkit --debian13 build
    expect status 1
    [[ ! -e $root ]] || fail "a half-made system bears the name of a whole one"

    run ./toolkit --debian13 build
    expect status 0 started debootstrap started "unshare .*--enter $root "
    [[ -d $root/usr/sbin && ! -e $root/half && ! -e $root.unfinished ]] || fail "the new system is not in its place"

    run ./toolkit --debian13 build
    expect idle debootstrap started "unshare .*--enter $root $tree /uitoolkit .*-- build$"
}

test_folders_in_the_work_tree_have_another_name_inside_the_debian_13_system() {
    run ./toolkit --debian13 shots "$tree/pictures"
    expect started "unshare .*-- shots /uitoolkit/pictures$"
    run ./toolkit --debian13 shots /tmp/pictures
    expect started "unshare .*-- shots /tmp/pictures$"
    run ./toolkit --debian13 install "--prefix=$tree/out"
    expect started "unshare .*-- install --prefix=/uitoolkit/out$"
}

# --- Start --------------------------------------------------------------------------------------------------------

passed=0
for test in $(declare -F | awk '$3 ~ /^test_/ { print $3 }'); do
    before=$failures
    set_stage
    "$test"
    if ((failures == before)); then
        printf 'ok    %s\n' "$test"
        passed=$((passed + 1))
    fi
done
printf '%s passed, %s failed\n' "$passed" "$failures"
((failures == 0))
