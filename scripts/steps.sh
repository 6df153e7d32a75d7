# shellcheck shell=bash
# Runs long steps: shows their progress, prints their output if they fail, and limits their time. To be sourced.

# Runs a command with its output in a log, and shows the output if it fails: run_step TITLE LOG COMMAND...
# Shows the progress meanwhile: a terminal gets one line that changes, other outputs get a line every 20 seconds.
# Everything is shown on the error output, to keep it out of a script's results.
run_step() {
  local title=$1 log=$2 result=0 watcher
  shift 2
  mkdir -p "$(dirname "$log")"
  : >"$log"
  start_watching "$title" "$log"
  "$@" </dev/null >"$log" 2>&1 || result=$?
  stop_watching "$title"
  if ((result != 0)); then
    without_progress "$log" | tail -n 200 >&2
    echo "Failed: $title (${log#"$PWD"/} holds all output)" >&2
  fi
  return "$result"
}

# Shows a step's title, and then how far it is: start_watching TITLE LOG. Sets `watcher`.
start_watching() {
  show_status "$1"
  watch_step "$1" "$2" $BASHPID &
  watcher=$!
}

stop_watching() {
  kill "$watcher" 2>/dev/null || true
  wait "$watcher" 2>/dev/null || true
  if [[ -t 2 ]]; then
    show_status "$1"
    echo >&2
  fi
}

# Shows the progress until the shell that runs the step ends: watch_step TITLE LOG SHELL
watch_step() {
  local start=$SECONDS interval=20 next progress
  [[ ! -t 2 ]] || interval=1
  next=$((start + interval))
  # sleep must not inherit this script's output: a reader of that pipe would wait until sleep ends.
  while sleep 1 >/dev/null 2>&1 && kill -0 "$3" 2>/dev/null; do
    ((SECONDS >= next)) || continue
    next=$((SECONDS + interval))
    progress=$(progress_in "$2")
    show_status "$1: ${progress:-$((SECONDS - start)) s}"
  done
}

# On a terminal, overwrites the current line.
show_status() {
  if [[ -t 2 ]]; then
    printf '\r\e[K%.79s' "$1" >&2
  else
    echo "$1" >&2
  fi
}

# apt-get that also prints its progress. It closes the file descriptor of the progress before it runs the scripts of
# the packages. Descriptor 3 is a copy, so these scripts keep their output.
# shellcheck disable=SC2034
apt_get=(bash -c 'exec apt-get -o APT::Status-Fd=3 "$@" 3>&1' apt-get)

# Prints the progress of the command that writes this log, or nothing if the log does not show it. The patterns are
# for ninja (our own loops print the same format), for ctest, and for the downloads and installations of apt-get.
progress_in() {
  local progress failures
  progress=$(sed -n -E -e 's|^\[([0-9]+)/([0-9]+)\] .*|\1 of \2|p' \
    -e 's|^ *([0-9]+)/([0-9]+) Test +#.*|\1 of \2|p' \
    -e 's|^dlstatus:[^:]*:([0-9]+).*|\1 % downloaded|p' \
    -e 's|^pmstatus:[^:]*:([0-9]+).*|\1 % installed|p' "$1" | tail -n 1)
  failures=$(grep -c -E '^ *[0-9]+/[0-9]+ Test +#.*[*]{3}(Failed|Timeout|Exception|Not Run)' "$1")
  ((failures == 0)) || progress+=", $failures failed"
  echo "$progress"
}

# Prints the log without the lines that only show progress.
without_progress() {
  grep -v -E '^\[[0-9]+/[0-9]+\] |^ +Start +[0-9]+: | +Passed +[0-9.]+ sec$|^(dl|pm)status:' "$1" || true
}

# Ends a program that takes longer than it should: limited SECONDS PROGRAM ARGUMENT...
# Returns 124 for such a program. Ctrl-C still reaches the program. Programs that it has started are not ended.
limited() {
  local seconds=$1 result=0
  shift
  timeout --foreground --kill-after=10 "$seconds" "$@" || result=$?
  # 137: it had to be killed.
  if ((result == 124 || result == 137)); then
    echo "Ended after $seconds s, its time limit: $*" >&2
    result=124
  fi
  return "$result"
}
