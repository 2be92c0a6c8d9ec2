# bash completion for lorvane-cli: its commands, their options and arguments as the program's own help tells them.

# The words of one part of a help text (Subcommands, Options or Positionals), an entry a line, folded lines joined.
_lorvane_cli_part() {
  awk -v part="$1" '
    /^[^ ]/ { inside = tolower($0) == tolower(part) ":"; next }
    !inside || NF == 0 { next }
    /^   / && !/^ *-/ { printf " %s", $0; next }
    { printf "%s%s", (lines++ ? "\n" : ""), $0 }
    END { if (lines) print "" }' <<<"$2"
}

# Whether the option $1 takes a value, by the entries $2: then its entry is in $entry.
_lorvane_cli_takes_value() {
  while IFS= read -r entry; do
    [[ " ${entry//,/ } " == *" $1 "* && $entry =~ ^([[:space:],]*-[^[:space:],]+)+[[:space:]]+[A-Z]+[[:space:]:] ]] &&
      return
  done <<<"$2"
  return 1
}

_lorvane_cli_files() {
  compopt -o filenames
  mapfile -t COMPREPLY < <(compgen -f -- "$1")
}

# The values of an option or argument, by its entry: one of a list, an industry, or a file.
_lorvane_cli_values() {
  if [[ $1 =~ \{([^}]*)\} ]]; then
    mapfile -t COMPREPLY < <(compgen -W "${BASH_REMATCH[1]//,/ }" -- "$2")
    return
  fi
  case "$1" in
    *--industry*) mapfile -t COMPREPLY < <(compgen -W "A B C D E F" -- "$2") ;;
    *--output* | *FILE* | *SHEET* | *SOURCE* | *PAYMENTS* | *SCRIPT* | *BACKUP* | *FOLDER*)
      _lorvane_cli_files "$2"
      ;;
  esac
}

_lorvane_cli() {
  local program=${COMP_WORDS[0]/#\~/$HOME} word=${COMP_WORDS[COMP_CWORD]} i given entry
  local help commands options value='' place=0
  COMPREPLY=()
  # After "--option=" the shell has three words.
  [[ $word != '=' ]] || word=''
  local line=("$program")
  help=$("${line[@]}" --help 2>/dev/null) || return
  commands=$(_lorvane_cli_part Subcommands "$help" | awk '{ print $1 }')
  options=$(_lorvane_cli_part Options "$help")
  for ((i = 1; i < COMP_CWORD; i++)); do
    given=${COMP_WORDS[i]}
    if [[ $given == '=' ]]; then
      continue
    elif [[ -n $value ]]; then
      value=''
    elif [[ $given == -* ]]; then
      ! _lorvane_cli_takes_value "$given" "$options" || value=$entry
    elif [[ $'\n'$commands$'\n' == *$'\n'"$given"$'\n'* ]]; then
      line+=("$given")
      help=$("${line[@]}" --help 2>/dev/null) || return
      commands=$(_lorvane_cli_part Subcommands "$help" | awk '{ print $1 }')
      options=$(_lorvane_cli_part Options "$help")
    else
      place=$((place + 1))
    fi
  done
  if [[ -n $value ]]; then
    _lorvane_cli_values "$value" "$word"
  elif [[ $word == -* ]]; then
    options=$(grep -oE '^[[:space:]]*(-[^[:space:],]+[[:space:],]*)+' <<<"$options")
    mapfile -t COMPREPLY < <(compgen -W "${options//,/ }" -- "$word")
  elif [[ -n $commands ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$commands" -- "$word")
  else
    _lorvane_cli_values "$(_lorvane_cli_part Positionals "$help" | sed -n "$((place + 1))p")" "$word"
  fi
}

complete -F _lorvane_cli lorvane-cli
