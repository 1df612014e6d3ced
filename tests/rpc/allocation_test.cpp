#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>

#include <gtest/gtest.h>

#include "qorin/cbox.h"
#include "tests/rpc/connected_box.h"

namespace
{
std::atomic<long> g_allocations = 0;
} // namespace

// Not inlined: a compiler that sees both sides takes free() for the wrong partner of new.
__attribute__((noinline)) void* operator new(std::size_t size)
{
    ++g_allocations;
    if (void* memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

__attribute__((noinline)) void operator delete(void* memory) noexcept
{
    std::free(memory);
}

__attribute__((noinline)) void operator delete(void* memory, std::size_t /*size*/) noexcept
{
    std::free(memory);
}

namespace
{
TEST(allocation, neither_a_getter_nor_the_reception_of_a_frame_allocates)
{
    test_support::connected_box box;
    auto frame = std::make_unique<protocol::shared_data_t>();
    std::memset(frame.get(), 0, sizeof(*frame));
    unsigned int value = 0;
    const auto receive = [&](std::uint32_t bits)
    {
        protocol::record_at<protocol::io_module_data_t>(*frame, 0).digital_input = bits;
        box.send_frame(*frame);
        while (qorin_rpc_cbox_io_digital_input_get(box.id, 0, &value) == QORIN_API_RESULT_OK && value != (bits & 1))
        {
        }
    };
    receive(1);

    const long before = g_allocations;
    for (std::uint32_t i = 0; i < 100; ++i)
        receive(i & 1);
    EXPECT_EQ(before, g_allocations);

    const auto counted = std::make_unique<int>(1);
    EXPECT_LT(before, g_allocations) << "the count counts";
}
} // namespace
