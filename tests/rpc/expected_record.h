#ifndef TESTS_RPC_EXPECTED_RECORD_H
#define TESTS_RPC_EXPECTED_RECORD_H

#include <array>
#include <cstring>
#include <initializer_list>
#include <string>

#include <gtest/gtest.h>

#include "protocol/rpc_record.h"

namespace test_support
{
/// Bytes at an offset of a record.
struct piece
{
    piece(std::size_t at, std::string text) : offset(at), bytes(std::move(text)) {}
    template <class Element>
    requires std::is_arithmetic_v<Element> piece(std::size_t at, std::initializer_list<Element> elements) : offset(at)
    {
        add(elements.begin(), elements.size());
    }
    template <class Element, std::size_t Count>
    piece(std::size_t at, const std::array<Element, Count>& elements) : offset(at)
    {
        add(elements.data(), Count);
    }

    template <class Element>
    void add(const Element* elements, std::size_t count)
    {
        bytes.assign(reinterpret_cast<const char*>(elements), count * sizeof(Element));
    }

    std::size_t offset;
    std::string bytes;
};

/// The record is these pieces, and zero elsewhere.
inline void expect_record(const protocol::request_record& record, std::initializer_list<piece> pieces)
{
    std::array<unsigned char, sizeof record> expected{};
    for (const auto& each : pieces)
        std::memcpy(expected.data() + each.offset, each.bytes.data(), each.bytes.size());
    std::array<unsigned char, sizeof record> actual;
    std::memcpy(actual.data(), &record, sizeof record);
    for (std::size_t at = 0; at < expected.size(); ++at)
        ASSERT_EQ(expected[at], actual[at]) << record.wire_name << " at offset " << at;
}

/// Memory for one parameter, as long as what is read of it.
template <class Element>
using room = std::array<Element, 128 / sizeof(Element)>;
} // namespace test_support

#endif
