# Completion of zel in bash: the path of a document.
_zel() {
  local word=${COMP_WORDS[COMP_CWORD]}
  mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -X '!*.zel' -- "$word")
}
complete -o filenames -F _zel zel
