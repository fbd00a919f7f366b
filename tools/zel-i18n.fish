# SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
# SPDX-License-Identifier: Apache-2.0

# fish completion for zel-i18n

function __zel_i18n_complete
    set -l words (commandline -opc)
    set -l word (commandline -ct)
    set -e words[1]
    zel-i18n complete $words "$word" 2>/dev/null
    or __fish_complete_path "$word"
end

complete -c zel-i18n -f -a '(__zel_i18n_complete)'
