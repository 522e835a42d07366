#!/bin/sh
# Holds the manual pages against mandoc, man, and what the command says of itself.
#   man_test.sh OCBGP MAN_PAGES_FOLDER
set -eu
ocbgp=$1
folder=$2
failed=0
fail() {
    echo "$*"
    failed=1
}

# ---- Both pages are well formed ----

for page in "$folder/ocbgp.1" "$folder/libvmf_map_oc_bgp.3"; do
    mandoc -T lint -W warning "$page" || fail "$page: mandoc warns"
    said=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 "$page" 2>&1 >/dev/null) || fail "$page: man fails"
    [ -z "$said" ] || fail "$page: $said"
    ! grep -n '@' "$page" || fail "$page: has a word that the build should have replaced"
done

# ---- ocbgp(1) has all that the command has ----

# The text of a section (.Sh) or of a command's subsection (.Ss).
section_of() {
    awk -v head="$1" '/^\.S[hs] /{ inside = ($0 == head) } inside' "$folder/ocbgp.1"
}

# options_of COMMAND: the long ones that its help lists. "" for those of the program.
options_of() {
    # shellcheck disable=SC2086 # no command is no word
    "$ocbgp" $1 --help | sed -n '/^Options:/,/^$/s/^  \(-[a-z],\)\{0,1\}\(--[a-z-]*\).*/\2/p' | grep -v '^--help$' || :
}

commands=$("$ocbgp" --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]*\) .*/\1/p')
[ "$(echo "$commands" | wc -l)" -ge 12 ] || fail "found no commands in the help: $commands"
shared=$(section_of ".Sh OPTIONS THAT COMMANDS SHARE")
for command in $commands; do
    text=$(section_of ".Ss $command")
    [ -n "$text" ] || fail "ocbgp(1) lacks the command $command"
    for option in $(options_of "$command"); do
        echo "$text" | grep -q "^\.Op Fl ${option#-}\( \|$\)" || fail "ocbgp(1): the synopsis of $command lacks $option"
        { echo "$text"; echo "$shared"; } | grep -q "^\.It Fl ${option#-}\( \|$\)" ||
            fail "ocbgp(1) describes $option neither at $command nor among the shared options"
    done
done
for option in $(options_of ""); do
    section_of ".Sh DESCRIPTION" | grep -q "^\.It Fl ${option#-}$" || fail "ocbgp(1) lacks $option"
done

codes=$("$ocbgp" --help | tr '\n' ' ' | sed 's/.*Exit codes://' | grep -o '[:, ] *[0-9][0-9]* [a-z]' | grep -o '[0-9][0-9]*')
[ "$(echo "$codes" | wc -l)" -ge 8 ] || fail "found no exit codes in the help: $codes"
for code in $codes; do
    section_of ".Sh EXIT STATUS" | grep -q "^\.It $code$" || fail "ocbgp(1) lacks the exit code $code"
done

# ---- And nothing more ----

for command in $(awk '/^\.Sh /{ inside = ($0 == ".Sh COMMANDS") } inside && /^\.Ss /{ print $2 }' "$folder/ocbgp.1"); do
    echo "$commands" | grep -qx -e "$command" || { fail "ocbgp(1) has a command that is not there: $command"; continue; }
    for option in $(section_of ".Ss $command" | sed -n 's/^\.Op Fl \([a-z-]*\).*/-\1/p'); do
        options_of "$command" | grep -qx -e "$option" || fail "ocbgp(1): $command has no $option"
    done
done
for code in $(section_of ".Sh EXIT STATUS" | sed -n 's/^\.It \([0-9]*\)$/\1/p'); do
    echo "$codes" | grep -qx "$code" || fail "ocbgp(1) has an exit code that is not there: $code"
done

# ---- Both bear the version ----

version=$("$ocbgp" --version)
for page in "$folder/ocbgp.1" "$folder/libvmf_map_oc_bgp.3"; do
    grep -q "^\.Os \"vmf_map_oc_bgp ${version#ocbgp }\"$" "$page" || fail "$page is not of $version"
done
exit $failed
