#!/usr/bin/env bash
# Builds the fuzz targets of tests/fuzz with clang and libFuzzer, under
# AddressSanitizer and UndefinedBehaviorSanitizer, in build/fuzz (only the
# targets and what they link), and runs them.
#
#   scripts/fuzz.sh TARGET SECONDS   runs one target for SECONDS; its corpus
#                                    grows in ~/.cache/kydi/fuzz-corpus/TARGET
#                                    (KYDI_FUZZ_CORPUS names another folder)
#   scripts/fuzz.sh --ci             runs every target for a short budget
#                                    (scripts/test.sh), on a corpus of its own
#
# Targets: fuzz_drawing_bytes, fuzz_drawing_fields, fuzz_commands, fuzz_script.
# Seeds: tests/fuzz/seeds, the target's regressions, samples/, the test
# scripts, and the drawings of ../shared/drawings when that folder is there
# (read where they lie; never copied into the repository). A crash, a leak, a
# timeout or an out-of-memory fails the run; libFuzzer keeps the input in
# build/fuzz/artifacts/.
set -euo pipefail
cd "$(dirname "$0")/.."

targets=(fuzz_drawing_bytes fuzz_drawing_fields fuzz_commands fuzz_script)
# CI's budget per target: this many runs, or this many seconds if sooner.
ci_runs=20000
ci_seconds=60
# A single input that takes longer than this is a hang.
timeout_seconds=30
# Drawings larger than the longest input a drawing target makes are left
# out of the seeds: libFuzzer would cut them short.
drawing_max_len=131072

usage() {
    echo "usage: scripts/fuzz.sh TARGET SECONDS | scripts/fuzz.sh --ci" >&2
    echo "targets: ${targets[*]}" >&2
    exit 2
}

build() {
    cmake -S . -B build/fuzz -G Ninja -DCMAKE_CXX_COMPILER=clang++ -DCMAKE_BUILD_TYPE=Debug \
        -DKYDI_FUZZ=ON >/dev/null
    cmake --build build/fuzz --target kydi_fuzz_targets
    mkdir -p build/fuzz/artifacts
}

# The seed folders of a target, one a line.
seeds() {
    local target=$1 shared=../shared/drawings
    echo "tests/fuzz/regressions/$target"
    case $target in
    fuzz_drawing_bytes | fuzz_drawing_fields)
        echo tests/fuzz/seeds/drawings
        echo samples
        if [ "$long" = 1 ] && [ -d "$shared" ]; then
            # The shared drawings small enough to be whole inputs, linked
            # from a folder outside the repository.
            local linked
            linked=$(mktemp -d "${TMPDIR:-/tmp}/kydi-fuzz-seeds.XXXXXX")
            find "$shared" -maxdepth 1 -name '*.kyd' -size -"$drawing_max_len"c \
                -exec ln -s "$(pwd)/{}" "$linked/" \;
            echo "$linked"
        fi
        ;;
    fuzz_commands) echo tests/fuzz/seeds/commands ;;
    fuzz_script)
        echo tests/fuzz/seeds/script
        echo tests/apps/scripts
        ;;
    esac
}

# libFuzzer's options for a target.
options() {
    local target=$1
    echo "-timeout=$timeout_seconds -rss_limit_mb=2048 -print_final_stats=1"
    echo "-artifact_prefix=build/fuzz/artifacts/$target-"
    case $target in
    fuzz_drawing_bytes) echo "-max_len=$drawing_max_len -dict=tests/fuzz/dictionaries/drawing.dict" ;;
    fuzz_drawing_fields) echo "-max_len=$drawing_max_len" ;;
    fuzz_commands) echo "-max_len=4096 -dict=tests/fuzz/dictionaries/commands.dict" ;;
    fuzz_script) echo "-max_len=4096 -dict=tests/fuzz/dictionaries/script.dict" ;;
    esac
    # Every database a target builds keeps its id stubs to the end of the
    # process: 10 to 35 KB for each drawing read or command text run, some
    # 3 GB an hour (tests/fuzz/README.md). A long run of such a target runs
    # in fork mode, in child processes of at most five minutes each, under
    # the limit above; an out-of-memory or a timeout still ends it.
    if [ "$long" = 1 ] && [ "$target" != fuzz_script ]; then
        echo "-fork=1 -ignore_ooms=0 -ignore_timeouts=0 -ignore_crashes=0"
    fi
}

# run TARGET CORPUS LIBFUZZER-OPTIONS...
run() {
    local target=$1 corpus=$2
    shift 2
    mkdir -p "$corpus" "tests/fuzz/regressions/$target"
    local -a seed_folders
    mapfile -t seed_folders < <(seeds "$target")
    # The fuzzer's status is what the run answers: a caller that tests it
    # (`if ! run ...`) turns `set -e` off in here, so it is kept by hand.
    local status=0
    # shellcheck disable=SC2046
    "build/fuzz/tests/fuzz/$target" $(options "$target") "$@" "$corpus" "${seed_folders[@]}" ||
        status=$?
    local folder
    for folder in "${seed_folders[@]}"; do
        case $folder in "${TMPDIR:-/tmp}"/kydi-fuzz-seeds.*) rm -rf "$folder" ;; esac
    done
    return "$status"
}

long=0
# Long runs keep their corpora here, outside the checkout.
corpus_root=${KYDI_FUZZ_CORPUS:-${XDG_CACHE_HOME:-$HOME/.cache}/kydi/fuzz-corpus}
case ${1:-} in
--ci)
    [ $# -eq 1 ] || usage
    build
    corpus=$(mktemp -d "${TMPDIR:-/tmp}/kydi-fuzz-ci.XXXXXX")
    trap 'rm -rf "$corpus"' EXIT
    for target in "${targets[@]}"; do
        log="$corpus/$target.log"
        if ! run "$target" "$corpus/$target" -runs="$ci_runs" -max_total_time="$ci_seconds" \
            >"$log" 2>&1; then
            tail -n 60 "$log" >&2
            echo "$target failed: its input is in build/fuzz/artifacts/" >&2
            exit 1
        fi
        done_line=$(grep -aE '^#[0-9]+[[:space:]]+DONE' "$log" | tail -n 1 || true)
        if [ -z "$done_line" ]; then
            tail -n 60 "$log" >&2
            echo "$target did not finish its runs" >&2
            exit 1
        fi
        echo "$target: $done_line"
    done
    ;;
fuzz_*)
    if [ $# -ne 2 ] || ! [[ $2 =~ ^[1-9][0-9]*$ ]] || [[ " ${targets[*]} " != *" $1 "* ]]; then
        usage
    fi
    long=1
    build
    run "$1" "$corpus_root/$1" -max_total_time="$2"
    ;;
*) usage ;;
esac
