# Completion of lessonconv for bash.
_lessonconv()
{
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} command= i
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
            convert | render | info | formats) command=${COMP_WORDS[i]}; break ;;
        esac
    done
    case $before in
        --from | --to)
            mapfile -t COMPREPLY < <(compgen -W "$(lessonconv formats 2>/dev/null | cut -d' ' -f1)" -- "$word")
            return ;;
        --ink)
            mapfile -t COMPREPLY < <(compgen -W "polyline drop" -- "$word")
            return ;;
        --out-dir)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -d -- "$word")
            return ;;
    esac
    local options="--help --version --plugin --from --quiet --verbose --json"
    case $command in
        "") options="convert render info formats --help --version" ;;
        render) options+=" --size --slides --diff" ;;
        convert) options+=" --to --out-dir --jobs --lesson-timeout --resume --report --strict --no-check --ink" ;;
    esac
    if [[ -z $command || $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
    else
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
    fi
}
complete -F _lessonconv lessonconv
