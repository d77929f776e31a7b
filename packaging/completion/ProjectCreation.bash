# SPDX-License-Identifier: MIT
# bash completion for ProjectCreation, prjconv and orv

# Offers lines, blanks quoted, that begin with what has been typed so far, with or without an opening quote.
_kovra_offer_lines()
{
    local typed=${1#[\"\']} line
    typed=${typed//\\/}
    COMPREPLY=()
    while IFS= read -r line; do
        [[ $line == "$typed"* ]] || continue
        case $1 in
        \"* | \'*) COMPREPLY+=("$line") ;;
        *) COMPREPLY+=("$(printf '%q' "$line")") ;;
        esac
    done
}

_kovra_offer_files()
{
    local line pattern=$2
    COMPREPLY=()
    while IFS= read -r line; do
        # shellcheck disable=SC2053 # the pattern is one
        [[ -d $line || -z $pattern || $line == $pattern ]] && COMPREPLY+=("$line")
    done < <(compgen -f -- "$1")
    compopt -o filenames 2>/dev/null
}

# The text after an option on the command line so far, without quotes.
_kovra_value_of()
{
    local i
    for ((i = 1; i < COMP_CWORD; i++)); do
        if [[ ${COMP_WORDS[i]} == "$1" ]]; then
            local value=${COMP_WORDS[i + 1]//[\"\'\\]/}
            printf '%s\n' "$value"
            return
        fi
    done
}

_kovra_program()
{
    # The definitions file decides what there is.
    local file
    file=$(_kovra_value_of -file)
    "${COMP_WORDS[0]}" -batch ${file:+-file "$file"} "$@" 2>/dev/null | sed -n 's/^ *\([^ ].*[^ ]\)  \[.*\]$/\1/p'
}

_ProjectCreation()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    # Behind the "=" of -input name=value, which bash makes a word of its own, stands a file as often as not.
    if [[ $previous == = || $current == = ]]; then
        _kovra_offer_files "${current#=}" ''
        return
    fi
    case $previous in
    -prj | -tools) _kovra_offer_files "$current" '*.prj' ;;
    -file | -check) _kovra_offer_files "$current" '*.xml' ;;
    -mp) _kovra_offer_files "$current" '*.p_s' ;;
    -ap) _kovra_offer_files "$current" '*.p_a' ;;
    -cp) _kovra_offer_files "$current" '*.p_c' ;;
    -tracefile) _kovra_offer_files "$current" '' ;;
    -type | -list-inputs) _kovra_offer_lines "$current" < <(_kovra_program -list-types) ;;
    -input)
        _kovra_offer_lines "$current" < <(_kovra_program -list-inputs "$(_kovra_value_of -type)" | sed 's/$/=/')
        compopt -o nospace 2>/dev/null
        ;;
    *)
        local options='-c -cpp -prj -mp -ap -cp -file -trace -tracefile'
        if [[ " ${COMP_WORDS[*]} " == *' -batch '* ]]; then
            options+=' -type -input -module -overwrite -dry-run -timeout -quiet -list-types -list-inputs -check -run --json
                -help'
        else
            options+=' -tools -batch -ver -help --version --help'
        fi
        mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
        ;;
    esac
}

_prjconv()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    case $previous in
    --compile-commands) _kovra_offer_files "$current" '*.json' ;;
    --visual-studio) _kovra_offer_files "$current" '*.@(sln|slnx|vcxproj|vcxitems)' ;;
    --output) _kovra_offer_files "$current" '*.prj' ;;
    --file-list | --*-personality) _kovra_offer_files "$current" '' ;;
    --source-folder | --output-folder | --build-folder | --cmake-source | --make-folder)
        mapfile -t COMPREPLY < <(compgen -d -- "$current")
        compopt -o filenames 2>/dev/null
        ;;
    --analyser) mapfile -t COMPREPLY < <(compgen -W 'ORVC ORVCPP' -- "$current") ;;
    --options) mapfile -t COMPREPLY < <(compgen -W 'sub-projects keep-missing sub-projects,keep-missing' -- "$current") ;;
    --paths) mapfile -t COMPREPLY < <(compgen -W 'relative absolute' -- "$current") ;;
    --own-language) COMPREPLY=(1) ;;
    --compiler-macros) COMPREPLY=(0 1) ;;
    --configuration) mapfile -t COMPREPLY < <(compgen -W 'Debug Release' -- "$current") ;;
    --platform) mapfile -t COMPREPLY < <(compgen -W 'x64 Win32 ARM64' -- "$current") ;;
    --make-command | --cmake-options | --environment | --name | --extensions | --exclude | --defines | --include-folders) COMPREPLY=() ;;
    *)
        mapfile -t COMPREPLY < <(compgen -W '--compile-commands --build-folder --cmake-source --cmake-options
            --make-folder --make-command --environment --visual-studio --configuration --platform
            --source-folder --file-list --output --name --analyser
            --compiler-personality --analyser-personality --message-personality --output-folder --extensions --exclude
            --defines --include-folders --compiler-macros --options --paths --own-language --help --version' -- "$current")
        ;;
    esac
}

_orv()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    if ((COMP_CWORD == 1)); then
        mapfile -t COMPREPLY < <(compgen -W 'analyse report browse across count status --help --version' -- "$current")
        return
    fi
    case $previous in
    -o | -via) _kovra_offer_files "$current" '' ;;
    -j | --time-limit) COMPREPLY=() ;;
    --launcher) mapfile -t COMPREPLY < <(compgen -c -- "$current") ;;
    --fail-on | --severity)
        mapfile -t COMPREPLY < <(compgen -W 'error warning style performance portability information' -- "$current")
        ;;
    *)
        local options='-via'
        case ${COMP_WORDS[1]} in
        analyse) options+=' -j --launcher --time-limit --fail-on --incomplete-ok --html --csv --sarif -o' ;;
        report) options+=' --text --html --plain-html --csv --sarif -o --severity --fail-on --incomplete-ok' ;;
        browse) options+=' -o --no-browser' ;;
        esac
        if [[ $current == -* ]]; then
            mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
        else
            _kovra_offer_files "$current" '*.prj'
        fi
        ;;
    esac
}

complete -F _ProjectCreation ProjectCreation
complete -F _orv orv
complete -F _prjconv prjconv
