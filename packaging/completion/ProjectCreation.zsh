#compdef ProjectCreation
# SPDX-License-Identifier: MIT

# Names that the program lists: the text before "  [...]".
_kovra_names()
{
    local -a names
    names=("${(@f)$(ProjectCreation -batch "$@" 2>/dev/null | sed -n 's/^ *\([^ ].*[^ ]\)  \[.*\]$/\1/p')}")
    compadd -a names
}

_kovra_types() { _kovra_names -list-types }

_arguments \
    '(-cpp)-c[create an Orv C project]' \
    '(-c)-cpp[create an Orv C++ project]' \
    '-prj[project file to be created]:project file:_files -g "*.prj"' \
    '-tools[open the tools for a project that exists]:project file:_files -g "*.prj"' \
    '-mp[message configuration]:file:_files -g "*.p_s"' \
    '-ap[analyser configuration]:file:_files -g "*.p_a"' \
    '-cp[compiler configuration]:file:_files -g "*.p_c"' \
    '-file[definitions file]:definitions file:_files -g "*.xml"' \
    '-trace[say what is read and set]' \
    '-tracefile[say it to a file]:file:_files' \
    '-batch[convert without a window]' \
    '-type[conversion type]:type:_kovra_types' \
    '*-input[value of an input]:name=value: ' \
    '-overwrite[replace an existing project file]' \
    '-module[compliance module]:name: ' \
    '-dry-run[print the program and its arguments only]' \
    '-timeout[stop the conversion after that time]:seconds: ' \
    '-quiet[say nothing unless something fails]' \
    '-check[look for mistakes in a definitions file]:definitions file:_files -g "*.xml"' \
    '-run[run a tool on the project]:launcher: ' \
    '-list-types[list the conversion types]' \
    '-list-inputs[list the inputs of a conversion type]:type:_kovra_types' \
    '--json[print a list or the result as JSON]' \
    '(- *)-ver[print the version]' \
    '(- *)'{-help,--help,-h}'[print the options]' \
    '(- *)--version[print the version]'
