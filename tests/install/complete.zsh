# Prints what zsh proposes for a line: complete.zsh COMPLETIONS_FOLDER LINE. It types the line into a zsh in a terminal,
# whose completion tells its matches between two marks.
zmodload zsh/zpty
zpty shell zsh -f -i
ask() { zpty -w shell $1 }
ask 'PS1= PS2=; unsetopt zle_bracketed_paste; autoload -U compinit; compinit -D -u; unsetopt list_beep'
ask "source ${(q)1}/completion.zsh"
ask 'compadd() {
    if [[ ${@[1,(i)(-|--)]} == *-(O|A|D)* ]]; then builtin compadd "$@"; return; fi
    local -a matches
    builtin compadd -A matches "$@"
    print -rl -- $matches >&3
    builtin compadd "$@"
}'
ask 'tell() { print -r -- "[matches]" >&3; _main_complete; print -r -- "[end]" >&3 }; exec 3>&1'
ask "zle -C tell list-choices tell; bindkey '^T' tell; print ready-\${:-now}"
zpty -r shell said '*ready-now*'
zpty -w -n shell "$2"$'\x14'
zpty -r shell said $'*\\[end\\]*'
zpty -d shell
said=${said##*\[matches\]} said=${said%%\[end\]*}
print -rl -- ${(uf)${said//$'\r'/}}
