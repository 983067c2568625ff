# bash completion for tamsel-clock                        -*- shell-script -*-

_tamsel_clock()
{
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}
    case $prev in
    --snapshot | --sheet-snapshot)
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$cur")
        return
        ;;
    --get | --set)
        mapfile -t COMPREPLY < <(compgen -W "$(tamsel-clock --get | cut -d ' ' -f 1)" -- "$cur")
        return
        ;;
    --idle-at-login)
        mapfile -t COMPREPLY < <(compgen -W 'on off' -- "$cur")
        return
        ;;
    --window-id | --size | --scale | --at | --idle)
        return
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W '--root --window-id --window --size --idle --idle-at-login --configure
        --get --set --register-xscreensaver --unregister-xscreensaver --snapshot --scale --at --preview
        --sheet-snapshot --dark --help --version' -- "$cur")
} &&
    complete -F _tamsel_clock tamsel-clock
