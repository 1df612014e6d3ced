#ifndef RPC_RPC_PARAM_SLOT_H
#define RPC_RPC_PARAM_SLOT_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "rpc/rpc_record_store.h"

/**
 * How a parameter type maps to a slot: decided here once, for the store and for the fill.
 *
 *   double                  double slot
 *   other numbers, enums    32-bit slot, sign- or zero-extended; a long loses its upper half
 *   double*, const double*  double block of 128 bytes
 *   other pointers          block of 128 bytes
 *
 * A non-const pointer is an output: it takes a slot of the request all the same, and one value of the reply.
 */
namespace qorin_api_rpc
{
template <class T>
inline constexpr bool is_output = std::is_pointer_v<T> && !std::is_const_v<std::remove_pointer_t<T>>;

/// True for a double, and for a pointer to doubles.
template <class T>
using is_real = std::integral_constant<bool, std::is_same_v<std::remove_cv_t<std::remove_pointer_t<T>>, double>>;

template <class T>
inline constexpr QORIN_API_RPC_PARAM_TYPE
    request_area = std::is_pointer_v<T>
                       ? (is_real<T>::value ? QORIN_API_RPC_PARAM_TYPE_DOUBLE_BLOCK : QORIN_API_RPC_PARAM_TYPE_BLOCK)
                       : (is_real<T>::value ? QORIN_API_RPC_PARAM_TYPE_DOUBLE : QORIN_API_RPC_PARAM_TYPE_VALUE);

/// The next free slot of an area.
inline unsigned int take_slot(QORIN_API_RPC_PARAM_TYPE area)
{
    const unsigned int slot = get_param_cnt(area);
    inc_param_count(area);
    return slot;
}

/**
 * Copies the 128 bytes of a block from the caller's memory, whatever its length.
 *
 * What lies behind a short text or array is read as well: that is how the record has always been filled, so memory
 * checkers have no say in here. Volatile reads, so that no checked memcpy is made of the loop.
 */
__attribute__((no_sanitize("address", "thread", "undefined"))) inline void copy_block(unsigned char* slot,
                                                                                      const void* memory)
{
    using word __attribute__((may_alias, aligned(1))) = std::uint64_t;
    const auto* from = static_cast<const volatile word*>(memory);
    auto* to = reinterpret_cast<word*>(slot);
    for (std::size_t i = 0; i < protocol::block_size / sizeof(word); ++i)
        to[i] = from[i];
}

template <class T>
void qorin_api_rpc_store_input_param_value(T value, std::true_type /*is double*/)
{
    get_in_param()->real[take_slot(QORIN_API_RPC_PARAM_TYPE_DOUBLE)] = value;
}

template <class T>
void qorin_api_rpc_store_input_param_value(T value, std::false_type /*is double*/)
{
    get_in_param()->value[take_slot(QORIN_API_RPC_PARAM_TYPE_VALUE)] = static_cast<std::uint32_t>(value);
}

/// A null pointer has no bytes to copy: its slot is taken and stays zero.
template <class T>
void qorin_api_rpc_store_input_param_type_pointer(T pointer, std::true_type /*points at doubles*/)
{
    unsigned char* slot = get_in_param()->double_block[take_slot(QORIN_API_RPC_PARAM_TYPE_DOUBLE_BLOCK)];
    if (pointer != nullptr)
        copy_block(slot, pointer);
}

template <class T>
void qorin_api_rpc_store_input_param_type_pointer(T pointer, std::false_type /*points at doubles*/)
{
    unsigned char* slot = get_in_param()->block[take_slot(QORIN_API_RPC_PARAM_TYPE_BLOCK)];
    if (pointer != nullptr)
        copy_block(slot, pointer);
}

/// Puts a parameter into the next slot of its area of the request.
template <class T>
void store_param(T param)
{
    if constexpr (std::is_pointer_v<T>)
        qorin_api_rpc_store_input_param_type_pointer(param, is_real<T>{});
    else
        qorin_api_rpc_store_input_param_value(param, is_real<T>{});
}

/// Gives an output the next value of its area of the reply: 8 bytes to a double, 4 bytes to anything else.
template <class T>
void fill_param(T param)
{
    if constexpr (is_output<T>)
    {
        constexpr auto area = is_real<T>::value ? QORIN_API_RPC_PARAM_TYPE_DOUBLE : QORIN_API_RPC_PARAM_TYPE_VALUE;
        const unsigned int slot = take_slot(area);
        if (param == nullptr)
            return;
        if constexpr (is_real<T>::value)
            std::memcpy(param, &get_out_param()->real[slot], sizeof(double));
        else
            std::memcpy(static_cast<void*>(param), &get_out_param()->value[slot], sizeof(std::uint32_t));
    }
}
} // namespace qorin_api_rpc

#endif
