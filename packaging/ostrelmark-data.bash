# Completion of ostrelmark-data for bash.

# Prints the names of the copies that "ostrelmark-data restore" lists, relative to the folder of the data.
_ostrelmark_data_copies() {
    ostrelmark-data "$@" restore 2>/dev/null | sed -nE 's/^[^ ]+ [^ ]+ +[0-9,]+ bytes  (.*[.][Mm][Dd][Bb])  .*/\1/p'
}

_ostrelmark_data() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} verb="" folder=() i
    for ((i = 1; i < COMP_CWORD; ++i)); do
        case ${COMP_WORDS[i]} in
        --folder) folder=(--folder "${COMP_WORDS[++i]}") ;;
        -*) ;;
        *) [ -n "$verb" ] || verb=${COMP_WORDS[i]} ;;
        esac
    done
    COMPREPLY=()
    case $before in
    --folder) compopt -o dirnames && return ;;
    --date-order) mapfile -t COMPREPLY < <(compgen -W "DMY MDY YMD" -- "$word") && return ;;
    --days | --delimiter | --from | --map | --tank | --to) return ;;
    esac
    case $verb in
    "") mapfile -t COMPREPLY < <(compgen -W "calendar check export import restore upcoming --folder --help --version" -- "$word") ;;
    calendar)
        case $word in
        -*) mapfile -t COMPREPLY < <(compgen -W "--from --to --folder --help" -- "$word") ;;
        *) compopt -o default ;;
        esac
        ;;
    export)
        case $word in
        -*) mapfile -t COMPREPLY < <(compgen -W "--tank --force --folder --help" -- "$word") ;;
        *) compopt -o dirnames ;;
        esac
        ;;
    import)
        case $word in
        -*)
            local options="--map --tank --date-order --delimiter --decimal-comma --replace --dry-run --folder --help"
            mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
            ;;
        *) compopt -o default ;;
        esac
        ;;
    restore)
        compopt -o filenames -o default
        mapfile -t COMPREPLY < <(compgen -W "$(_ostrelmark_data_copies "${folder[@]}") --folder --help" -- "$word")
        ;;
    upcoming) mapfile -t COMPREPLY < <(compgen -W "--days --folder --help" -- "$word") ;;
    *) mapfile -t COMPREPLY < <(compgen -W "--folder --help" -- "$word") ;;
    esac
}
complete -F _ostrelmark_data ostrelmark-data
