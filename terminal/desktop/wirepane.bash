# Completion of wirepane's commands and options for bash. The program's own --help is what is offered.
_wirepane() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command='' word
    local commands='import feed replay sample search rehearse export check backup trim source publish wire'
    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        [[ " $commands " == *" $word "* ]] && command=$word && break
    done
    case $previous in
        --store | --mapping) COMPREPLY=($(compgen -f -- "$current")); return ;;
        --config | --spool | --tour) COMPREPLY=($(compgen -d -- "$current")); return ;;
        --explain) return ;;
        --lang) COMPREPLY=($(compgen -W 'en zh-TW zh-CN' -- "$current")); return ;;
    esac
    if [[ $current == -* ]]; then
        local options
        options=$("${COMP_WORDS[0]}" $command --help 2>/dev/null | grep -oE -- '^ *(-[a-z], )?--[a-z0-9-]+' |
            grep -oE -- '--[a-z0-9-]+')
        COMPREPLY=($(compgen -W "$options" -- "$current"))
    elif [[ -z $command ]]; then
        COMPREPLY=($(compgen -W "$commands" -- "$current"))
    elif [[ $command == import || $command == export || $command == backup || $command == publish ]]; then
        COMPREPLY=($(compgen -f -- "$current"))
    fi
}
complete -o filenames -F _wirepane wirepane
