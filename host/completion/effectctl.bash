# Completion of effectctl in bash. Names of classes come from the program itself.

# The words of the line so far are told apart by blanks alone: bash would part the names of classes at their colons.
_effectctl()
{
    local line=${COMP_LINE:0:COMP_POINT} word previous command='' index
    local -a words
    COMPREPLY=()
    read -ra words <<<"$line"
    [[ $line == *[[:blank:]] ]] && words+=('')
    word=${words[-1]}
    previous=${words[-2]}
    for ((index = 1; index < ${#words[@]} - 1; ++index)); do
        [[ ${words[index]} == -* ]] && continue
        command=${words[index]}
        break
    done

    # --class=NAME is completed as --class NAME is.
    if [[ $word == --*=* ]]; then
        previous=${word%%=*}
        word=${word#*=}
    fi

    local options=--help
    case $command in
        '')
            _effectctl_words "--help --version list describe schema show archive check diff patch edit salvage redact relink pack unpack convert catalogue search new gallery lut tool"
            return ;;
        list) options+=' --json --effects' ;;
        describe) options+=' --json' ;;
        schema) options+=' --items --closed' ;;
        show) options+=' --class --json' ;;
        archive) options+=' --to --format --json --jsonl' ;;
        check) options+=' --strict --json --jsonl' ;;
        diff) options+=' --json' ;;
        patch) options+=' --output' ;;
        edit) options+=' --set --unset --output --json --jsonl' ;;
        salvage) options+=' --json' ;;
        redact) ;;
        relink) options+=' --in --hashes --json --jsonl' ;;
        pack) options+=' --licence --author --version --json' ;;
        unpack) options+=' --json' ;;
        convert) options+=' --batch --class --set --resource --track --video --duration --sample-rate --report --json --jsonl' ;;
        catalogue) options+=' --stock --user --json --long --convert' ;;
        search) options+=' --stock --user --json' ;;
        new) options+=' --output --category --set' ;;
        gallery) options+=' --stock --user' ;;
        lut) options+=' --json --jsonl' ;;
        tool) options+=' --class --json --jsonl' ;;
        *) return ;;
    esac

    case $previous in
        --class)
            local which=--effects
            [[ $command == show ]] && which=
            _effectctl_words "$(_effectctl_classes $which)"
            return ;;
        --format)
            _effectctl_words "json bin"
            return ;;
        --stock | --user | --to | --in)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -d -- "$word")
            return ;;
        --set)
            if [[ $word == *=* ]]; then
                local key=${word%%=*}
                word=${word#*=}
                _effectctl_words "$(_effectctl_choices "$key")"
            else
                compopt -o nospace 2>/dev/null
                _effectctl_words "$(_effectctl_keys)"
            fi
            return ;;
        --output | -o)
            _effectctl_files "$word"
            return ;;
        --resource | --track)
            [[ $word == *=* ]] && _effectctl_files "${word#*=}"
            return ;;
    esac
    if [[ $word == -* ]]; then
        _effectctl_words "$options"
    elif [[ $command == describe || $command == schema ]]; then
        _effectctl_words "$(_effectctl_classes)"
    elif [[ $command == new && $previous == new ]]; then
        _effectctl_words "$(_effectctl_classes --effects)"
    elif [[ $command == gallery ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen -d -- "$word")
    elif [[ $command != list && $command != catalogue && $command != search ]]; then
        _effectctl_files "$word"
    fi
}

# The names of all classes, or with --effects those of effects.
_effectctl_classes()
{
    "${words[0]}" list "$@" 2>/dev/null | tail -n +2 | cut -f 1
}

# What the program says about the class that the line names.
_effectctl_description()
{
    local name='' index
    for ((index = 1; index < ${#words[@]} - 1; ++index)); do
        case ${words[index]} in
            --class) name=${words[index + 1]} ;;
            --class=*) name=${words[index]#*=} ;;
        esac
    done
    [[ -n $name ]] && "${words[0]}" describe "$name" 2>/dev/null
}

# Its keys, as `KEY=`. Those of elements in lists are indented more.
_effectctl_keys()
{
    _effectctl_description | sed -n 's/^    key  *\(.*\)/\1=/p'
}

# The names of the choices that a key has: the first one behind "choices", the others below it.
_effectctl_choices()
{
    _effectctl_description | awk -v key="$1" '
        /^    [^ ]/ { inside = 0 }
        /^    key / { wanted = $2 == key }
        /^    choices / { inside = wanted; $1 = ""; $0 = $0 }
        inside { print $1 }'
}

# Those of the words that begin as the current one. Where bash parts words at colons, it replaces only what is behind
# the last.
_effectctl_words()
{
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$word")
    if [[ $word == *:* && $COMP_WORDBREAKS == *:* ]]; then
        local before=${word%"${word##*:}"}
        COMPREPLY=("${COMPREPLY[@]#"$before"}")
    fi
}

_effectctl_files()
{
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -- "$1")
}

complete -F _effectctl effectctl
