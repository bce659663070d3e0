#!/usr/bin/env bash
# Builds the fuzz targets with clang and lets libFuzzer drive each of them, from the samples and from what
# earlier runs found.
# Usage: run.sh SECONDS [TARGET...]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
seconds=${1:?seconds for each target}
shift
targets=("$@")
if [[ ${#targets[@]} -eq 0 ]]; then
    targets=(command_line ctod gestext opening valhor)
fi
cmake --preset fuzz --log-level=WARNING
cmake --build --preset fuzz -j "$(nproc)"
export QT_QPA_PLATFORM=offscreen
# What the libraries keep for their lives is no leak of the target.
export ASAN_OPTIONS=detect_leaks=0
for target in "${targets[@]}"; do
    corpus=build/fuzz/corpus/$target
    mkdir -p "$corpus"
    echo "== $target"
    build/fuzz/tests/fuzz/fuzz_"$target" -max_total_time="$seconds" -timeout=25 -print_final_stats=1 \
        -verbosity=0 -artifact_prefix="$corpus-" "$corpus" tests/fuzz/samples 2>&1 |
        grep -E 'number_of_executed|ERROR|broken|SUMMARY'
done
