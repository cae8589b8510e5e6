# completion of calvento-lote and calvento for bash: options as their help tells them, project files
_calvento() {
  local palabra=${COMP_WORDS[COMP_CWORD]} anterior=${COMP_WORDS[COMP_CWORD - 1]} IFS=$'\n'
  compopt -o filenames
  case "$anterior" in
    --responder) COMPREPLY=($(compgen -W $'si\nno' -- "$palabra")) ; return ;;
    --campo | --vista | --veces | --variar | --hilos) return ;;
    --dibujo | --dxf | --memoria) COMPREPLY=($(compgen -f -- "$palabra")) ; return ;;
  esac
  if [[ "$palabra" == -* ]]; then
    COMPREPLY=($(compgen -W "$("$1" --ayuda 2>/dev/null | grep -oE '^ +-[^ ]*' | grep -oE -- '--?[a-z][a-z-]*')" -- "$palabra"))
    return
  fi
  COMPREPLY=($(compgen -d -- "$palabra") $(compgen -f -X '!*.@([cC][vV][rR]|[cC][vV][iI]|[cC][vV][vV])' -- "$palabra"))
}
complete -F _calvento calvento-lote calvento
