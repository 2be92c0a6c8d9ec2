# bash completion for lorvane: its options, and files.
_lorvane() {
  local word=${COMP_WORDS[COMP_CWORD]}
  if [[ $word == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "--help --manual --new-company --version" -- "$word")
  else
    compopt -o filenames
    mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X '!*.mdb' -- "$word")
  fi
}

complete -F _lorvane lorvane
