#include "tools/qorin/nearest_name.h"

#include <algorithm>
#include <numeric>

namespace qorin_cli
{
namespace
{
/// How many letters have to be changed, left out or added to come from one word to the other.
std::size_t distance(std::string_view from, std::string_view to)
{
    std::vector<std::size_t> row(to.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < from.size(); ++i)
    {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < to.size(); ++j)
        {
            const std::size_t changed = diagonal + (from[i] == to[j] ? 0 : 1);
            diagonal = std::exchange(row[j + 1], std::min({changed, row[j] + 1, row[j + 1] + 1}));
        }
    }
    return row.back();
}
} // namespace

std::vector<std::string> nearest_names(std::string_view word, const std::vector<std::string>& names, std::size_t count)
{
    std::vector<std::pair<std::size_t, std::string>> near;
    for (const std::string& name : names)
        if (const std::size_t letters = distance(word, name); letters <= word.size() / 3)
            near.emplace_back(letters, name);
    std::sort(near.begin(), near.end());
    near.resize(std::min(near.size(), count));
    std::vector<std::string> nearest;
    for (auto& [letters, name] : near)
        nearest.push_back(std::move(name));
    return nearest;
}
} // namespace qorin_cli
