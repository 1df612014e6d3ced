#include "simulator/commands/argument_type.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include <fmt/format.h>

#include "simulator/commands/request_reader.h"
#include "simulator/printable.h"

namespace cbox_simulator
{
namespace
{
/// A number of up to 32 bits at the start of some bytes.
std::int64_t integer_at(const unsigned char* bytes, const argument_type& type)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, bytes, type.element_size);
    if (!type.element_is_signed)
        return bits;
    const auto unused = 32 - 8 * type.element_size;
    return static_cast<std::int32_t>(bits << unused) >> unused;
}

std::string element_at(const unsigned char* bytes, const argument_type& type)
{
    if (*type.element != typeid(double))
        return fmt::format("{}", integer_at(bytes, type));
    double number = 0;
    std::memcpy(&number, bytes, sizeof number);
    return fmt::format("{}", number);
}

template <class Bytes>
std::string block_text(const Bytes& block, const argument_type& type)
{
    const auto last = std::find_if(std::rbegin(block), std::rend(block), [](unsigned char byte) { return byte != 0; });
    const auto used = static_cast<std::size_t>(std::distance(last, std::rend(block)));
    std::string text;
    for (std::size_t at = 0; at < used; at += type.element_size)
        text += (at == 0 ? "" : ", ") + element_at(&block[at], type);
    return '[' + text + ']';
}

std::string next_text(request_reader& request, const argument_type& type)
{
    switch (type.kind)
    {
    case argument_kind::value:
    {
        const auto bits = request.next_u32();
        return element_at(reinterpret_cast<const unsigned char*>(&bits), type);
    }
    case argument_kind::real:
        return fmt::format("{}", request.next_double());
    case argument_kind::block:
        if (*type.element == typeid(char))
            return printable(request.next_text());
        return block_text(request.next_block(), type);
    case argument_kind::real_block:
    {
        const auto numbers = request.next_double_block();
        std::array<unsigned char, sizeof numbers> bytes;
        std::memcpy(bytes.data(), numbers.data(), sizeof numbers);
        return block_text(bytes, type);
    }
    case argument_kind::value_output:
        request.skip_output();
        return "&";
    case argument_kind::real_output:
        request.skip_double_output();
        return "&";
    }
    return {};
}
} // namespace

std::string argument_text(const protocol::request_record& record, std::span<const argument_type> arguments)
{
    request_reader request(record);
    std::string text;
    for (const auto& type : arguments)
        text += (text.empty() ? "" : ", ") + next_text(request, type);
    return text;
}
} // namespace cbox_simulator
