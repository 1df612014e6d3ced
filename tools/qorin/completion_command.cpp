#include <map>
#include <memory>

#include <fmt/format.h>

#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
// Each asks the program itself what may follow, so that none knows anything of subcommands, options and functions.
constexpr const char* bash_script = R"script(# Completion of qorin for bash.
_qorin()
{
    local line=${COMP_LINE:0:COMP_POINT} words current
    read -ra words <<<"$line"
    [[ $line == *' ' ]] && words+=('')
    current=${words[-1]}
    mapfile -t COMPREPLY < <("${words[0]}" --complete "${words[@]:1}" 2>/dev/null | cut -f 1)
    # bash replaces what stands behind the last separator alone.
    [[ $current == *=* && $COMP_WORDBREAKS == *=* ]] && COMPREPLY=("${COMPREPLY[@]#"${current%"${current##*=}"}"}")
    [[ ${COMPREPLY[0]} != *= ]] || compopt -o nospace
}
complete -o default -F _qorin qorin
)script";

constexpr const char* zsh_script = R"script(#compdef qorin
# Completion of qorin for zsh.
_qorin()
{
    local line
    local -a begun whole
    for line in "${(@f)$("${words[1]}" --complete "${(@)words[2,CURRENT]}" 2>/dev/null)}"; do
        line=${line%%$'\t'*}
        [[ -z $line ]] || { [[ $line == *= ]] && begun+=("$line") || whole+=("$line") }
    done
    if (( $#begun + $#whole )); then
        compadd -S '' -a begun
        compadd -a whole
    else
        _files
    fi
}
if [[ $funcstack[1] == _qorin ]]; then _qorin "$@"; else compdef _qorin qorin; fi
)script";

constexpr const char* fish_script = R"script(# Completion of qorin for fish.
function __qorin_candidates
    set -l words (commandline -opc) (commandline -ct)
    set -l found ($words[1] --complete $words[2..-1] 2>/dev/null)
    if test (count $found) -gt 0
        printf '%s\n' $found
    else
        __fish_complete_path (commandline -ct)
    end
end
complete -c qorin -f -a '(__qorin_candidates)'
)script";
} // namespace

void add_completion(CLI::App& program, action& chosen)
{
    CLI::App* completion = program.add_subcommand(
        "completion",
        "Print what makes a shell complete the words of this program: `source <(qorin completion bash)`.");
    const auto shell = std::make_shared<std::string>();
    completion->add_option("shell", *shell, "bash, zsh or fish")
        ->required()
        ->check(CLI::IsMember({"bash", "zsh", "fish"}));
    completion->callback(
        [shell, &chosen]
        {
            chosen = [shell]
            {
                const std::map<std::string, const char*> scripts = {
                    {"bash", bash_script}, {"zsh", zsh_script}, {"fish", fish_script}};
                fmt::print("{}", scripts.at(*shell));
                return status_ok;
            };
        });
}
} // namespace qorin_cli
