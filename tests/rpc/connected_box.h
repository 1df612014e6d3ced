#ifndef TESTS_RPC_CONNECTED_BOX_H
#define TESTS_RPC_CONNECTED_BOX_H

#include <csignal>

#include <gtest/gtest.h>

#include "rpc/rpc_internal.h"
#include "tests/support/loopback.h"
#include "tests/support/scripted_cbox.h"

namespace test_support
{
/// A scripted control box with the library connected to it, without the wait of the exported call.
class connected_box : public scripted_cbox
{
public:
    explicit connected_box(unsigned int index = 0) : scripted_cbox(own_address(index))
    {
        std::signal(SIGPIPE, SIG_IGN);
        EXPECT_EQ(QORIN_API_RESULT_OK,
                  qorin_api_rpc::qorin_api_internal_rpc_system_create(own_address(index).c_str(), 7700, &id));
        EXPECT_TRUE(wait_for_links(3));
    }

    unsigned int id = 0;
};

/// Polls until `condition` holds; false when it does not within some seconds.
template <class Condition>
bool eventually(Condition&& condition)
{
    for (int i = 0; i < 500; ++i)
    {
        if (condition())
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}
} // namespace test_support

#endif
