#!/usr/bin/env bash
# The real program, killed before one system call after the other while it stores a return over an earlier one, or told
# that the call failed. Whatever happens, the folder holds the earlier return or the new one, whole, and the program says
# "stored" only when it is the new one.
#
#   kill_points.sh CLI SESSION EARLIER NEWER     two packed returns of the same name; exit status 77: cannot be tried here
set -euo pipefail

cli=$1
session=$2
earlier=$3
newer=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# In a sanitized build: leaks cannot be looked for in a program that is traced.
export ASAN_OPTIONS=${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0
mkdir "$work/program"

skip() {
    echo "skipped: $*"
    exit 77
}
fail() {
    echo "$*" >&2
    exit 1
}

command -v strace >/dev/null || skip "there is no strace here"
strace -qq -o /dev/null true 2>/dev/null || skip "this machine lets nobody trace a program"
stored=$(basename "$newer")

# lines FILE: the decoded lines, but for the header, whose status word a store sets.
lines() { "$cli" lines "$1" | tail -n +2; }
lines "$earlier" >"$work/earlier.lines"
lines "$newer" >"$work/newer.lines"

begin() {
    rm -rf "$work/result"
    mkdir "$work/result"
    cp "$earlier" "$work/result/$stored"
}

run() {
    "$@" "$cli" run "$session" --program-folder "$work/program" --define "RETURN=$newer" \
        --define "RESULT=$work/result" >/dev/null 2>&1
}

# try WHAT...: one store under strace; then what it left is looked at.
try() {
    begin
    local status=0
    { run strace -f -qq -o /dev/null "$@" || status=$?; } 2>/dev/null # The shell itself tells of each kill.
    lines "$work/result/$stored" >"$work/found.lines" || fail "$*: what was left cannot be read"
    if cmp -s "$work/found.lines" "$work/newer.lines"; then
        tried_new=$((tried_new + 1))
    elif cmp -s "$work/found.lines" "$work/earlier.lines"; then
        [[ $status -ne 0 ]] || fail "$*: said to be stored, and it is not"
        tried_earlier=$((tried_earlier + 1))
    else
        fail "$*: neither the earlier return nor the new one"
    fi
    run env || fail "$*: the next store failed"
    [[ $(find "$work/result" -type f | wc -l) -eq 1 ]] || fail "$*: the next store left something behind"
}

tried_new=0
tried_earlier=0
begin
run env || fail "the session itself fails"
lines "$work/result/$stored" | cmp - "$work/newer.lines" || fail "the session stores something else"

for call in openat write fsync close rename; do
    # The calls of the store are the last ones of their kind.
    count=$(begin; strace -f -qq -e "trace=$call" -o "$work/trace" "$cli" run "$session" --program-folder "$work/program" \
        --define "RETURN=$newer" --define "RESULT=$work/result" >/dev/null; grep -c "$call(" "$work/trace")
    for ((when = count; when > 0 && when > count - 4; --when)); do
        try -e "trace=$call" -e "inject=$call:signal=SIGKILL:when=$when"
    done
done
for error in ENOSPC EIO EDQUOT EACCES EROFS; do
    try -e trace=fsync -e "inject=fsync:error=$error:when=1"
    try -e trace=fsync -e "inject=fsync:error=$error:when=2"
    try -e trace=rename -e "inject=rename:error=$error:when=1"
done
echo "$tried_earlier times the earlier return, $tried_new times the new one"
[[ $tried_earlier -gt 0 && $tried_new -gt 0 ]] || fail "the points tried are the wrong ones"
