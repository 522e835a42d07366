#include "completion.h"

#include <cctype>
#include <sstream>
#include <vector>

namespace cli {

namespace {

enum class Takes { nothing, words, file, folder, text };

struct Argument {
    std::vector<std::string> names;  // "-h", "--help"; none of a positional
    std::string help;
    Takes takes = Takes::nothing;
    std::vector<std::string> words;
};

struct Described {
    std::string name;
    std::string help;
    std::vector<Argument> options;
    std::vector<Argument> positionals;
};

// ---- What CLI11 knows -----------------------------------------------------------------------

std::vector<std::string> words_of(const std::string &value)
{
    std::vector<std::string> words;
    std::istringstream in(value);
    for (std::string word; std::getline(in, word, '|');)
        if (!word.empty() && std::islower(static_cast<unsigned char>(word[0])) != 0) words.push_back(word);
    return words;
}

Takes told_by(const std::string &value)
{
    if (value.find('|') != std::string::npos) return Takes::words;
    const auto is = [&value](const char *prefix) { return value.rfind(prefix, 0) == 0; };
    if (is("FILE") || is("FILTER") || is("MODULE")) return Takes::file;
    if (is("DIR") || is("FOLDER")) return Takes::folder;
    return Takes::text;
}

// "xml|json|tree", "DIR": of a positional its type where it names words, else its name.
std::string value_of(const CLI::Option &option)
{
    const std::string type = option.get_type_name();
    if (option.get_positional()) return type.find('|') != std::string::npos ? type : option.get_name(true);
    return option.get_option_text().empty() ? type : option.get_option_text();
}

Argument describe(const CLI::Option &option)
{
    Argument argument;
    for (const std::string &name : option.get_snames()) argument.names.push_back("-" + name);
    for (const std::string &name : option.get_lnames()) argument.names.push_back("--" + name);
    argument.help = option.get_description();
    if (option.get_items_expected_max() == 0) return argument;
    argument.takes = told_by(value_of(option));
    argument.words = words_of(value_of(option));
    return argument;
}

Described describe(const CLI::App &app)
{
    Described described{app.get_name(), app.get_description(), {}, {}};
    for (const CLI::Option *option : app.get_options()) {
        if (option->get_group().empty()) continue;
        (option->get_positional() ? described.positionals : described.options).push_back(describe(*option));
    }
    return described;
}

std::vector<Described> commands_of(const CLI::App &app)
{
    const std::vector<const CLI::App *> all = app.get_subcommands([](const CLI::App *) { return true; });
    std::vector<Described> commands;
    commands.reserve(all.size());
    for (const CLI::App *command : all) commands.push_back(describe(*command));
    return commands;
}

// ---- Texts ----------------------------------------------------------------------------------

std::string joined(const std::vector<std::string> &words, const char *between)
{
    std::string text;
    for (const std::string &word : words) text += (text.empty() ? "" : between) + word;
    return text;
}

std::vector<std::string> names_of(const std::vector<Described> &commands)
{
    std::vector<std::string> names;
    names.reserve(commands.size());
    for (const Described &command : commands) names.push_back(command.name);
    return names;
}

std::vector<std::string> names_of(const std::vector<Argument> &options)
{
    std::vector<std::string> names;
    for (const Argument &option : options) names.insert(names.end(), option.names.begin(), option.names.end());
    return names;
}

std::string escaped(const std::string &text, const std::string &special, const std::string &before)
{
    std::string out;
    for (const char c : text) {
        if (special.find(c) != std::string::npos) out += before;
        out += c;
    }
    return out;
}

// In single quotes, as sh and zsh read them.
std::string quoted(const std::string &text)
{
    std::string out = "'";
    for (const char c : text) out += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return out + "'";
}

std::string made_by(const char *shell)
{
    return std::string("# Made by `ocbgp --completion ") + shell +
           "` from the command's own description of its options.\n";
}

// ---- bash -----------------------------------------------------------------------------------

std::string bash_completes(const Argument &argument)
{
    switch (argument.takes) {
    case Takes::words: return "words=" + quoted(joined(argument.words, " "));
    case Takes::file: return "files=-f";
    case Takes::folder: return "files=-d";
    case Takes::nothing:
    case Takes::text: break;
    }
    return "return";
}

std::string bash_script(const Described &program, const std::vector<Described> &commands)
{
    std::ostringstream out;
    out << made_by("bash") << R"(_ocbgp()
{
    local current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command= words= files= i
    COMPREPLY=()
    [[ $before == "=" ]] && before=${COMP_WORDS[COMP_CWORD - 2]}
    [[ $current == "=" ]] && current=
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
)";
    out << "        " << joined(names_of(commands), " | ") << ") command=${COMP_WORDS[i]} && break ;;\n"
        << "        esac\n    done\n    case $command,$before in\n";
    for (const Described &command : commands)
        for (const Argument &option : command.options)
            if (option.takes != Takes::nothing)
                for (const std::string &name : option.names)
                    out << "    " << command.name << "," << name << ") " << bash_completes(option) << " ;;\n";
    out << "    *)\n        case $command,$current in\n";
    for (const Described &command : commands) {
        out << "        " << command.name << ",-*) words=" << quoted(joined(names_of(command.options), " ")) << " ;;\n";
        for (const Argument &positional : command.positionals)
            out << "        " << command.name << ",*) " << bash_completes(positional) << " ;;\n";
    }
    out << "        ,-*) words=" << quoted(joined(names_of(program.options), " ")) << " ;;\n"
        << "        ,*) words=" << quoted(joined(names_of(commands), " "))
        << " ;;\n        esac\n        ;;\n    esac\n"
        << R"(    if [[ -n $files ]]; then
        compopt -o filenames 2>/dev/null
        mapfile -t COMPREPLY < <(compgen "$files" -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current")
    fi
}
complete -F _ocbgp ocbgp
)";
    return out.str();
}

// ---- zsh ------------------------------------------------------------------------------------

std::string zsh_completes(const Argument &argument)
{
    switch (argument.takes) {
    case Takes::nothing: return "";
    case Takes::words: return ": :(" + joined(argument.words, " ") + ")";
    case Takes::file: return ":file:_files";
    case Takes::folder: return ":folder:_files -/";
    case Takes::text: return ": : ";
    }
    return "";
}

void write_zsh_arguments(std::ostream &out, const Described &described, const char *indent)
{
    for (const Argument &option : described.options) {
        const std::string excluded = "(" + joined(option.names, " ") + ")";
        const std::string rest = "[" + escaped(option.help, "[]:\\", "\\") + "]" + zsh_completes(option);
        for (const std::string &name : option.names) {
            std::string whole = excluded;
            out << " \\\n" << indent << quoted(whole.append(name).append(rest));
        }
    }
    for (size_t i = 0; i < described.positionals.size(); i++)
        out << " \\\n" << indent << quoted(std::to_string(i + 1) + zsh_completes(described.positionals[i]));
}

std::string zsh_script(const Described &program, const std::vector<Described> &commands)
{
    std::ostringstream out;
    out << "#compdef ocbgp\n"
        << made_by("zsh") << "_ocbgp() {\n    local context state state_descr line\n    local -A opt_args\n"
        << "    _arguments -C";
    write_zsh_arguments(out, program, "        ");
    out << " \\\n        '1: :->command' '*:: :->rest'\n    case $state in\n    command)\n        local -a "
           "commands=(\n";
    for (const Described &command : commands)
        out << "            " << quoted(command.name + ":" + escaped(command.help, ":\\", "\\")) << "\n";
    out << "        )\n        _describe command commands\n        ;;\n    rest)\n        case $line[1] in\n";
    for (const Described &command : commands) {
        out << "        " << command.name << ")\n            _arguments";
        write_zsh_arguments(out, command, "                ");
        out << "\n            ;;\n";
    }
    out << "        esac\n        ;;\n    esac\n}\n"
        << "# Loaded by the completion system, or read as a file.\n"
        << "if [[ $funcstack[1] == _ocbgp ]]; then _ocbgp \"$@\"; else compdef _ocbgp ocbgp; fi\n";
    return out.str();
}

// ---- fish -----------------------------------------------------------------------------------

std::string fish_quoted(const std::string &text) { return "'" + escaped(text, "'\\", "\\") + "'"; }

std::string fish_completes(const Argument &argument)
{
    switch (argument.takes) {
    case Takes::nothing: return "";
    case Takes::words: return " -x -a " + fish_quoted(joined(argument.words, " "));
    case Takes::file: return " -r -F";
    case Takes::folder: return " -x -a '(__fish_complete_directories)'";
    case Takes::text: return " -x";
    }
    return "";
}

std::string fish_option(const Argument &option)
{
    std::string text;
    for (const std::string &name : option.names)
        text += name.rfind("--", 0) == 0 ? " -l " + name.substr(2) : " -s " + name.substr(1);
    return text + fish_completes(option) + " -d " + fish_quoted(option.help);
}

std::string fish_positional(const Argument &positional)
{
    return positional.takes == Takes::file ? " -F" : fish_completes(positional);
}

std::string fish_script(const Described &program, const std::vector<Described> &commands)
{
    std::ostringstream out;
    out << made_by("fish") << "complete -c ocbgp -f\n";
    const std::string first = "complete -c ocbgp -n __fish_use_subcommand";
    for (const Argument &option : program.options) out << first << fish_option(option) << "\n";
    for (const Described &command : commands)
        out << first << " -a " << command.name << " -d " << fish_quoted(command.help) << "\n";
    for (const Described &command : commands) {
        const std::string behind = "complete -c ocbgp -n '__fish_seen_subcommand_from " + command.name + "'";
        for (const Argument &option : command.options) out << behind << fish_option(option) << "\n";
        for (const Argument &positional : command.positionals) out << behind << fish_positional(positional) << "\n";
    }
    return out.str();
}

}  // namespace

std::string completion_script(const CLI::App &app, const std::string &shell)
{
    const Described program = describe(app);
    const std::vector<Described> commands = commands_of(app);
    if (shell == "bash") return bash_script(program, commands);
    if (shell == "zsh") return zsh_script(program, commands);
    return fish_script(program, commands);
}

}  // namespace cli
