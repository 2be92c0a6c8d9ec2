# What the scripts of this folder share: a command that is killed on its way, at a moment between its start and a
# little behind its end. Sourced.

folder=$(mktemp -d "${TMPDIR:-/tmp}/lorvane-kill.XXXXXX")
trap 'rm -rf "$folder"' EXIT
run=$folder/run

# time_of COMMAND...: how long it takes, in microseconds, in $whole; the script ends when it fails.
time_of() {
  local start
  start=$(date +%s%N)
  "$@" >/dev/null 2>&1 || { echo "This doesn't work at all: $*" >&2; exit 1; }
  whole=$((($(date +%s%N) - start) / 1000))
}

# kill_on_its_way COMMAND...: the moment is in $delay; its output, as far as it came, in $said.
kill_on_its_way() {
  local process
  delay=$((whole * (RANDOM % 1000) / 900))
  "$@" >"$folder/said" 2>&1 &
  process=$!
  sleep "$(printf '%d.%06d' $((delay / 1000000)) $((delay % 1000000)))"
  kill -KILL "$process" 2>/dev/null
  wait "$process" 2>/dev/null
  said=$(cat "$folder/said")
}

# fail WORDS...: ends the script with what was found after a kill.
fail() {
  echo "Killed after $delay us: $*" >&2
  exit 1
}
