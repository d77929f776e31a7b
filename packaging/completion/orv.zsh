#compdef orv
# SPDX-License-Identifier: MIT

_orv_project='1:project file:_files -g "*.prj"'
_orv_severities='(error warning style performance portability information)'
_orv_via='*-via[read further options]:file:_files'

if ((CURRENT == 2)); then
    _values 'command' \
        'analyse[analyse what is missing or old]' \
        'report[tell all messages]' \
        'browse[open the report with sources]' \
        'across[tell what shows across all sources]' \
        'count[count the messages]' \
        'status[tell what is analysed]' \
        '--help[print the options]' \
        '--version[print the version]'
    return
fi

command=$words[2]
shift words
((CURRENT--))
case $command in
analyse)
    _arguments $_orv_project $_orv_via \
        '-j[sources at once]:number: ' \
        '--launcher[what stands before every job]:command:_command_names' \
        '--time-limit[seconds for a source]:seconds: ' \
        "--fail-on[end with 1 when there is such a message]:severity:$_orv_severities" \
        '--incomplete-ok[not every source needs to be analysed]'
    ;;
report)
    _arguments $_orv_project $_orv_via \
        '(--html --plain-html --csv --sarif)--text[lines for a terminal]' \
        '(--text --plain-html --csv --sarif)--html[a page for a browser]' \
        '(--text --html --csv --sarif)--plain-html[a page for simple viewers]' \
        '(--text --html --plain-html --sarif)--csv[comma-separated values]' \
        '(--text --html --plain-html --csv)--sarif[a SARIF log]' \
        '-o[write to a file]:file:_files' \
        "--severity[least severity]:severity:$_orv_severities" \
        "--fail-on[end with 1 when there is such a message]:severity:$_orv_severities" \
        '--incomplete-ok[not every source needs to be analysed]'
    ;;
browse) _arguments $_orv_project $_orv_via '-o[folder]:folder:_files -/' '--no-browser[open none]' ;;
*) _arguments $_orv_project $_orv_via ;;
esac
