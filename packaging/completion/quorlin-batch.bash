# Completion of quorlin-batch, quorlin and quorlin-script for bash.

_quorlin_batch() {
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD-1]} IFS=$'\n'
    COMPREPLY=()
    case $before in
    --preset)
        local name
        while read -r name; do
            [[ $name == "${current//\\/}"* ]] && COMPREPLY+=("$(printf '%q' "$name")")
        done < <(quorlin-batch --list-presets 2>/dev/null)
        return ;;
    --progress)
        COMPREPLY=($(compgen -W $'auto\nalways\nnever' -- "$current"))
        return ;;
    --to)
        compopt -o filenames
        COMPREPLY=($(compgen -d -- "$current"))
        return ;;
    --jobs | --shard | --timeout | --memory)
        return ;;
    esac
    if [[ $current == -* && $before != --from && $before != --report && $before != --plan && $before != --resume ]]; then
        COMPREPLY=($(compgen -W $'--preset\n--to\n--keep-tree\n--from\n-0\n--jobs\n--dry-run\n--report\n--plan\n--resume\n--shard\n--timeout\n--memory\n--watch\n--progress\n--quiet\n--list-presets\n--help\n--version' -- "$current"))
        return
    fi
    compopt -o filenames
    COMPREPLY=($(compgen -f -- "$current"))
}

_quorlin() {
    local current=${COMP_WORDS[COMP_CWORD]} IFS=$'\n'
    compopt -o filenames
    if [[ $current == -* ]]; then
        COMPREPLY=($(compgen -W $'--new-recipe\n--watch-folder\n--help\n--version' -- "$current"))
    else
        COMPREPLY=($(compgen -f -- "$current"))
    fi
}

complete -F _quorlin_batch quorlin-batch
complete -F _quorlin quorlin
complete -f -W '--help --version' quorlin-script
