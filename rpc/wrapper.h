#ifndef RPC_WRAPPER_H
#define RPC_WRAPPER_H

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <mutex>
#include <string_view>
#include <type_traits>

#include "api/api_call_line.h"
#include "api/api_call_log_param_to_string.h"
#include "protocol/rpc_record.h"
#include "rpc/api_call_recursive_lock.h"
#include "rpc/cbox_registry.h"
#include "rpc/rpc_common_func_call.h"

/// The two shapes that almost all exported functions have.
namespace qorin_api_rpc
{
/// "qorin_x" is the wire name of the export "qorin_rpc_x", without exception.
inline constexpr std::string_view wire_prefix = "qorin_";
inline constexpr std::string_view exported_prefix = "qorin_rpc_";

/// Whether a wire name is that of the function it stands in. What is no export, a lambda too, may use any name.
[[nodiscard]] consteval bool may_stand_in(std::string_view wire_name, std::string_view function)
{
    if (!function.starts_with(exported_prefix))
        return true;
    return wire_name.starts_with(wire_prefix) &&
           wire_name.substr(wire_prefix.size()) == function.substr(exported_prefix.size());
}

/// A wire name as a template argument: one that fits a request and is that of the function it stands in.
template <std::size_t Size>
struct wire_name_text
{
    consteval wire_name_text(const char (&literal)[Size], const char* function = __builtin_FUNCTION())
    {
        static_assert(Size <= sizeof(protocol::request_record::wire_name));
        if (!may_stand_in(literal, function))
            throw "the wire name of another function";
        std::copy_n(literal, Size, text);
    }

    char text[Size];
};

template <wire_name_text WireName>
consteval auto exported_name_of()
{
    constexpr std::string_view wire_name = WireName.text;
    static_assert(wire_name.starts_with(wire_prefix));

    std::array<char, exported_prefix.size() + wire_name.size() - wire_prefix.size() + 1> name = {};
    const auto rest = std::copy(exported_prefix.begin(), exported_prefix.end(), name.begin());
    std::copy(wire_name.begin() + wire_prefix.size(), wire_name.end(), rest);
    return name;
}

template <wire_name_text WireName>
inline constexpr auto exported_name = exported_name_of<WireName>();

/// Stands around a logged call: the call lock, and the call depth, which every call that ends sets to 0.
class call_bracket
{
public:
    call_bracket() { QORIN_API_LOG_BEGIN_INTERNAL(); }
    ~call_bracket() { qorin_internal_func_call_set_zero(); }
    call_bracket(const call_bracket&) = delete;
    call_bracket& operator=(const call_bracket&) = delete;

private:
    std::lock_guard<std::recursive_mutex> lock_{no_mangle_qorin_api_call_recursive_lock::mtx};
};

/// Writes the call line of the command, then runs `work` in the bracket. What sends a command in its work has that
/// under the line of this one.
template <wire_name_text WireName, class Work, class... Params>
QORIN_API_RESULT logged_call(const Work& work, Params... params)
{
    const call_bracket bracket;
    QORIN_API_LOG_FUNC_CALL(exported_name<WireName>.data(), qorin_api::param_to_string(params)...);
    return work();
}

/// One request and its reply, as the work of a logged call.
template <wire_name_text WireName, class... Params>
QORIN_API_RESULT send_command(unsigned int cbox_id, Params... params)
{
    return qorin_api_rpc_common_func_call(WireName.text, cbox_id, params...);
}

/// A command: call lock, call line, one request and its reply.
template <wire_name_text WireName, class... Params>
QORIN_API_RESULT command(unsigned int cbox_id, Params... params)
{
    return logged_call<WireName>([&] { return send_command<WireName>(cbox_id, params...); }, cbox_id, params...);
}

/**
 * A getter over the status mirror: selects the control box and asks the local getter, with no lock, line or traffic.
 *
 * An unknown control box gives QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, and null from a getter that returns a text.
 */
template <class Result, class... LocalParams, class... Params>
Result from_mirror(unsigned int cbox_id, Result (*local_getter)(LocalParams...), Params... params)
{
    const std::shared_ptr<qorin_rpc_client> client = get_cbox(cbox_id);
    if (client == nullptr)
    {
        if constexpr (std::is_pointer_v<Result>)
            return nullptr;
        else
            return QORIN_API_RESULT_ERROR_CBOX_ID_INVALID;
    }
    set_cur_cbox_id(cbox_id);
    return local_getter(params...);
}
} // namespace qorin_api_rpc

#endif
