#ifndef TESTS_SUPPORT_SCRIPTED_CBOX_H
#define TESTS_SUPPORT_SCRIPTED_CBOX_H

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <span>
#include <string>
#include <thread>
#include <vector>

#include "protocol/event_record.h"
#include "protocol/rpc_record.h"
#include "protocol/status_frame.h"

namespace test_support
{
enum class link : std::size_t
{
    command,
    data,
    event
};

/// How one request is answered.
struct scripted_reply
{
    protocol::reply_record record = {};
    std::chrono::milliseconds delay{0};
    std::size_t split_at = 0;       ///< sends so many bytes, pauses, then the rest; 0 sends at once
    bool cut_instead = false;       ///< closes the command link in place of an answer
    std::function<void()> before{}; ///< runs when the request has come in
};

[[nodiscard]] scripted_reply reply_with(std::uint32_t result);

/**
 * A control box that does byte for byte what the test says, and records what it receives.
 *
 * It serves one client. Its destructor fails the test when scripted replies were not asked for.
 */
class scripted_cbox
{
public:
    /// @param links  accepts so many links, then refuses
    explicit scripted_cbox(const std::string& address, std::size_t links = 3);
    ~scripted_cbox();
    scripted_cbox(const scripted_cbox&) = delete;
    scripted_cbox& operator=(const scripted_cbox&) = delete;

    /// Ends all links and the box's thread, as its destructor does.
    void end();

    /// Answers the next request that has no reply yet; requests wait for as long as there is none.
    void will_reply(scripted_reply reply);

    /// Answers every request with this from now on.
    void always_reply(scripted_reply reply);

    void send(link to, std::span<const unsigned char> bytes);
    void send_frame(const protocol::shared_data_t& frame);
    void send_event(const savrent::cc::val_obj::event_info& event);
    void cut(link which);

    [[nodiscard]] bool wait_for_links(std::size_t count);
    [[nodiscard]] bool wait_for_requests(std::size_t count);
    [[nodiscard]] protocol::request_record request(std::size_t index);
    [[nodiscard]] std::size_t request_count();

private:
    [[nodiscard]] int descriptor_of(link which);
    void run(std::size_t links);
    void serve_commands();
    bool next_reply(scripted_reply& reply);

    int listener_ = -1;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<int> links_;
    std::vector<protocol::request_record> requests_;
    std::deque<scripted_reply> replies_;
    bool always_ = false;
    scripted_reply always_reply_;
    bool ending_ = false;
    std::thread thread_;
};
} // namespace test_support

#endif
