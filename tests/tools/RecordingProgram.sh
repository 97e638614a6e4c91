#!/bin/sh
# Runs in place of every program that a page runs: records its arguments, waits while it is held,
# ends with the status that the test wants. See RecordedProgram.h.
name=$TOOLVANE_TEST_SANDBOX/$(basename "$0")
printf '%s\0' "$@" > "$name.unfinished"
mv "$name.unfinished" "$name.arguments"
while [ -e "$name.hold" ]; do sleep 0.02; done
exit "$(cat "$name.status" 2>/dev/null || echo 0)"
