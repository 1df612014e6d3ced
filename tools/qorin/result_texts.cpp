#include "tools/qorin/result_texts.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <string_view>

#include <fmt/format.h>
#include <sys/mman.h>
#include <unistd.h>

#include "qorin/catalogue.h"
#include "qorin/result.h"
#include "tools/qorin/subcommands.h"

namespace qorin_cli
{
namespace
{
/// The library tells all of its catalogues, advice too, by a file of XML alone: an element a line, nothing escaped.
void read_catalogue(std::istream& file, std::vector<result_text>& texts)
{
    const auto element = [](std::string_view line, std::string_view name) -> std::string
    {
        const std::string begin = fmt::format("<{}>", name);
        const std::string end = fmt::format("</{}>", name);
        const std::size_t from = line.find(begin);
        return from == std::string_view::npos || !line.ends_with(end)
                   ? std::string()
                   : std::string(line.substr(from + begin.size(), line.size() - end.size() - from - begin.size()));
    };
    for (std::string line; std::getline(file, line);)
    {
        if (const std::string name = element(line, "Name"); !name.empty())
            texts.push_back({.name = name, .code = 0, .description = {}, .values = {}, .advice = {}});
        if (texts.empty())
            continue;
        result_text& text = texts.back();
        if (const std::string code = element(line, "Code"); !code.empty())
            std::from_chars(code.data(), code.data() + code.size(), text.code);
        for (auto [name, field] : {std::pair("Description", &text.description), std::pair("SendID", &text.values),
                                   std::pair("HowToHandle", &text.advice)})
            if (std::string value = element(line, name); !value.empty())
                *field = std::move(value);
    }
}

void read_catalogue(QORIN_API_RESULT (*save)(const char*), std::vector<result_text>& texts)
{
    const int memory = memfd_create("qorin_catalogue", MFD_CLOEXEC);
    if (memory < 0)
        throw failure("no memory for the catalogue");
    const std::string path = fmt::format("/proc/self/fd/{}", memory);
    save(path.c_str());
    std::ifstream file(path);
    read_catalogue(file, texts);
    close(memory);
}
} // namespace

const std::vector<result_text>& result_texts()
{
    static const std::vector<result_text> texts = []
    {
        std::vector<result_text> read;
        read_catalogue(qorin_system_api_result_description_all_xml_save, read);
        read_catalogue(qorin_system_error_event_description_all_xml_save, read);
        return read;
    }();
    return texts;
}

std::string result_line(unsigned int code)
{
    if (code == 0)
        return "0: the command link is lost";
    const auto& texts = result_texts();
    const auto text = std::ranges::find(texts, code, &result_text::code);
    if (text == texts.end())
        return fmt::format("{}: no catalogue tells of this result", code);
    return fmt::format("{} ({}): {}", text->name, text->code, text->description);
}
} // namespace qorin_cli
