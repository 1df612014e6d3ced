#include <csignal>
#include <cstring>

#include <dlfcn.h>
#include <gtest/gtest.h>

#include "qorin/system.h"
#include "rpc/cbox_registry.h"
#include "tests/support/installation.h"
#include "tests/support/loopback.h"
#include "tests/support/scripted_cbox.h"
#include "tests/support/text_form.h"

namespace
{
using test_support::installation;
using test_support::own_address;
using test_support::reply_with;
using test_support::scripted_cbox;

/// A box that streams one frame with this version text as soon as the data link stands.
class versioned_cbox : public scripted_cbox
{
public:
    versioned_cbox(const std::string& address, const char* version) : scripted_cbox(address)
    {
        std::signal(SIGPIPE, SIG_IGN);
        sender_ = std::thread(
            [this, version]
            {
                auto frame = std::make_unique<protocol::shared_data_t>();
                std::memset(frame.get(), 0, sizeof(*frame));
                std::memcpy(frame->control_sw_version, version, std::strlen(version));
                frame->cbox_name = 0x41414141; // would show behind a version that fills its field
                send_frame(*frame);
            });
    }
    ~versioned_cbox() { sender_.join(); }

private:
    std::thread sender_;
};

constexpr const char* library_version = "QORIN.v3.008.000.004_U2";

TEST(system_cbox_connect, opens_the_logs_with_its_own_entry)
{
    const installation place;
    EXPECT_EQ(nullptr, qorin_system_control_sw_version_get()) << "without a frame there is nothing to keep";
    EXPECT_EQ(nullptr, qorin_rpc_system_control_sw_version_get(0));
    versioned_cbox box(own_address(), library_version);
    unsigned int id = 77;
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_cbox_connect(nullptr, own_address().c_str(), &id));
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(2300));
    EXPECT_EQ(0u, id);
    EXPECT_STREQ(library_version, qorin_rpc_system_api_version_get(id));
    EXPECT_STREQ(library_version, qorin_rpc_system_control_sw_version_get(id));
    EXPECT_EQ(nullptr, qorin_rpc_system_api_version_get(id + 1));
    EXPECT_EQ(nullptr, qorin_rpc_system_control_sw_version_get(id + 1));
    qorin_api_rpc::set_cur_cbox_id(id + 1);
    EXPECT_STREQ(library_version, qorin_system_control_sw_version_get()) << "kept, whatever box is asked later";

    box.will_reply(reply_with(QORIN_API_RESULT_OK));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_control_take(id));
    const std::vector<std::string> records = place.call_records();
    ASSERT_EQ(6u, records.size());
    const std::string forms[] = {
        "/* [now]:" + std::string(test_support::time_form) + ", ",
        "[timestamp]:@ */ ",
        "[@] qorin_rpc_system_cbox_connect(nullptr, " + own_address() + ", &cbox_id);\n",
    };
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_TRUE(test_support::has_form(records[i], forms[i])) << records[i];
    EXPECT_TRUE(records[5].ends_with("] qorin_rpc_system_control_take(0);\n")) << records[5];

    const std::vector<std::string> messages = place.event_records();
    ASSERT_LE(11u, messages.size());
    EXPECT_TRUE(messages[0].ends_with("] [system config ini: client] log_save_path: ./log\n")) << messages[0];
    EXPECT_TRUE(messages[4].ends_with("] [system config ini: common] transfer_protocol: tcp\n")) << messages[4];
}

TEST(system_cbox_connect, a_version_mismatch_leaves_a_working_connection)
{
    const installation place;
    versioned_cbox box(own_address(), "QORIN.v3.008.000.003_U2_31_chars"); // fills the field without a terminator
    unsigned int id = 77;
    EXPECT_EQ(QORIN_API_RESULT_ERROR_SW_VER_NOT_MATCHED,
              qorin_rpc_system_cbox_connect(place.config_path().c_str(), own_address().c_str(), &id));
    EXPECT_EQ(0u, id);
    EXPECT_STREQ("QORIN.v3.008.000.003_U2_31_chars", qorin_rpc_system_control_sw_version_get(id));
    box.will_reply(reply_with(QORIN_API_RESULT_OK));
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_control_take(id));
}

TEST(system_cbox_connect, the_first_version_stands_for_all_control_boxes)
{
    const installation place;
    versioned_cbox first(own_address(0), library_version);
    versioned_cbox second(own_address(1), "another");
    unsigned int id = 77;
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_cbox_connect(nullptr, own_address(0).c_str(), &id));
    const std::size_t configuration_lines = 5;
    const std::size_t link_lines = 6;
    EXPECT_EQ(configuration_lines + link_lines, place.event_records().size());
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_cbox_connect("other.ini", own_address(1).c_str(), &id));
    EXPECT_EQ(1u, id);
    EXPECT_EQ(configuration_lines + 2 * link_lines, place.event_records().size()) << "printed once";
    EXPECT_EQ(3u, place.call_records().size()) << "the second opening waits for the logger to take control again";
}

TEST(system_cbox_connect, a_missing_configuration_is_told_once_and_then_done_without)
{
    const installation place;
    const std::string missing = (place.directory() / "missing.ini").string();
    unsigned int id = 77;
    testing::internal::CaptureStderr();
    EXPECT_EQ(QORIN_API_RESULT_ERROR_CONFIG_FILE_LOAD_FAILURE,
              qorin_rpc_system_cbox_connect(missing.c_str(), own_address().c_str(), &id));
    EXPECT_EQ("configuration file load fauilure, path: " + missing + "\n" + missing + ": cannot open file\n",
              testing::internal::GetCapturedStderr());
    EXPECT_EQ(77u, id);

    versioned_cbox box(own_address(), library_version);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_cbox_connect(nullptr, own_address().c_str(), &id));
    EXPECT_EQ(0u, id);
    EXPECT_FALSE(std::filesystem::exists(place.directory() / "log"));
}

TEST(system_cbox_connect, needs_neither_a_valid_address_nor_an_id_pointer)
{
    const installation place;
    for (const char* address : {static_cast<const char*>(nullptr), "no address"})
    {
        testing::internal::CaptureStderr();
        EXPECT_EQ(QORIN_API_RESULT_ERROR_CBOX_ID_INVALID, qorin_rpc_system_cbox_connect(nullptr, address, nullptr));
        EXPECT_EQ("Connection Failed\n", testing::internal::GetCapturedStderr());
    }
    versioned_cbox box(own_address(), library_version);
    EXPECT_EQ(QORIN_API_RESULT_OK, qorin_rpc_system_cbox_connect(nullptr, own_address().c_str(), nullptr));
}

TEST(system_cbox_connect, an_unloaded_library_leaves_no_log_open)
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    GTEST_SKIP() << "what is immortal is lost with the library, which a sanitizer takes for a leak";
#endif
    const installation place;
    versioned_cbox box(own_address(), library_version);
    void* library = dlopen(QORIN_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(nullptr, library) << dlerror();
    const auto connect =
        reinterpret_cast<decltype(&qorin_rpc_system_cbox_connect)>(dlsym(library, "qorin_rpc_system_cbox_connect"));
    EXPECT_EQ(QORIN_API_RESULT_OK, connect(nullptr, own_address().c_str(), nullptr));
    EXPECT_EQ(3u, place.call_records().size());
    ASSERT_EQ(0, dlclose(library));
    EXPECT_EQ(nullptr, dlopen(QORIN_LIBRARY, RTLD_NOW | RTLD_NOLOAD)) << "still there";
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd"))
    {
        std::error_code gone;
        const std::string target = std::filesystem::read_symlink(entry.path(), gone).string();
        EXPECT_FALSE(target.starts_with(place.directory().string())) << target;
    }
}

TEST(system_cbox_connect, throws_without_any_path_to_a_configuration)
{
    unsetenv("SAVRENT_V3");
    EXPECT_THROW(qorin_rpc_system_cbox_connect(nullptr, own_address().c_str(), nullptr), std::logic_error);
}
} // namespace
