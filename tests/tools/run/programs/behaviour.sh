#!/bin/sh
# A child process with named behaviours, for the test of the command runner.
# A file that tells the test something appears complete, by a rename.
behaviour=$1
shift

tell() {
    cat > "$1.unfinished"
    mv "$1.unfinished" "$1"
}

# What it finds when it starts: one line each, then its arguments, each with a null byte behind it.
report() {
    pwd -P
    if read -r _; then echo "stdin open"; else echo "stdin at its end"; fi
    read -r _ _ _ _ group session _ < /proc/$$/stat
    if [ "$group $session" = "$$ $$" ]; then echo "leads a session"; else echo "led"; fi
    grep -E "SigBlk|SigIgn" /proc/$$/status
    shift
    [ $# -eq 0 ] || printf '%s\0' "$@"
}

case $behaviour in
exit) exit "$1" ;;
crash) kill -ABRT $$ ;;
report) report "$@" | tell "$1" ;;
sleep | ignore-term)
    [ "$behaviour" = sleep ] || trap '' TERM
    echo $$ | tell "$1"
    exec sleep 120 ;; # stays behind when a test fails, but not for long
grandchild) # which ignores TERM, while the child itself does not; "exit": it is left behind
    "$0" ignore-term "$1" &
    [ "$2" = exit ] || exec sleep 120 ;;
esac
