#!/bin/bash
# Completes commands, options and values in bash, zsh and fish, with what the command said of itself.
#   completion_test.sh OCBGP COMPLETIONS_FOLDER
set -eu
PATH=$(dirname "$1"):$PATH
OCBGP=$1
export PATH OCBGP
completions=$2
here=$(cd "$(dirname "$0")" && pwd)
failed=0

# ---- What each shell proposes for a line, sorted, in one line --------------------------------

in_bash() {
    bash -c '
        source "$0/completion.bash"
        line=$1
        read -ra COMP_WORDS <<<"${line//=/ = }"
        [[ $line == *" " ]] && COMP_WORDS+=("")
        COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
        $(complete -p ocbgp | sed "s/.*-F \([^ ]*\).*/\1/")
        printf "%s\n" "${COMPREPLY[@]}"' "$completions" "$1"
}

in_fish() {
    HOME=$scratch fish --no-config -c "source $completions/completion.fish; complete -C '$1'" | cut -f 1
}

# In a terminal of its own, since zsh completes nowhere else.
in_zsh() {
    timeout 30 zsh -f "$here/complete.zsh" "$completions" "$1"
}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
mkdir folder
touch edit.xml

# expect SHELL LINE WORDS...
expect() {
    local shell=$1 line=$2 proposed wanted
    shift 2
    proposed=$("in_$shell" "$line" | sed 's|/$||' | sort | xargs)
    wanted=$(printf '%s\n' "$@" | sort | xargs)
    if [ "$proposed" != "$wanted" ]; then
        echo "$shell: \"$line\" is completed by \"$proposed\", not by \"$wanted\""
        failed=1
    fi
}

commands_with() { "$OCBGP" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]*\) .*/\1/p' | grep "^$1"; }
options_with() { "$OCBGP" "$1" --help | sed -n '/^Options:/,/^$/s/^  \(-[a-z],\)\{0,1\}\(--[a-z-]*\).*/\2/p' | grep "^$2"; }

# shellcheck disable=SC2046 # the words are proposals
for shell in bash zsh fish; do
    expect $shell "ocbgp load" load-operational
    expect $shell "ocbgp re" $(commands_with re)
    expect $shell "ocbgp edit --c" $(options_with edit --c)
    expect $shell "ocbgp get --format " json tree xml
    expect $shell "ocbgp translate --kind get" get get-config
    expect $shell "ocbgp show " candidate operational running
    expect $shell "ocbgp translate ed" edit.xml
    expect $shell "ocbgp edit --dry-run ed" edit.xml
    expect $shell "ocbgp init --router f" folder
done
expect bash "ocbgp translate --format=j" json
expect bash "ocbgp init --wait " ""

# Every command, and every option of each, in the shell that answers at once.
# shellcheck disable=SC2046
expect bash "ocbgp " $(commands_with "")
for command in $(commands_with ""); do
    # shellcheck disable=SC2046
    expect bash "ocbgp $command --" $(options_with "$command" --)
done

code=0
"$OCBGP" --completion tcsh >/dev/null 2>&1 || code=$?
[ $code = 64 ] || { echo "a shell without completion gives the exit code $code"; failed=1; }
exit $failed
